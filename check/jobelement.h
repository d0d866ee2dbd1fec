#pragma once

#include "finding.h"
#include "grammar.h"
#include "rehearsal.h"
#include "starttag.h"
#include "words.h"

#include <QVarLengthArray>

namespace check {

/// An element of a job that the current print method knows, behind its printing.
class JobElement
{
public:
    /// Everything must outlive this.
    JobElement(const vocabulary::PrintMethod &printMethod, const vocabulary::Element &known,
               const QXmlAttributes &given, const StartTag &written, const Rehearsal &printer);

    const vocabulary::PrintMethod &method;
    const vocabulary::Element &vocabulary;
    const QXmlAttributes &attributes;
    const StartTag &tag;
    const DocumentSettings &settings;
    const QStringList &rows; ///< what it put on the paper
    const bool isCommand;    ///< whether the rows are commands of the cash register

    /// The row of the vocabulary that reads the attribute `number`; null when nothing does.
    const vocabulary::Attribute *readerOf(int number) const { return readers[number]; }
    /// The number of the attribute that the row of the vocabulary reads, the first of several; -1 when it is
    /// missing.
    int numberOf(const vocabulary::Attribute &attribute) const;
    /// The text of that attribute; "" when it is missing.
    QString value(const vocabulary::Attribute &attribute) const;
    /// Whether the settings let it print.
    bool isOn(const vocabulary::Attribute &attribute) const;
    /// Whether the attribute `number` is read, and the settings let it print.
    bool isPrinted(int number) const;
    /// Whether it has more attributes than are worth looking at one by one: looking for each of them costs
    /// the square of their number.
    bool isCrowded() const;

private:
    const vocabulary::Attribute *findReader(int number) const;

    QVarLengthArray<const vocabulary::Attribute *, 16> readers; ///< of each attribute
};

} // namespace check
