#pragma once

#include "checks.h"

#include <QByteArrayView>

namespace check {

/// How many bytes of a file tell what it is.
inline constexpr qsizetype bytesThatTell = 4096;

/// What a file is, told by its first bytes. XML is a job, unless its root element is "palvestrin": that is a
/// configuration, as is everything else that no printer takes for an output.
///
/// So a job may pass itself off as a configuration. Who checks jobs of strangers says that they are jobs.
Subject subjectOf(QByteArrayView beginning);

} // namespace check
