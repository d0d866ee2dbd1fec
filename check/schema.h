#pragma once

#include <QByteArray>

namespace check {

/// The vocabulary of a print job as a RELAX NG schema, for editors: each method with the elements that it
/// prints, each element with the attributes that any method reads from it.
///
/// A job is a flat list to the renderer, so an element may also stand inside the one before it. The schema
/// knows the order of nothing but the methods, and no text of an attribute but the methods' names.
QByteArray printJobSchema();

} // namespace check
