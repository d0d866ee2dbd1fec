#pragma once

#include "jobelement.h"

#include <QSet>

namespace check {

/// What an element is to the order of a document.
enum class Part {
    Head,    ///< a header section, or the customer
    Row,     ///< an item
    Total,   ///< sums up the rows
    Anywhere ///< has no place of its own
};
Part partOf(const vocabulary::Document &document, const vocabulary::Element &element);

/// Follows the elements of one document, and finds those that print where they are not meant to.
class DocumentOrder
{
public:
    void check(const JobElement &element, Part part, FindingSink &sink);

private:
    void checkPart(const JobElement &element, Part part, FindingSink &sink) const;
    void checkTitles(const JobElement &element, FindingSink &sink) const;

    bool hasRow = false;
    bool hasTotal = false;
    QSet<const vocabulary::Element *> printed; ///< the elements so far
};

} // namespace check
