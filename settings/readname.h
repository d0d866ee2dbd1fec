#pragma once

#include <QByteArray>
#include <QByteArrayView>

/// The name of a block or a pair as a person reads it. The reader takes everything in front for a part of
/// the name, a remark too.
struct ReadName
{
    QByteArray word;  ///< the last one: the name that is meant
    QByteArray front; ///< what stands in front of it; "" when the two agree
    bool isDisabled;  ///< the line of the word begins as a remark: it is meant to set nothing
};

/// `bytes` as they stand in front of the ":" or "=".
ReadName readName(QByteArrayView bytes);
