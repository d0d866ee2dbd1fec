#pragma once

#include "finding.h"

#include <QByteArray>

namespace check {

class SettingsInForce;

/// Tells what of a configuration in the text form its reader takes otherwise than it seems meant; the values
/// that it finds go to `settings`.
void checkConfigurationText(const QByteArray &content, SettingsInForce &settings, FindingSink &sink);

} // namespace check
