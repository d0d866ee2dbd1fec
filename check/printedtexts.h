#pragma once

#include "jobelement.h"

#include <QHash>

namespace check {

/// Follows the texts of one document to the paper, and finds those that do not arrive as they are.
class PrintedTexts
{
public:
    void check(const JobElement &element, FindingSink &sink);

private:
    void checkText(const JobElement &element, int number, const vocabulary::Attribute &reader,
                   FindingSink &sink);
    void checkDescription(const JobElement &element, int number, FindingSink &sink);
    bool isTwin(const QString &text, QStringView printed);

    /// What was printed for a description, and which one that was, as hashes.
    QHash<size_t, size_t> descriptions;
};

} // namespace check
