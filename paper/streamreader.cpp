#include "streamreader.h"

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace paper {

namespace {

constexpr auto rowEnd = "\"@"_L1;
constexpr auto saleEnd = "R\r"_L1;

qint64 columnBehind(QStringView text)
{
    qint64 column = 1;
    for (const QChar unit : text)
        column += unit.isLowSurrogate() ? 0 : 1;
    return column;
}

QStringView withoutReturn(QStringView line)
{
    return line.endsWith(u'\r') ? line.chopped(1) : line;
}

} // namespace

StreamReader::StreamReader(const QByteArray &encoding, Painter &to, const FaultSink &faults)
    : lines([this](const StreamLine &line) { take(line); }), decoder(encoding), rows(to, faults), painter(to),
      onFault(faults)
{
}

void StreamReader::read(QByteArrayView bytes)
{
    lines.add(bytes);
}

void StreamReader::finish()
{
    lines.finish();
    if (std::exchange(isEmptyLineHeld, false))
        takeEmptyLine(lineNumber);
    const bool isUnclosed = section == Section::Paper;
    if (isUnclosed && !isCutOff) {
        onFault({lineNumber + 1, 1,
                 u"the closing J is missing: the job was not read to its end, or its output was cut off"_s,
                 true});
    }
    if (isUnclosed || (isCutOff && section == Section::Register))
        painter.remark(u"The output is cut off here."_s);
    closeStrip();
}

void StreamReader::take(const StreamLine &bytes)
{
    const TextLine line{bytes.number, decoder.decode(bytes.bytes), decoder.hadWrongBytes(), bytes.isEnded,
                        bytes.isTooLong};
    lineNumber = line.number;
    isCutOff = !line.isEnded;
    const bool isBehindEmptyLine = std::exchange(isEmptyLineHeld, false);
    if (isBehindEmptyLine && line.text == "j"_L1) {
        openStrip(Section::Paper);
    } else {
        if (isBehindEmptyLine)
            takeEmptyLine(line.number - 1);
        takeLine(line);
    }
    if (isCutOff)
        onFault({line.number, columnBehind(line.text), u"the output ends in the middle of a line"_s, true});
}

/// An empty line that is not the one in front of a "j".
void StreamReader::takeEmptyLine(qint64 number)
{
    if (!isLineOpen)
        openStrip(Section::Register);
    else if (section == Section::Register)
        takeCommand({.number = number});
    else
        takeRow({.number = number});
}

void StreamReader::takeLine(const TextLine &line)
{
    if (line.text.isEmpty()) {
        isEmptyLineHeld = true;
    } else if (line.text == "J"_L1 && !isLineOpen) {
        takeClosing(line);
    } else if (line.text == "j"_L1 && !isLineOpen) {
        onFault({line.number, 1, u"an opening j without the empty line in front of it"_s});
        openStrip(Section::Paper);
    } else {
        if (section == Section::None)
            openUnasked(line);
        section == Section::Register ? takeCommand(line) : takeRow(line);
    }
}

void StreamReader::takeRow(const TextLine &line)
{
    const bool isAllEnd = line.text == rowEnd; // of a row that began in an earlier line, or without its quote
    const bool isOpened = line.text.startsWith(u'"') && !isLineOpen && !isAllEnd;
    const bool isClosed = line.text.endsWith(rowEnd) && line.text.size() >= (isOpened ? 3 : 2);
    const bool isForeign = !isOpened && !isLineOpen && !isClosed;
    rows.begin(line);
    if (isForeign)
        rows.tell(u"neither a line of the printer nor a command"_s);
    else if (!isOpened && !isLineOpen && section == Section::Paper)
        rows.tell(u"a line without its opening quote"_s);
    rows.skipUntil(isOpened ? 1 : 0);
    rows.addUntil(line.text.size() - (isClosed ? rowEnd.size() : 0), true);
    if (isForeign)
        rows.markAll();
    endRow(line, isClosed || isForeign);
}

void StreamReader::endRow(const TextLine &line, bool isClosed)
{
    if (line.isTooLong)
        rows.tell(u"a line of more than %1 bytes; what is beyond is left out"_s.arg(LineSplitter::maxLength));
    if (line.isTooLong || !line.isEnded)
        rows.markLast();
    isLineOpen = !isClosed && !line.isTooLong && line.isEnded;
    if (isLineOpen)
        rows.addLineBreak();
    rows.finish();
}

void StreamReader::takeCommand(const TextLine &line)
{
    if (line.text.endsWith(rowEnd))
        return takeRow(line);
    const QStringView text = withoutReturn(line.text);
    if (const std::optional<RegisterCommand> command = parseCommand(text, isLineOpen))
        addCommand(line, text.size(), *command);
    else
        addBrokenCommand(line, text.size());
}

void StreamReader::addCommand(const TextLine &line, qsizetype length, const RegisterCommand &command)
{
    rows.begin(line);
    rows.addUntil(command.descriptionBegin, false);
    rows.addUntil(command.descriptionEnd, true);
    rows.addUntil(length, false);
    const bool hasReturn = line.text.size() > length;
    if (line.isEnded && hasReturn != endsWithReturn(command)) {
        rows.tell(hasReturn ? u"a carriage return where the register expects none"_s
                            : u"the carriage return at the end of the command is missing"_s);
        rows.markLast();
    }
    if (!line.isEnded)
        rows.markLast();
    rows.finish(visible(meaningOf(command)));
    sum.add(command);
    isLineOpen = false;
}

void StreamReader::addBrokenCommand(const TextLine &line, qsizetype length)
{
    // A line feed in a text of a sale breaks it in two.
    const bool isBroken = isLineOpen || line.text.startsWith(u'"');
    const bool goesOn = isBroken && !(isLineOpen && line.text.endsWith(saleEnd));
    rows.begin(line);
    if (!isBroken)
        rows.tell(u"no command of the register"_s);
    rows.addUntil(goesOn ? line.text.size() : length, false);
    if (!isBroken)
        rows.markAll();
    if (!goesOn)
        sum.addUnread();
    endRow(line, !goesOn);
}

void StreamReader::takeClosing(const TextLine &line)
{
    const bool isJobWithoutMethod = line.number == 1;
    if (section == Section::Paper)
        closeStrip();
    else if (!isJobWithoutMethod)
        onFault({line.number, 1, u"a closing J without a section to close"_s});
}

void StreamReader::openStrip(Section kind)
{
    closeStrip();
    section = kind;
    painter.beginStrip(kind == Section::Register ? StripKind::Register : StripKind::Paper);
}

/// The stream begins in the middle, or goes on behind its end.
void StreamReader::openUnasked(const TextLine &line)
{
    onFault({line.number, 1, u"a line outside of any section: the opening is missing"_s});
    openStrip(parseCommand(withoutReturn(line.text)) ? Section::Register : Section::Paper);
}

void StreamReader::closeStrip()
{
    if (section == Section::None)
        return;
    if (!sum.isEmpty())
        painter.remark(sum.text());
    painter.endStrip();
    section = Section::None;
    sum = {};
    isLineOpen = false;
}

} // namespace paper
