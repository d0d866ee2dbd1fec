#pragma once

#include <QByteArray>
#include <QString>

namespace check {

/// No configuration is longer, in bytes. What is, is not looked into.
inline constexpr qint64 longestConfiguration = qint64(1024) * 1024;

/// What a file seems to be that is no configuration, so that one finding says it all: "JSON"; "" for one that
/// may be meant for a configuration. `content` is its first bytes, one more than the longest one has.
QString otherFile(const QByteArray &content, bool isXml);

} // namespace check
