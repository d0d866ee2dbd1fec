#pragma once

#include "jobelement.h"

/// What of a job does not fit the vocabulary.
namespace check {

/// A `method` element: whether there is the method that it names, and what it says besides.
void checkMethod(const StartTag &tag, const QXmlAttributes &attributes, FindingSink &sink);

/// An element in front of the first method.
void checkBeforeMethod(const QString &name, Place place, FindingSink &sink);

/// An element that the print method does not print.
void checkIgnoredElement(const QString &name, const vocabulary::PrintMethod &method, Place place,
                         FindingSink &sink);

/// Attributes that nothing reads, those that a setting switches off, and those that are missing.
void checkAttributes(const JobElement &element, FindingSink &sink);

} // namespace check
