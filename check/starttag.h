#pragma once

#include "finding.h"

#include <QString>

#include <vector>

namespace check {

/// An attribute as it is written in a job.
struct WrittenAttribute
{
    QStringView name;
    QStringView value; ///< between its quotes, references and all
    Place namePlace;
    Place valuePlace; ///< of the first character behind the quote
};

/// A start tag as it is written in a job, for the places in it. It is looked at when it is asked: most tags
/// never are.
class StartTag
{
public:
    /// `written` begins with "<" at `place`, ends anywhere behind the last attribute, and must outlive this.
    StartTag(QStringView written, Place place) : text(written), begin(place) {}

    Place place() const { return begin; }
    QStringView writtenText() const { return text; }
    /// The attributes in their order, without the declarations of namespaces: as the reader counts them.
    const std::vector<WrittenAttribute> &attributes() const;

    /// The place of the name or the value of the attribute `number`, counted from 0. The tag's own place when
    /// the text has no such attribute: an element that an entity stands for is written elsewhere.
    Place nameOf(int number) const;
    Place valueOf(int number) const;
    /// The place of the character at `offset` of that value, references replaced.
    Place characterOf(int number, qsizetype offset) const;

private:
    const WrittenAttribute *find(int number) const;

    const QStringView text;
    const Place begin;
    mutable std::vector<WrittenAttribute> list;
    mutable bool isRead = false; ///< not before the first question
};

/// A reference in a value: the length of "&...;", 0 when none begins there.
qsizetype referenceLength(QStringView value);

} // namespace check
