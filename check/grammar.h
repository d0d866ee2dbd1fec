#pragma once

#include "printmethods.h"

#include <QStringList>

#include <vector>

/// The renderer's vocabulary as those need it who only look at names: the check of a job and its schema.
namespace check {

/// The names of the print methods.
QStringList methodNames();

/// The elements that a document prints, header sections included.
std::vector<const vocabulary::Element *> elementsOf(const vocabulary::Document &document);
QStringList elementNamesOf(const vocabulary::Document &document);
/// The elements that any print method prints, `method` itself left out.
const QStringList &allElementNames();

/// Whether the attribute is told by its position, whatever it is called.
bool isPositional(const vocabulary::Attribute &attribute);
/// The attributes that the element reads by name.
QStringList attributeNamesOf(const vocabulary::Element &element);
/// The attributes that any print method reads by name from the element, and whether one takes any others.
const QStringList &attributesReadFrom(const QString &element);
bool takesAnyAttribute(const QString &element);

} // namespace check
