#pragma once

#include <QByteArray>

/// The text form of an output of `palvestrin-print` in UTF-8, by a second reading that shares nothing with
/// the reader in paper/: it looks for what each print operation wrote, as a whole. Ends the test program for
/// a stream that no job makes.
QByteArray paperText(const QByteArray &stream);
