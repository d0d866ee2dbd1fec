#include "hlibrary.h"
#include "sleepthread.h"

#include <QCoreApplication>
#include <QFile>
#include <QMessageBox>

#include <array>
#include <sys/stat.h>

namespace {

/// Whether both names lead to one regular file, by links too. A pipe or a device may well be both.
bool isSameFile(const QString &one, const QString &other)
{
    struct stat first = {};
    struct stat second = {};
    return stat(QFile::encodeName(one).constData(), &first) == 0 &&
           stat(QFile::encodeName(other).constData(), &second) == 0 && S_ISREG(first.st_mode) &&
           first.st_dev == second.st_dev && first.st_ino == second.st_ino;
}

/// The two files of a copy and the pieces that go from one to the other.
class PieceCopy
{
public:
    PieceCopy(const QString &src, const QString &dst) : source(src), target(dst) {}

    /// The source first: a target that has no source is not touched. A file that is copied onto itself would
    /// be emptied before it is read.
    bool open()
    {
        return haveNames() && !isSameFile(source.fileName(), target.fileName()) &&
               source.open(QIODevice::ReadOnly) && target.open(QIODevice::WriteOnly);
    }
    /// Also true after a read error. Looks at the next byte, because not every file tells its size.
    bool atEnd() { return source.peek(1).isEmpty(); }
    /// At the end: whether it is the file's, and not a read error's.
    bool complete() const { return source.error() == QFileDevice::NoError; }
    void skipPiece() { readPiece(); }
    /// Copies one piece; it is on its way to the printer when this returns.
    bool copyPiece()
    {
        const qint64 length = readPiece();
        return length > 0 && target.write(piece.data(), length) == length && target.flush();
    }

private:
    /// Asked first because the toolkit complains about an empty name on standard error.
    bool haveNames() const { return !source.fileName().isEmpty() && !target.fileName().isEmpty(); }
    /// Reads up to the end of the line or 127 bytes, whichever is less: the last byte ends the text.
    qint64 readPiece() { return source.readLine(piece.data(), piece.size()); }

    QFile source;
    QFile target;
    std::array<char, 128> piece;
};

void askForSheet()
{
    QMessageBox::information(nullptr, QCoreApplication::translate("HLibrary", "PaperWindow"),
                             QCoreApplication::translate("HLibrary", "Insert a new sheet"));
}

void wait(unsigned int milliseconds)
{
    if (milliseconds != 0)
        const SleepThread sleeping(milliseconds);
}

} // namespace

bool HLibrary::copy(const QString &src, const QString &dst, unsigned int linesPerSheet, unsigned int delay)
{
    PieceCopy files(src, dst);
    if (!files.open())
        return false;
    unsigned int counter = 0;
    while (!files.atEnd()) {
        if (!files.copyPiece())
            return false;
        // Asked before the line is counted: the first sheet takes one line more than the others. That is how
        // it has always been, and whoever feeds the paper counts on it.
        if (linesPerSheet != 0 && counter >= linesPerSheet) {
            askForSheet();
            counter = 0;
        }
        wait(delay);
        ++counter;
    }
    return files.complete();
}

bool HLibrary::copy(const QString &src, const QString &dst, const QString &linesPerSheet,
                    const QString &delay)
{
    return copy(src, dst, linesPerSheet.toUInt(), delay.toUInt());
}

bool HLibrary::copy(const QString &src, const QString &dst, unsigned int linesPerPage, unsigned int delay,
                    unsigned int page)
{
    PieceCopy files(src, dst);
    if (!files.open())
        return false;
    for (quint64 left = quint64(linesPerPage) * page; left > 0; --left) {
        files.skipPiece();
        if (files.atEnd())
            return false;
    }
    const unsigned int last = linesPerPage - 1; // wraps for 0: the rest of the file is one page
    for (unsigned int counter = 0; !files.atEnd(); ++counter) {
        if (!files.copyPiece())
            return false;
        if (counter >= last)
            return true;
        wait(delay);
    }
    return files.complete();
}
