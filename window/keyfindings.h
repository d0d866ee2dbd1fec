#pragma once

#include "finding.h"

#include <QByteArray>
#include <QString>

#include <vector>

/// What check/ finds, with the setting that it is about.
struct KeyFinding
{
    QString key; ///< "" when it is about none
    check::Severity severity;
    QString message;
    QString hint;
    qint64 line; ///< of the text

    /// Message and hint.
    QString text() const;
};

/// The findings of a configuration in either form, without the notes on what has no effect.
std::vector<KeyFinding> findingsIn(const QByteArray &text);
