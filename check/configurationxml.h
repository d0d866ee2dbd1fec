#pragma once

#include "finding.h"

#include <QByteArray>

namespace check {

class SettingsInForce;

/// The same for the XML form. The places are those of the elements.
void checkConfigurationXml(const QByteArray &content, SettingsInForce &settings, FindingSink &sink);

} // namespace check
