#include "columnroom.h"

#include "companyprinterdriver.h"
#include "printmethods.h"
#include "pvconfiguration.h"

#include <algorithm>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace check {

namespace {

/// No label and no title has it, so it is counted in a row wherever the description stands.
constexpr QChar filling(0xe000);
/// Wider columns are told as values, and no sum of them is of use.
constexpr int widestColumn = 999;
/// Wider than all columns together, so that what they take can be told from what is left.
constexpr int widePaper = 5 * widestColumn;

/// A driver wants one, and no row asks it for anything.
PVConfiguration &noConfiguration()
{
    static PVConfiguration none{QByteArray(), QString()};
    return none;
}

/// Prints single rows under settings of its own, and counts what is left of a description.
class RowProbe : public CompanyPrinterDriver
{
public:
    explicit RowProbe(const DocumentSettings &settings) : CompanyPrinterDriver(noConfiguration())
    {
        static_cast<DocumentSettings &>(*this) = settings;
    }

    /// How many characters of a description an element prints that is longer than any paper.
    int printedOfDescription(const vocabulary::Element &element)
    {
        const QString description(widePaper, filling);
        QXmlAttributes attributes;
        for (const vocabulary::Attribute &attribute : element.attributes) {
            const bool isCut = attribute.type == vocabulary::AttributeType::Description;
            attributes.append(attribute.name, QString(), attribute.name, isCut ? description : QString());
        }
        printed = 0;
        element.print(*this, attributes);
        return printed;
    }

protected:
    void write(const QString &text) override { printed += int(text.count(filling)); }

private:
    int printed = 0;
};

bool hasCutColumn(const vocabulary::Element &element)
{
    const bool isPaper =
        std::ranges::find(element.counts, &DocumentSettings::paperWidth) != element.counts.end();
    return isPaper && std::ranges::any_of(element.attributes, [](const vocabulary::Attribute &attribute) {
               return attribute.type == vocabulary::AttributeType::Description;
           });
}

ColumnRoom roomOf(const vocabulary::PrintMethod &method, const vocabulary::Element &element,
                  DocumentSettings settings)
{
    ColumnRoom room{method.title, element.counts, settings.paperWidth};
    int bySettings = 0;
    for (const vocabulary::CountMember member : element.counts) {
        if (member != &DocumentSettings::paperWidth)
            bySettings += settings.*member;
    }
    room.isUncut = RowProbe(settings).printedOfDescription(element) == widePaper;
    settings.paperWidth = widePaper;
    room.taken = widePaper - RowProbe(settings).printedOfDescription(element);
    room.between = room.taken - bySettings;
    room.description = std::max(0, room.paper - room.taken);
    return room;
}

bool isSensible(const DocumentSettings &settings)
{
    const auto inReason = [](int width) { return width >= 0 && width <= widestColumn; };
    return inReason(settings.quantityFieldWidth) && inReason(settings.priceFieldWidth) &&
           inReason(settings.totalPriceFieldWidth) && inReason(settings.paperWidth);
}

/// The rows of all documents of a kind that have a column of what is left.
std::vector<ColumnRoom> roomsOf(const vocabulary::DocumentKind &kind, const DocumentSettings &settings)
{
    std::vector<ColumnRoom> rooms;
    for (const vocabulary::PrintMethod &method : vocabulary::printMethods) {
        if (method.kind != kind.name)
            continue;
        for (const vocabulary::Element &element : method.document.elements) {
            if (hasCutColumn(element))
                rooms.push_back(roomOf(method, element, settings));
        }
    }
    return rooms;
}

} // namespace

std::optional<ColumnRoom> leastColumnRoom(const vocabulary::DocumentKind &kind, const DocumentSettings &given)
{
    DocumentSettings settings = given;
    if (settings.paperWidth == 0)
        settings.paperWidth = CompanyPrinterDriver::lineWidth;
    if (!isSensible(settings))
        return {};
    const std::vector<ColumnRoom> rooms = roomsOf(kind, settings);
    const auto least =
        std::ranges::min_element(rooms, {}, [](const ColumnRoom &room) { return room.paper - room.taken; });
    return least == rooms.end() ? std::optional<ColumnRoom>() : *least;
}

} // namespace check
