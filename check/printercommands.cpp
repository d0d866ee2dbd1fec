#include "printercommands.h"

#include <QSet>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace check {

namespace {

bool isControl(QChar character)
{
    return character < u' ' || (character >= u'\x7f' && character < u'\xa0');
}

bool isCommanding(QChar character)
{
    return character == u'"' || isControl(character);
}

/// The quotes that belong to a sale are its first character and the one behind the name.
bool commands(const JobElement &element, const QString &row)
{
    const auto quotes = row.count(u'"');
    const auto allowed = element.isCommand && row.startsWith(u'"') ? 2 : 0;
    return quotes > allowed || std::ranges::any_of(row, isControl);
}

bool isLineBreak(QChar character)
{
    return character == u'\n' || character == u'\r';
}

const Check *checkOf(QChar character)
{
    if (character == u'"')
        return named("quote");
    if (isLineBreak(character))
        return named("line-break");
    return character == u'\x1b' ? named("escape-sequence") : named("control-character");
}

/// What the character in `text` does, and what to do about it.
std::pair<QString, QString> effectOf(QChar character, const QString &text, bool isCommand)
{
    const QString where = isCommand ? u"the command"_s : u"the line"_s;
    if (character == u'"')
        return {u"the double quote in %1 ends %2 early"_s.arg(text, where),
                u"write an apostrophe, or leave it out"_s};
    if (isLineBreak(character))
        return {
            u"the line break in %1 ends %2, and what follows it is taken for the next one"_s.arg(text, where),
            u"write a blank"_s};
    if (character == u'\x1b')
        return {u"the escape sequence in %1 is a command to the printer"_s.arg(text), u"leave it out"_s};
    const QString number = QString::number(character.unicode(), 16).toUpper().rightJustified(4, u'0');
    return {u"the control character U+%1 in %2 reaches the printer"_s.arg(number, text), u"leave it out"_s};
}

Finding command(QChar character, Place place, const QString &text, bool isCommand)
{
    const auto [message, hint] = effectOf(character, quoted(text), isCommand);
    return {checkOf(character), place, message, hint};
}

/// Tells the first character of each kind in an attribute's text. False when there is none.
bool tellCharacters(const JobElement &element, int number, FindingSink &sink)
{
    const QString text = element.attributes.value(number);
    QSet<const Check *> told;
    for (qsizetype offset = 0; offset < text.size(); ++offset) {
        if (!isCommanding(text[offset]) || told.contains(checkOf(text[offset])))
            continue;
        told += checkOf(text[offset]);
        sink.take(command(text[offset], element.tag.characterOf(number, offset), text, element.isCommand));
    }
    return !told.isEmpty();
}

} // namespace

void checkCommands(const JobElement &element, FindingSink &sink)
{
    const auto row =
        std::ranges::find_if(element.rows, [&](const QString &text) { return commands(element, text); });
    if (row == element.rows.end())
        return;
    bool isTold = false;
    for (int number = 0; number < element.attributes.count(); ++number)
        isTold = (element.isPrinted(number) && tellCharacters(element, number, sink)) || isTold;
    if (!isTold) // the printer's name stands in an element before
        sink.take(
            command(*std::ranges::find_if(*row, isCommanding), element.tag.place(), *row, element.isCommand));
}

} // namespace check
