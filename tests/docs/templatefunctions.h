#pragma once

#include "templatetext.h"

namespace paper_template {

/// A function that the page has a row for; the test program ends when there is no such one.
Value callFunction(const QString &name, const Arguments &arguments, const Scope &scope);

} // namespace paper_template
