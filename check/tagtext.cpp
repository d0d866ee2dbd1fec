#include "tagtext.h"

#include "placedsource.h"
#include "words.h"

#include <QHash>

using namespace Qt::Literals::StringLiterals;

namespace check {

namespace {

constexpr QChar replacementCharacter = QChar::ReplacementCharacter;

/// The name of the entity that a value begins with a reference to, when nothing declares it; else "".
QString undeclaredEntity(QStringView value, const QSet<QString> &declared)
{
    static const QSet<QString> predefined{u"lt"_s, u"gt"_s, u"amp"_s, u"quot"_s, u"apos"_s};
    const qsizetype length = referenceLength(value);
    const QString name = value.mid(1, qMax<qsizetype>(0, length - 2)).toString();
    const bool isKnown = name.startsWith(u'#') || predefined.contains(name) || declared.contains(name);
    return isKnown ? QString() : name;
}

/// `read` is what the reader made of the value.
void checkReferences(const WrittenAttribute &attribute, const QString &read, const QSet<QString> &declared,
                     FindingSink &sink)
{
    Place place = attribute.valuePlace;
    qsizetype placed = 0;
    for (qsizetype at = attribute.value.indexOf(u'&'); at >= 0; at = attribute.value.indexOf(u'&', at + 1)) {
        const QString name = undeclaredEntity(attribute.value.sliced(at), declared);
        if (name.isEmpty())
            continue;
        place = placeIn(attribute.value.sliced(placed), at - placed, place);
        placed = at;
        sink.take({named("undeclared-entity"), place,
                   u"\"&%1;\" is declared nowhere and vanishes: %2"_s.arg(name, quoted(read)),
                   u"write the character itself"_s});
    }
}

void checkReferences(const StartTag &tag, const QXmlAttributes &attributes, const QSet<QString> &declared,
                     FindingSink &sink)
{
    int number = 0;
    for (const WrittenAttribute &attribute : tag.attributes())
        checkReferences(attribute, attributes.value(number++), declared, sink);
}

void checkStrayBytes(const StartTag &tag, FindingSink &sink)
{
    for (const WrittenAttribute &attribute : tag.attributes()) {
        const qsizetype at = attribute.value.indexOf(replacementCharacter);
        if (at >= 0)
            sink.take(
                {named("stray-byte"), placeIn(attribute.value, at, attribute.valuePlace),
                 u"bytes that are no text in the job's encoding become U+FFFD, most often a \"?\": %1"_s.arg(
                     quoted(attribute.value)),
                 u"name the encoding in the first line, as in <?xml version=\"1.0\" "
                 "encoding=\"ISO-8859-1\"?>"_s});
    }
}

/// Whether two attributes have the same name; perhaps, when there are many.
bool mayRepeat(const QXmlAttributes &attributes)
{
    constexpr int few = 16;
    if (attributes.count() > few)
        return true;
    for (int number = 1; number < attributes.count(); ++number) {
        if (attributes.index(attributes.qName(number)) < number)
            return true;
    }
    return false;
}

void checkRepeated(const StartTag &tag, const QXmlAttributes &attributes, FindingSink &sink)
{
    QHash<QString, int> first;
    for (int number = 0; number < attributes.count(); ++number) {
        const QString name = attributes.qName(number);
        const auto known = first.constFind(name);
        if (known == first.constEnd()) {
            first.insert(name, number);
            continue;
        }
        sink.take({named("repeated-attribute"), tag.nameOf(number),
                   u"%1 is given twice: %2 and %3"_s.arg(quoted(name), quoted(attributes.value(*known)),
                                                         quoted(attributes.value(number))),
                   u"most elements print the first one only; give it once"_s});
    }
}

} // namespace

void checkTagText(const StartTag &tag, const QXmlAttributes &attributes, const QSet<QString> &entities,
                  FindingSink &sink)
{
    const QStringView text = tag.writtenText();
    if (text.contains(u'&'))
        checkReferences(tag, attributes, entities, sink);
    if (text.contains(replacementCharacter))
        checkStrayBytes(tag, sink);
    if (mayRepeat(attributes))
        checkRepeated(tag, attributes, sink);
}

} // namespace check
