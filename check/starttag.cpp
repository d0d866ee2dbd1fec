#include "starttag.h"

#include "placedsource.h"

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace check {

namespace {

/// Goes through the text of a tag once, from left to right.
class TagScanner
{
public:
    TagScanner(QStringView tag, Place begin) : text(tag), at(begin) {}

    /// What stands up to the first character that `isEnd`, or to the end.
    template <typename IsEnd>
    QStringView take(IsEnd isEnd)
    {
        const auto end = std::find_if(text.begin() + offset, text.end(), isEnd);
        return skip(end - text.begin() - offset);
    }
    QStringView skip(qsizetype count)
    {
        const QStringView taken = text.mid(offset, count);
        at = placeIn(taken, taken.size(), at);
        offset += taken.size();
        return taken;
    }
    Place place() const { return at; }
    QChar character() const { return offset < text.size() ? text[offset] : QChar(); }
    bool isAtEnd() const { return offset >= text.size(); }

private:
    QStringView text;
    qsizetype offset = 0;
    Place at;
};

bool isBlank(QChar character)
{
    return character == u' ' || character == u'\t' || character == u'\n' || character == u'\r';
}

bool isNoBlank(QChar character)
{
    return !isBlank(character);
}

bool endsName(QChar character)
{
    return isBlank(character) || character == u'=' || character == u'/' || character == u'>';
}

WrittenAttribute takeAttribute(TagScanner &scanner)
{
    WrittenAttribute attribute;
    attribute.namePlace = scanner.place();
    attribute.name = scanner.take(endsName);
    scanner.take([](QChar character) { return character == u'"' || character == u'\''; });
    const QChar quote = scanner.character();
    scanner.skip(1);
    attribute.valuePlace = scanner.place();
    attribute.value = scanner.take([quote](QChar character) { return character == quote; });
    scanner.skip(1);
    return attribute;
}

bool isNamespace(QStringView attribute)
{
    return attribute == "xmlns"_L1 || attribute.startsWith("xmlns:"_L1);
}

/// How many characters a reference stands for, as far as that can be told here.
qsizetype expandedLength(QStringView reference)
{
    static const QStringList single{u"&lt;"_s, u"&gt;"_s, u"&amp;"_s, u"&quot;"_s, u"&apos;"_s};
    return reference.startsWith("&#"_L1) || single.contains(reference) ? 1 : 0;
}

} // namespace

qsizetype referenceLength(QStringView value)
{
    return value.startsWith(u'&') ? value.indexOf(u';') + 1 : 0;
}

const std::vector<WrittenAttribute> &StartTag::attributes() const
{
    if (std::exchange(isRead, true))
        return list;
    TagScanner scanner(text, begin);
    scanner.take(endsName); // "<" and the element's name
    for (scanner.take(isNoBlank); !scanner.isAtEnd() && !endsName(scanner.character());
         scanner.take(isNoBlank)) {
        const WrittenAttribute attribute = takeAttribute(scanner);
        if (!isNamespace(attribute.name))
            list.push_back(attribute);
    }
    return list;
}

/// Null when the text has no such attribute.
const WrittenAttribute *StartTag::find(int number) const
{
    return size_t(number) < attributes().size() ? &list[number] : nullptr;
}

Place StartTag::nameOf(int number) const
{
    const WrittenAttribute *attribute = find(number);
    return attribute ? attribute->namePlace : begin;
}

Place StartTag::valueOf(int number) const
{
    return characterOf(number, 0);
}

Place StartTag::characterOf(int number, qsizetype offset) const
{
    const WrittenAttribute *attribute = find(number);
    if (!attribute)
        return begin;
    QStringView rest = attribute->value;
    while (offset > 0 && !rest.isEmpty()) {
        const qsizetype reference = referenceLength(rest);
        offset -= reference > 0 ? expandedLength(rest.first(reference)) : 1;
        rest = rest.sliced(qMax<qsizetype>(1, reference));
    }
    return placeIn(attribute->value, attribute->value.size() - rest.size(), attribute->valuePlace);
}

} // namespace check
