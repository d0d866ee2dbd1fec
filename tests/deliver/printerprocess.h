#pragma once

#include "scratchfolder.h"

#include <QByteArray>
#include <QProcess>
#include <QStringList>

/// A virtual printer in a process of its own; see virtualprinter.h.
class PrinterProcess
{
public:
    PrinterProcess();
    ~PrinterProcess();
    PrinterProcess(const PrinterProcess &) = delete;
    PrinterProcess &operator=(const PrinterProcess &) = delete;

    int port() const { return listeningPort; }
    /// "palvestrin://127.0.0.1:PORT", with options when they are given.
    QByteArray uri(const QByteArray &options = {}) const;
    /// Waits until it has obeyed.
    void habit(const QByteArray &line);
    /// What it has printed, row by row.
    QStringList roll() const;
    int count(const QString &row) const { return int(roll().count(row)); }

private:
    const ScratchFolder folder;
    QProcess process;
    int listeningPort = 0;
};

/// A ticket with its number on the first row and on the last one.
QByteArray ticket(int number, int rows = 4);
/// The same with a picture between the first row and the others: 16 rows of 384 dots, each a command of its
/// own.
QByteArray ticketWithPicture(int number);
inline QString firstRow(int number)
{
    return QStringLiteral("ticket %1").arg(number);
}
inline QString lastRow(int number)
{
    return QStringLiteral("end %1").arg(number);
}
