#include "structure.h"

#include "settingnames.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace check {

namespace {

using vocabulary::WhenMissing;

QString printedBy(const vocabulary::Document &document)
{
    QStringList names;
    for (const vocabulary::Element &element : document.elements)
        names += element.name;
    return "it prints "_L1 + names.join(", "_L1) +
           (document.hasSections ? " and the header sections"_L1 : QLatin1StringView());
}

Finding unknownMethod(const StartTag &tag, const QXmlAttributes &attributes)
{
    const QString all = "there are "_L1 + methodNames().join(", "_L1);
    const int number = attributes.index("name"_L1);
    if (number < 0)
        return {named("unknown-method"), tag.place(), u"the method has no name, and the job ends here"_s,
                all};
    const QString name = attributes.value(number);
    return {named("unknown-method"), tag.valueOf(number),
            u"there is no print method %1, and the job ends here"_s.arg(quoted(name)),
            didYouMean(name, methodNames(), all)};
}

Finding unknownAttribute(const QString &name, const vocabulary::Element &element, Place place)
{
    const QStringList known = attributeNamesOf(element);
    const QString taken = known.isEmpty() ? u"it takes none"_s : "it takes "_L1 + known.join(", "_L1);
    return {named("unknown-attribute"), place,
            u"%1 is no attribute of \"%2\""_s.arg(quoted(name), element.name),
            didYouMean(name, known, taken)};
}

/// An attribute without a name of its own that stands where those with one are expected.
Finding inFrontOfPositional(const JobElement &element, int number)
{
    const QString first = attributeNamesOf(element.vocabulary).join(" and "_L1);
    return {named("not-printed"), element.tag.nameOf(number),
            u"\"%1\" of \"%2\" is not on the paper"_s.arg(element.attributes.qName(number),
                                                          element.vocabulary.name),
            u"put it behind %1: the others are told by their position"_s.arg(first)};
}

void checkUnread(const JobElement &element, int number, FindingSink &sink)
{
    const QString name = element.attributes.qName(number);
    const Place place = element.tag.nameOf(number);
    if (takesAnyAttribute(element.vocabulary.name))
        return sink.take(inFrontOfPositional(element, number));
    if (!attributesReadFrom(element.vocabulary.name).contains(name))
        return sink.take(unknownAttribute(name, element.vocabulary, place));
    const QString message =
        u"%1 does not print \"%2\" of \"%3\""_s.arg(element.method.name, name, element.vocabulary.name);
    sink.take({named("unused-attribute"), place, message, {}});
}

void checkSwitchedOff(const JobElement &element, int number, const vocabulary::Attribute &attribute,
                      FindingSink &sink)
{
    if (element.isOn(attribute) || !sink.wants(Severity::Note))
        return;
    const vocabulary::FlagMember whole = element.vocabulary.flag;
    const bool isElementOff = whole && !(element.settings.*whole);
    const vocabulary::DocumentKind *kind = vocabulary::findDocumentKind(QString(element.method.kind));
    const QString setting = kind->path() + nameOf(isElementOff ? whole : attribute.flag);
    sink.take(
        {named("switched-off"), element.tag.nameOf(number),
         u"\"%1\" of \"%2\" is not printed"_s.arg(element.attributes.qName(number), element.vocabulary.name),
         u"%1 = \"true\" prints it"_s.arg(setting)});
}

/// Whether an attribute that nothing reads is probably meant to be this one.
bool isMisspelled(const JobElement &element, const vocabulary::Attribute &attribute)
{
    for (int number = 0; number < element.attributes.count(); ++number) {
        const QString name = element.attributes.qName(number);
        if (!element.readerOf(number) &&
            meantBy(name, attributeNamesOf(element.vocabulary)) == attribute.name)
            return true;
    }
    return false;
}

bool isMissing(const JobElement &element, const vocabulary::Attribute &attribute)
{
    const bool matters = attribute.whenMissing == WhenMissing::LeavesHole ||
                         attribute.whenMissing == WhenMissing::CountsAsZero;
    return matters && !isPositional(attribute) && element.isOn(attribute) &&
           element.numberOf(attribute) < 0 && (element.isCrowded() || !isMisspelled(element, attribute));
}

/// What the paper lacks without the attribute.
QString lackOf(const JobElement &element, const vocabulary::Attribute &attribute)
{
    if (attribute.whenMissing == WhenMissing::CountsAsZero)
        return u"it counts as 0"_s;
    return element.isCommand ? u"its place in the command stays empty"_s : u"its place stays empty"_s;
}

void checkMissing(const JobElement &element, FindingSink &sink)
{
    if (element.rows.isEmpty())
        return; // what prints nothing lacks nothing
    for (const vocabulary::Attribute &attribute : element.vocabulary.attributes) {
        if (!isMissing(element, attribute))
            continue;
        sink.take({named("missing-attribute"), element.tag.place(),
                   u"\"%1\" has no \"%2\", and %3"_s.arg(element.vocabulary.name, attribute.name,
                                                         lackOf(element, attribute)),
                   u"add %1=\"...\", or %1=\"\" if it is meant to be empty"_s.arg(attribute.name)});
    }
}

/// Attributes with a name that stand among those that are told by their position, of which `first` is the
/// first.
void checkNamedAmongPositional(const JobElement &element, qsizetype first, FindingSink &sink)
{
    for (const vocabulary::Attribute &attribute : element.vocabulary.attributes.first(first)) {
        const int number = element.numberOf(attribute);
        if (number >= first)
            sink.take({named("wrong-order"), element.tag.nameOf(number),
                       u"\"%1\" is taken for a part of the table"_s.arg(attribute.name),
                       u"put it in front of the attributes that are told by their position"_s});
    }
}

/// Attributes that are told by their position come in groups, and behind those with a name.
void checkPositions(const JobElement &element, FindingSink &sink)
{
    const auto &known = element.vocabulary.attributes;
    const auto groupSize = std::ranges::count_if(known, isPositional);
    if (groupSize < 2)
        return;
    const auto first = std::ssize(known) - groupSize;
    checkNamedAmongPositional(element, first, sink);
    const auto tableSize = element.attributes.count() - first;
    if (tableSize > 0 && tableSize % groupSize != 0)
        sink.take({named("missing-attribute"), element.tag.nameOf(element.attributes.count() - 1),
                   u"the last row of the table is not complete"_s,
                   u"give %1 attributes for each row"_s.arg(groupSize)});
}

} // namespace

void checkMethod(const StartTag &tag, const QXmlAttributes &attributes, FindingSink &sink)
{
    for (int number = 0; number < attributes.count(); ++number) {
        const QString name = attributes.qName(number);
        if (!attributeNamesOf(vocabulary::methodElement).contains(name))
            sink.take(unknownAttribute(name, vocabulary::methodElement, tag.nameOf(number)));
    }
    const vocabulary::PrintMethod *method = vocabulary::findPrintMethod(attributes.value("name"_L1));
    if (!method)
        sink.take(unknownMethod(tag, attributes));
    else if (method->document.elements.empty())
        sink.take({named("empty-document"), tag.place(),
                   u"%1 prints an empty document, whatever follows"_s.arg(method->name), QString()});
}

void checkBeforeMethod(const QString &name, Place place, FindingSink &sink)
{
    sink.take({named("before-method"), place,
               u"%1 stands in front of the first method, and is not printed"_s.arg(quoted(name)),
               didYouMean(name, {vocabulary::methodElement.name}, u"put it behind"_s)});
}

void checkIgnoredElement(const QString &name, const vocabulary::PrintMethod &method, Place place,
                         FindingSink &sink)
{
    const vocabulary::Document &document = method.document;
    if (document.elements.empty())
        return; // told where the method is chosen
    if (allElementNames().contains(name))
        return sink.take({named("ignored-element"), place, u"%1 prints no \"%2\""_s.arg(method.name, name),
                          printedBy(document)});
    const QStringList others = QStringList(allElementNames()) << vocabulary::methodElement.name;
    sink.take({named("unknown-element"), place, u"%1 is no element of a job"_s.arg(quoted(name)),
               didYouMean(name, elementNamesOf(document), didYouMean(name, others))});
}

void checkAttributes(const JobElement &element, FindingSink &sink)
{
    for (int number = 0; number < element.attributes.count(); ++number) {
        if (const vocabulary::Attribute *reader = element.readerOf(number))
            checkSwitchedOff(element, number, *reader, sink);
        else
            checkUnread(element, number, sink);
    }
    checkMissing(element, sink);
    checkPositions(element, sink);
}

} // namespace check
