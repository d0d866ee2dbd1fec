#include "jobelement.h"

#include <algorithm>

namespace check {

namespace {

constexpr int mostAttributes = 300;

} // namespace

JobElement::JobElement(const vocabulary::PrintMethod &printMethod, const vocabulary::Element &known,
                       const QXmlAttributes &given, const StartTag &written, const Rehearsal &printer)
    : method(printMethod), vocabulary(known), attributes(given), tag(written), settings(printer.settings()),
      rows(printer.rows()), isCommand(printer.printsCommands())
{
    for (int number = 0; number < given.count(); ++number)
        readers.append(findReader(number));
}

const vocabulary::Attribute *JobElement::findReader(int number) const
{
    const auto &known = vocabulary.attributes;
    const QString name = attributes.qName(number);
    const auto named = std::ranges::find_if(
        known, [&](const vocabulary::Attribute &attribute) { return name == attribute.name; });
    if (named != known.end())
        return &*named;
    const auto first = std::ranges::find_if(known, isPositional);
    const auto before = first - known.begin(); // positional ones come last, and take turns
    const bool isRead = first != known.end() && number >= before;
    return isRead ? &known[before + (number - before) % (std::ssize(known) - before)] : nullptr;
}

bool JobElement::isOn(const vocabulary::Attribute &attribute) const
{
    const auto isSet = [this](vocabulary::FlagMember flag) { return !flag || settings.*flag; };
    return isSet(vocabulary.flag) && isSet(attribute.flag);
}

bool JobElement::isPrinted(int number) const
{
    const vocabulary::Attribute *reader = readerOf(number);
    return reader && isOn(*reader);
}

int JobElement::numberOf(const vocabulary::Attribute &attribute) const
{
    const auto found = std::ranges::find(readers, &attribute);
    return found == readers.end() ? -1 : int(found - readers.begin());
}

QString JobElement::value(const vocabulary::Attribute &attribute) const
{
    const int number = numberOf(attribute);
    return number < 0 ? QString() : attributes.value(number);
}

bool JobElement::isCrowded() const
{
    return attributes.count() > mostAttributes;
}

} // namespace check
