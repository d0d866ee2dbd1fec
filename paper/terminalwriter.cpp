#include "terminalwriter.h"

#include "paper.h"
#include "textpainter.h"

#include <QTextCodec>

namespace paper {

namespace {

QTextCodec *codecCalled(const QByteArray &name)
{
    QTextCodec *codec = QTextCodec::codecForName(name);
    return codec ? codec : QTextCodec::codecForName("US-ASCII");
}

} // namespace

TerminalWriter::TerminalWriter(std::ostream &output, const Screen &screen)
    : out(output), codec(codecCalled(screen.encoding)), isUtf8(codec->name() == "UTF-8"),
      hasColors(screen.hasColors)
{
}

void TerminalWriter::put(char32_t character, int columns)
{
    if (isUtf8 || character < 0x80)
        return appendUtf8(line, character);
    const QString text = QStringView(QChar::fromUcs4(character)).toString();
    if (codec->canEncode(text))
        line += codec->fromUnicode(text).toStdString();
    else
        line.append(columns, '?');
}

void TerminalWriter::put(QStringView text)
{
    for (const uint character : text.toUcs4())
        put(character, columnsOf(character));
}

void TerminalWriter::fill(char32_t character, int count)
{
    for (; count > 0; --count)
        put(character);
}

void TerminalWriter::look(std::string_view parameters)
{
    if (!hasColors || parameters == current)
        return;
    current = parameters;
    line.append("\033[0").append(parameters) += 'm';
}

void TerminalWriter::endLine()
{
    look("");
    line += '\n';
    out.write(line.data(), static_cast<std::streamsize>(line.size()));
    line.clear();
}

} // namespace paper
