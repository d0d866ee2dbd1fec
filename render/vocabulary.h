#pragma once

#include "documentsettings.h"

#include <QXmlAttributes>

#include <span>

class PrinterDriver;

/// What the vocabulary of a print job is made of. Its rows stand in documents.h (elements and their
/// attributes) and printmethods.h (methods); the settings' are in documentsettings.h.
namespace vocabulary {

/// What an attribute's text is about. Most texts print as they stand, whatever their type.
enum class AttributeType {
    Text,        ///< words
    Description, ///< words in the one column that is cut where it ends
    Date,
    Time,
    Serial,    ///< the number of a document
    Quantity,  ///< how many
    UnitPrice, ///< money for one piece
    Amount,    ///< money
    Rate,      ///< a percentage
    Department ///< of the cash register, a number
};

/// What a missing attribute does to the paper.
enum class WhenMissing {
    LeavesHole,     ///< its label or its column is printed with nothing in it
    PrintsLess,     ///< its line is not printed: it may be left out
    CountsAsZero,   ///< it counts as "0"
    ChangesNothing, ///< it never reaches the paper; it is kept for other devices
    EndsJob         ///< nothing of the job is printed from there on
};

/// What makes use of the text.
enum class Reading {
    AsText,
    AsNumber ///< the renderer or the cash register takes it for a number
};

/// An attribute that its element reads.
struct Attribute
{
    /// As in the job. "" stands for the attributes that are told by their position: those behind the ones
    /// with a name, whatever they are called. Several such rows take turns.
    QLatin1StringView name;
    AttributeType type;
    WhenMissing whenMissing;
    /// What prints it on a line of its own, one of lines.h. Null when its element does, among other columns.
    void (*printLine)(PrinterDriver &driver, const QString &label, const QString &value) = nullptr;
    const char *label = nullptr; ///< of its line, to be translated; null for none
    FlagMember flag = nullptr;   ///< the setting that must be on for it to print; null when none must
    Reading reading = Reading::AsText;
};

/// The attribute, read as a number.
constexpr Attribute asNumber(Attribute attribute)
{
    attribute.reading = Reading::AsNumber;
    return attribute;
}

/// An element that prints something.
///
/// `print` takes everything from the attributes; a missing one reads as "". Names are compared exactly, case
/// included, and an element that no table names prints nothing.
struct Element
{
    QLatin1StringView name;
    void (*print)(PrinterDriver &driver, const QXmlAttributes &attributes);
    std::span<const Attribute> attributes = {};
    std::span<const CountMember> counts = {}; ///< the settings that it consults beside the flags
    FlagMember flag = nullptr; ///< the setting that must be on for it to print at all; null when none must
    QLatin1StringView titles = {}; ///< the element of the document that it prints the column titles of
};

/// What a print method prints.
struct Document
{
    bool hasSections; ///< whether the header sections print, too
    std::span<const Element> elements;
};

/// The element of that name; null when there is none.
const Element *findElement(std::span<const Element> elements, const QString &name);
/// The same, header sections included where the document prints them.
const Element *findElement(const Document &document, const QString &name);

/// Whether the setting makes a difference to what the element prints.
bool consults(const Element &element, const DocumentSetting &setting);
bool consults(const Document &document, const DocumentSetting &setting);

} // namespace vocabulary
