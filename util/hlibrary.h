#pragma once

#include <QString>

class QComboBox;
class QSqlDatabase;

/// The application family's small helpers: programs, paths, paper, amounts. Static functions only.
///
/// `copy` and `comboBoxIndexOf` are in the library palvestrin-util-widgets, everything else in
/// palvestrin-util.
class HLibrary
{
public:
    HLibrary() = delete;

    /// "" on this system.
    static QString appData();
    /// "" on this system.
    static QString programFiles();
    /// `path` as it is, on this system.
    static QString toWindowsFormat(const QString &path);
    /// `s` as it is: text is Unicode already.
    static QString fromUtf8(const QString &s);
    /// The user's home directory, without a separator at its end.
    static QString dataPath();

    // The database's own programs, to be found through the search path.

    static QString psql();
    static QString dropdb();
    static QString pg_dump();
    static QString pg_restore();
    /// `name` in the folder that palvestrin.bin.path names.
    static QString pathWithBinaryFile(const QString &name);
    /// The first entry of the current folder whose name begins with "core", in the order of names; "" when
    /// there is none.
    static QString getCoreFile();

    /// Leaves an empty file at `path`: one that exists is emptied. A failure is silent.
    static void touch(const QString &path);
    /// A number between 0 and RAND_MAX in decimal. It is the same for every call within one second: good for
    /// a file name, not for a secret.
    static QString getNewRand();
    /// Sleeps. Returns the seconds left when a signal ended the sleep early, else 0.
    static unsigned int hsleep(unsigned int seconds);

    // The database that the configuration names, "" where it says nothing.

    static QString dbname();
    static QString username();
    static QString password();
    static QString hostname();
    /// Opens the configured database. The pointer's life is told at `DatabaseManager::createConnection`.
    static QSqlDatabase *newDBConnection(const QString &connectionName);

    /// The configured number of copies of a kind of document, as text; "" when none is set. The kinds are
    /// "order", "prefiscal", "fiscal", "receipt", "invoice", "delivery" and "report", in any case. Any other
    /// is reported in one line on standard output and counts as "prefiscal".
    static QString copyNumber(const QString &kind);

    /// An amount with two decimals: only the first three count, and the third rounds a positive amount half
    /// up; a negative amount is cut towards zero. Beyond 2147483.647 either way the text means nothing.
    static QString truncateDecimal(double value);

    /// The index of the first item whose text is exactly `text`, or -1. REQUIRES: a box.
    static int comboBoxIndexOf(const QComboBox *box, const QString &text);

    // Paced copies, for printers that are files. A file goes over line by line; a line of more than 127 bytes
    // counts as several. `delay` is the wait after a line, in milliseconds. False means that a file could not
    // be opened, read or written, or that both are the same; nothing is copied after a failure.

    /// Copies the whole file and asks the user for a new sheet of paper after line `linesPerSheet` + 1, then
    /// after every further `linesPerSheet` lines; 0 never asks. REQUIRES: a QApplication, if it asks.
    static bool copy(const QString &src, const QString &dst, unsigned int linesPerSheet, unsigned int delay);
    /// The same with the numbers in decimal text; what is not a number is 0.
    static bool copy(const QString &src, const QString &dst, const QString &linesPerSheet,
                     const QString &delay);
    /// Copies page number `page`, counted from 0, of `linesPerPage` lines each; the rest of the file if
    /// `linesPerPage` is 0. False also when the file ends before the page begins. There is no wait after the
    /// page's last line.
    static bool copy(const QString &src, const QString &dst, unsigned int linesPerPage, unsigned int delay,
                     unsigned int page);
};
