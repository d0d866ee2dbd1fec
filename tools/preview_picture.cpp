#include "childprogram.h"
#include "companion.h"
#include "faultlist.h"
#include "outputreading.h"
#include "paperwidths.h"
#include "preview.h"
#include "stripwidths.h"

#include <QTemporaryFile>

#include <iostream>

using namespace Qt::Literals::StringLiterals;

namespace {

/// All outputs as one stream, and how wide their strips are.
struct PictureContent
{
    QTemporaryFile stream;
    std::vector<int> widths;
    bool isForReceiptPrinter = false;
};

/// Adds a finished output, which may end anywhere, so that the next one begins a line.
void append(QIODevice &stream, QIODevice &output, bool hasLines)
{
    char last = '\n';
    constexpr qint64 pieceSize = 65536;
    for (QByteArray piece = output.read(pieceSize); !piece.isEmpty(); piece = output.read(pieceSize)) {
        if (stream.write(piece) != piece.size())
            throw CommandError(ExitCode::WriteFailed, u"no room for a copy: "_s + stream.errorString());
        last = piece.back();
    }
    if (hasLines && last != '\n')
        stream.putChar('\n');
}

void collect(const Preview &preview, PictureContent &content, FaultList &faults)
{
    const PaperWidths configured(preview.rendering.configuration);
    if (!content.stream.open())
        throw CommandError(ExitCode::WriteFailed, u"no place for a copy: "_s + content.stream.errorString());
    for (const FileName &file : preview.files) {
        FinishedOutput output(file, preview.rendering);
        if (&file == &preview.files.first())
            content.isForReceiptPrinter = output.isForReceiptPrinter();
        if (content.isForReceiptPrinter != output.isForReceiptPrinter())
            throw CommandError(ExitCode::WrongUsage, file,
                               u"this is for another kind of printer; draw a picture of it alone"_s);
        paper::StripWidths ruled(configured.widest());
        readOutput(output, preview, ruled,
                   [&](const paper::Fault &fault) { faults.add(output.name(), fault); });
        std::vector<int> widths = output.job() ? configured.ofJob(*output.job()) : ruled.widths();
        widths.resize(ruled.widths().size(), paper::StripWidths::least);
        content.widths.insert(content.widths.end(), widths.begin(), widths.end());
        append(content.stream, output.stream(), !content.isForReceiptPrinter);
    }
    content.stream.seek(0);
}

/// "40,32,40"; the widest alone when there are more than a command line should hold.
QByteArray columnsArgument(const std::vector<int> &widths)
{
    constexpr std::size_t most = 1000;
    if (widths.size() > most)
        return QByteArray::number(*std::ranges::max_element(widths));
    QByteArrayList numbers;
    for (const int width : widths)
        numbers += QByteArray::number(width);
    return numbers.join(',');
}

QByteArrayList argumentsFor(const Preview &preview, const PictureContent &content)
{
    QByteArrayList arguments{"--format",   preview.format->name.data(),
                             "--output",   preview.isForStandardOutput() ? "-" : preview.output.bytes(),
                             "--encoding", preview.encoding(),
                             "--title",    preview.files.first().bytes()};
    if (content.isForReceiptPrinter)
        arguments += {"--escpos", preview.profile->name.data()};
    if (preview.columns > 0)
        arguments += {"--columns", QByteArray::number(preview.columns)};
    else if (content.isForReceiptPrinter)
        arguments += {"--columns", QByteArray::number(preview.profile->columns)};
    else if (!content.widths.empty())
        arguments += {"--columns", columnsArgument(content.widths)};
    if (!preview.scale.isEmpty())
        arguments += {"--scale", preview.scale.toUtf8()};
    if (preview.marks)
        arguments += "--marks";
    return arguments;
}

/// What the program says, but for faults of the stream: those are told already, with the files that have
/// them.
void passOn(const QByteArray &line)
{
    if (!line.startsWith("standard input:"))
        std::cerr.write(line.constData(), line.size()) << '\n';
}

} // namespace

ExitCode drawPicture(const Preview &preview, FaultList &faults)
{
    ChildProgram draw{companionPath({u"palvestrin-draw"_s, u"palvestrin-desktop"_s}), {}};
    PictureContent content;
    collect(preview, content, faults);
    draw.arguments = argumentsFor(preview, content);
    draw.input = content.stream.handle();
    draw.isOutputHeard = false;
    const auto code = static_cast<ExitCode>(runChild(draw, passOn));
    return code == ExitCode::Broken ? ExitCode::Done : code; // `faults` has the reason
}
