#pragma once

#include "finding.h"
#include "jobreader.h"

#include <QVarLengthArray>

namespace check {

/// The text of a job as the renderer reads it, with the place of every character: the reader itself tells no
/// place of an attribute.
class PlacedSource : public JobSource
{
public:
    using JobSource::JobSource;

    QChar next() override;

    /// The place of the character that was read last, and of the one behind it.
    Place place() const { return last; }
    Place nextPlace() const { return upcoming; }
    /// The start tag that is being read, or was read last, from its "<" on.
    QStringView tag() const { return {text.constData(), text.size()}; }
    /// Where the last markup began.
    Place tagPlace() const { return tagBegin; }
    /// Whether a start tag is being read, and no text.
    bool isInTag() const { return isCollecting; }
    /// The start tag is read.
    void leaveTag() { isCollecting = false; }

private:
    void count(QChar character);
    void beginMarkup();
    void collect(QChar character);

    bool isNested = false;
    bool isCollecting = false;
    Place last;
    Place upcoming;
    Place tagBegin;
    QVarLengthArray<QChar, 512> text; ///< grows by a character faster than a string does
};

/// The place of the character at `offset` of a text that begins at `begin`.
Place placeIn(QStringView text, qsizetype offset, Place begin);

} // namespace check
