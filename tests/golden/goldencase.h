#pragma once

#include <QByteArray>
#include <QDir>
#include <QString>
#include <QStringList>

/// Whether expectations are rewritten instead of compared.
bool updatingGolden();

/// The folder of all areas, and the names of the folders in one.
QString goldenFolder();
QStringList foldersIn(const QString &path);

/// Makes a row of test data for each case: the column "folder".
void addGoldenCases();

/// One folder tests/golden/<area>/<case>/; README.md beside this file tells what may stand in it.
class GoldenCase
{
public:
    explicit GoldenCase(const QString &path) : folder(path) {}

    QString filePath(const QString &name) const { return folder.filePath(name); }
    bool has(const QString &name) const { return folder.exists(name); }
    QString configurationPath() const;
    /// The configuration, with the folder of the built catalogues where it says @CATALOGUES@.
    QByteArray configuration() const;
    /// What is wrong with the folder itself; empty when nothing is. A missing expectation is no defect while
    /// expectations are being written.
    QString defect() const;
    QStringList environment(const QString &home) const;
    /// The prescribed bytes of the output file.
    QByteArray expectedOutput() const;
    /// The prescribed standard output, with `home` where the file says @HOME@.
    QByteArray expectedStandardOutput(const QString &home) const;

    /// Makes what was printed the expectation, and says so where that changes anything.
    void update(const QByteArray &output, const QByteArray &standardOutput) const;

private:
    QStringList unknownFiles() const;
    void rewrite(const QString &name, const QByteArray &content) const;

    QDir folder;
};
