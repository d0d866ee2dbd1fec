#pragma once

#include "vocabulary.h"

/// Prints the attributes that have a line of their own, in the order of the rows and as far as their flags
/// are on; a missing attribute reads as "".
void printLines(PrinterDriver &driver, std::span<const vocabulary::Attribute> rows,
                const QXmlAttributes &attributes);

/// The forms of such a line. The device replaces words in each text that it is given, so whether label and
/// value reach it as one text or as two is part of the form.
namespace line {

/// Label and value, a blank in front of each.
void labelled(PrinterDriver &driver, const QString &label, const QString &value);
/// Label and value as one text, behind a blank.
void indentedSentence(PrinterDriver &driver, const QString &label, const QString &value);
/// Label and value as one text, at the margin.
void sentence(PrinterDriver &driver, const QString &label, const QString &value);
/// Label and value as two texts, at the margin.
void pair(PrinterDriver &driver, const QString &label, const QString &value);
/// The value behind a blank.
void plain(PrinterDriver &driver, const QString &label, const QString &value);
/// A line for each part between commas. An empty part ends the address, even in the middle.
void address(PrinterDriver &driver, const QString &label, const QString &value);
/// The label, dots up to 15 characters short of the paper, the value.
void dotted(PrinterDriver &driver, const QString &label, const QString &value);
/// The same, and the line goes on with a hyphen and the value of the next row, a `rangeEnd`.
void rangeStart(PrinterDriver &driver, const QString &label, const QString &value);
void rangeEnd(PrinterDriver &driver, const QString &label, const QString &value);
/// The label in the description column and the value in the total column.
void total(PrinterDriver &driver, const QString &label, const QString &value);

} // namespace line
