#pragma once

#include "tokenizer.h"

#include <QByteArray>
#include <QString>

#include <vector>

/// A line that a person takes for a setting, and that sets nothing.
struct DeadLine
{
    libconfig::Position at; ///< of the setting's name in it
    QString why;            ///< and what would mend it
};

/// The lines of a file in the text form that look as if they set `key` and do not, in file order: text in
/// front, such as a remark, is read as part of the key or of the name of a block around it, or the line is
/// read as part of the value above, whose ";" is missing. A line that begins with "#" or "//" is meant to
/// set nothing, and is no dead line.
std::vector<DeadLine> deadLines(const QByteArray &content, const QString &key);
