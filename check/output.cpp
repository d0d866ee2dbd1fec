#include "output.h"

#include "commandreader.h"
#include "contentkind.h"
#include "streamreader.h"
#include "words.h"

#include <QIODevice>

using namespace Qt::Literals::StringLiterals;

namespace check {

namespace {

/// Hands on what `device` holds, piece by piece.
template <typename Take>
void readAll(QIODevice &device, Take take)
{
    constexpr qint64 pieceSize = 65536;
    for (QByteArray piece; !(piece = device.read(pieceSize)).isEmpty();)
        take(piece);
}

/// Wants to know what is wrong with the rows, not what stands in them.
class BlindPainter : public paper::Painter
{
public:
    void beginStrip(paper::StripKind /*kind*/) override {}
    void row(const paper::Row & /*row*/) override {}
    void event(paper::Event /*event*/) override {}
    void remark(const QString & /*text*/) override {}
    void endStrip() override {}
};

void checkStream(QIODevice &stream, const QByteArray &encoding, FindingSink &sink)
{
    BlindPainter painter;
    paper::StreamReader reader(encoding, painter, [&sink](const paper::Fault &fault) {
        sink.take({fault.isEarlyEnd ? named("unfinished-output") : named("broken-output"),
                   {fault.line, fault.column},
                   fault.what,
                   {}});
    });
    readAll(stream, [&reader](const QByteArray &bytes) { reader.read(bytes); });
    reader.finish();
}

/// Tells of bytes that are no command.
class CommandCheck : public CommandSink
{
public:
    explicit CommandCheck(FindingSink &findings) : sink(findings) {}

    void text(qint64 /*offset*/, QByteArrayView /*bytes*/) override {}
    void command(const PrinterCommand & /*command*/) override {}
    void data(qint64 /*offset*/, QByteArrayView /*bytes*/) override {}
    void endOfCommand() override {}
    void unknown(qint64 offset, QByteArrayView bytes) override
    {
        sink.take({named("unknown-command"),
                   {1, offset + 1},
                   u"no command that is known begins with the bytes %1"_s.arg(inHex(bytes)),
                   u"what is behind them would be printed"_s});
    }
    void torn(qint64 offset, QByteArrayView bytes) override
    {
        sink.take({named("unfinished-output"),
                   {1, offset + 1},
                   u"the output ends in the middle of the command %1"_s.arg(inHex(bytes)),
                   {}});
    }

private:
    static QString inHex(QByteArrayView bytes)
    {
        constexpr qsizetype shown = 16;
        return QString::fromLatin1(bytes.first(qMin(bytes.size(), shown)).toByteArray().toHex(' '));
    }

    FindingSink &sink;
};

void checkCommands(QIODevice &stream, FindingSink &sink)
{
    CommandCheck check(sink);
    CommandReader reader(check);
    readAll(stream, [&reader](const QByteArray &bytes) { reader.take(bytes); });
    reader.end();
}

} // namespace

void checkOutput(QIODevice &stream, const QByteArray &encoding, FindingSink &sink)
{
    const auto kind = paper::contentKind(stream.peek(paper::tellingLength));
    if (kind == paper::ContentKind::ReceiptPrinter)
        checkCommands(stream, sink);
    else
        checkStream(stream, encoding, sink);
}

} // namespace check
