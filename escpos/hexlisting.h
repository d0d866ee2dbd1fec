#pragma once

#include "codepages.h"
#include "commandreader.h"

#include <QByteArray>

#include <functional>

/// Lists a stream of ESC/POS bytes, a line for each command and each piece of text: where it stands, its
/// bytes, what it means.
///
///     00000000  1B 40                    initialise
///     00000002  1B 74 13                 code page 19, CP858
///     00000005  54 6F 74 61 6C           "Total"
///     0000000A  0A                       end of the row
class HexListing : private CommandSink
{
public:
    /// `lineTaker` is given each line, without a line end, as soon as it is known.
    explicit HexListing(std::function<void(const QString &)> lineTaker);

    /// Any bytes, in pieces of any size.
    void take(QByteArrayView bytes) { reader.take(bytes); }
    /// The stream is over.
    void end();

private:
    enum class Collected { Nothing, Text, Data };

    void text(qint64 offset, QByteArrayView bytes) override;
    void command(const PrinterCommand &command) override;
    void data(qint64 offset, QByteArrayView bytes) override;
    void endOfCommand() override;
    void unknown(qint64 offset, QByteArrayView bytes) override;
    void torn(qint64 offset, QByteArrayView bytes) override;

    void collect(Collected kind, qint64 offset, QByteArrayView bytes);
    void follow(const PrinterCommand &command);
    void finish();
    void list(qint64 offset, QByteArrayView bytes, const QString &meaning);
    QString quoted(QByteArrayView bytes) const;

    CommandReader reader;
    std::function<void(const QString &)> takeLine;
    CharacterTable characters;
    qint64 listed = 0; ///< bytes that lines have been made of
    Collected collected = Collected::Nothing;
    qint64 collectedOffset = 0;
    QByteArray collectedBytes; ///< of the line in the making
};
