#pragma once

#include "commandtable.h"

#include <QByteArray>

/// Takes what a stream of ESC/POS bytes consists of, in its order. Every byte of the stream is handed on
/// once.
class CommandSink
{
public:
    virtual ~CommandSink() = default;
    /// Bytes to print. A run of them may come in several pieces.
    virtual void text(qint64 offset, QByteArrayView bytes) = 0;
    virtual void command(const PrinterCommand &command) = 0;
    /// The data behind the last command, in pieces.
    virtual void data(qint64 offset, QByteArrayView bytes) = 0;
    /// Behind every command, after all of its data.
    virtual void endOfCommand() = 0;
    /// Bytes that begin a command which nobody knows; what is behind them is taken for text.
    virtual void unknown(qint64 offset, QByteArrayView bytes) = 0;
    /// The stream ended in the middle of a command, of which this much stands there.
    virtual void torn(qint64 offset, QByteArrayView bytes) = 0;
};

/// Tells text, commands and their data apart. Keeps no more than the beginning of one command.
class CommandReader
{
public:
    /// `receiver` must outlive the reader.
    explicit CommandReader(CommandSink &receiver) : sink(receiver) {}

    /// Any bytes, in pieces of any size.
    void take(QByteArrayView bytes);
    /// The stream is over.
    void end();

private:
    qsizetype takeText(QByteArrayView bytes);
    qsizetype takeData(QByteArrayView bytes);
    void takeHead(char byte);
    void startData();
    void endCommand();

    CommandSink &sink;
    qint64 offset = 0; ///< of the byte that comes next
    QByteArray head;   ///< of the command that is being read
    qint64 headOffset = 0;
    bool inData = false;
    bool untilZero = false;
    qint64 dataLeft = 0; ///< bytes, unless it ends with a zero byte
};
