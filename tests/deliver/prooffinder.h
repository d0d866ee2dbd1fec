#pragma once

#include "commandreader.h"

#include <QByteArray>

#include <utility>

/// Finds the questions for proof where a printer does: as commands, not as bytes of a picture.
class ProofFinder : private CommandSink
{
public:
    void take(QByteArrayView bytes) { reader.take(bytes); }
    /// The id of the question that has just ended, once; "" when none has.
    QByteArray takeId() { return std::exchange(id, {}); }

private:
    void text(qint64, QByteArrayView) override {}
    void command(const PrinterCommand &command) override;
    void data(qint64, QByteArrayView bytes) override;
    void endOfCommand() override;
    void unknown(qint64, QByteArrayView) override {}
    void torn(qint64, QByteArrayView) override {}

    CommandReader reader{*this};
    bool isQuestion = false;
    QByteArray words; ///< behind the command and its size
    QByteArray id;
};
