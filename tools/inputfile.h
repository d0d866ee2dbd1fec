#pragma once

#include "filename.h"

#include <QFile>

#include <memory>

/// Whether a FILE of the command line is standard input: "-".
bool isStandardInput(const FileName &name);

/// A FILE of the command line, open for reading. Throws a CommandError (Unreadable).
std::unique_ptr<QFile> openInput(const FileName &name);
