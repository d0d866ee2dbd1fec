#pragma once

#include "settingsinforce.h"

namespace check {

/// Tells when one value makes no sense for its key, and when nothing looks at it.
void checkSettingValue(const knownkeys::Key &key, const StoredValue &value, FindingSink &sink);

} // namespace check
