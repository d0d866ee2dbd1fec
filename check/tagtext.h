#pragma once

#include "starttag.h"

#include <QSet>
#include <QXmlAttributes>

namespace check {

/// What of a start tag is no XML, and what will print instead. `attributes` are those that the reader made of
/// it; `entities` are declared.
void checkTagText(const StartTag &tag, const QXmlAttributes &attributes, const QSet<QString> &entities,
                  FindingSink &sink);

} // namespace check
