#pragma once

#include "localeencoding.h"

#include <QFile>
#include <QString>

/// The output file of a print job: text goes in, bytes in the encoding of the locale come out. A printer that
/// has an encoding of its own hands in bytes.
///
/// Every byte of output goes through here. Whoever makes the object closes it; what was given to it is on its
/// way to the file only after `close`. After the first failed write nothing more is written, so that the file
/// is always a beginning of the right output, never one with a gap.
class LocaleOutput
{
public:
    /// Opens `fileName`, bytes as the system takes them, for writing; an existing file is emptied, or added
    /// to when `append` is true.
    LocaleOutput(const QByteArray &fileName, bool append);

    bool isOpen() const { return file.isOpen(); }
    LocaleOutput &operator<<(const QString &text);
    LocaleOutput &operator<<(const QByteArray &bytes);
    /// Writes what is left and closes. False when the file did not take all that it was given: then
    /// `errorString` has the reason.
    bool close();
    QString errorString() const { return error; }

private:
    bool write(const QByteArray &bytes);
    void fail();

    LocaleEncoding encoding;
    QFile file;
    QString error;
};
