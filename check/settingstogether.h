#pragma once

namespace check {

class FindingSink;
class SettingsInForce;
class Surroundings;

/// What is wrong with the values that count when they are seen together: columns that do not fit the paper,
/// settings that need another one, and, unless `surroundings` are null, folders that are not there.
void checkSettingsTogether(const SettingsInForce &settings, FindingSink &sink,
                           const Surroundings *surroundings);

} // namespace check
