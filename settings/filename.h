#pragma once

#include <QString>

#include <filesystem>

/// The name of a file: bytes, as the system has it, in whatever encoding whoever made the file used. The
/// toolkit's file classes know names in UTF-8 only.
class FileName
{
public:
    FileName() = default;
    /// A name that is text counts as UTF-8, as it does for the toolkit.
    FileName(const QString &name);
    explicit FileName(const QByteArray &bytes);
    FileName(const std::filesystem::path &path);

    bool isEmpty() const { return name.empty(); }
    const std::filesystem::path &path() const { return name; }
    /// For the system's own operations; lives as long as this.
    const char *system() const { return name.c_str(); }
    QByteArray bytes() const { return QByteArray(system()); }
    /// For people: the bytes as characters of the locale, which turn into the same bytes when they are
    /// printed.
    QString shown() const;

    bool exists() const;
    bool isRegularFile() const;
    /// The same file with `suffix` behind its name.
    FileName with(const QString &suffix) const;

private:
    std::filesystem::path name;
};
