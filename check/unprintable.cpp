#include "unprintable.h"

#include "localeencoding.h"

#include <algorithm>
#include <optional>
#include <string>

using namespace Qt::Literals::StringLiterals;

namespace check {

namespace {

/// Characters, not halves of those outside the basic plane.
std::u32string charactersOf(const QString &text)
{
    return text.toStdU32String();
}

QString textOf(char32_t character)
{
    return QString::fromUcs4(&character, 1);
}

/// The first character of `text` that the encoding lacks; nothing when it lacks none.
std::optional<char32_t> firstLost(const LocaleEncoding &encoding, const QString &text)
{
    if (!isLossy(encoding, text))
        return std::nullopt;
    const std::u32string characters = charactersOf(text);
    const auto lost = std::ranges::find_if(
        characters, [&](char32_t character) { return isLossy(encoding, textOf(character)); });
    return lost == characters.end() ? std::nullopt : std::optional(*lost);
}

Finding loss(char32_t character, Place place)
{
    const QString number = QString::number(uint(character), 16).toUpper().rightJustified(4, u'0');
    return {named("unprintable"), place,
            u"the printer's encoding lacks %1 (U+%2), and a \"?\" is printed instead"_s.arg(
                quoted(textOf(character)), number),
            u"write it in other letters, or run in a locale of another encoding"_s};
}

/// Tells what is lost of each attribute. False when nothing is.
bool tellAttributes(const JobElement &element, const LocaleEncoding &encoding, FindingSink &sink)
{
    bool isTold = false;
    for (int number = 0; number < element.attributes.count(); ++number) {
        const QString text = element.attributes.value(number);
        const auto lost = element.isPrinted(number) ? firstLost(encoding, text) : std::nullopt;
        if (!lost)
            continue;
        isTold = true;
        sink.take(loss(*lost, element.tag.characterOf(number, text.indexOf(textOf(*lost)))));
    }
    return isTold;
}

} // namespace

bool isLossy(const LocaleEncoding &encoding, const QString &text)
{
    const auto isAscii = [](QChar character) { return character < u'\x80'; };
    return !std::ranges::all_of(text, isAscii) && encoding.encode(text).count('?') > text.count(u'?');
}

void checkEncoding(const JobElement &element, const LocaleEncoding &encoding, FindingSink &sink)
{
    const auto row =
        std::ranges::find_if(element.rows, [&](const QString &text) { return isLossy(encoding, text); });
    if (row == element.rows.end() || tellAttributes(element, encoding, sink))
        return;
    if (const auto lost = firstLost(encoding, *row)) // of a label, or of the printer's name
        sink.take(loss(*lost, element.tag.place()));
}

} // namespace check
