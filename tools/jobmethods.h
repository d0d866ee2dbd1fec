#pragma once

#include <QIODevice>
#include <QString>

#include <functional>

/// Hands on the names of the `method` elements of a job, in their order. It looks for nothing else: what is
/// no well-formed XML stops the renderer somewhere, and the names behind that place name nothing.
void forEachMethod(QIODevice &job, const std::function<void(const QString &)> &take);
