#include "settingvalue.h"

#include "discreet.h"
#include "usercatalogue.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace check {

namespace {

/// Whether a value is anything but what a missing one means.
bool asksForAnything(const knownkeys::Key &key, const QString &value)
{
    switch (key.kind) {
    case vocabulary::ValueKind::Flag:
        return value == vocabulary::flagOn;
    case vocabulary::ValueKind::Count:
    case vocabulary::ValueKind::Width:
        return value.toInt() != 0;
    default:
        return !value.isEmpty();
    }
}

/// The row of a document's setting; null for a setting of the application.
const vocabulary::DocumentSetting *settingOf(const knownkeys::Key &key)
{
    const auto *found = std::ranges::find(vocabulary::documentSettings, key.name.section(u'.', -1),
                                          &vocabulary::DocumentSetting::name);
    return found == std::end(vocabulary::documentSettings) ? nullptr : found;
}

/// Whether anything comes of the setting in its block. One that no print method asks for may be the device's.
bool hasEffect(const knownkeys::Key &key)
{
    if (key.readBy != "printing"_L1 || !key.printMethods.isEmpty())
        return true;
    const vocabulary::DocumentSetting &setting = *settingOf(key);
    return !std::holds_alternative<std::monostate>(setting.member) &&
           knownkeys::methodsUsing(setting).isEmpty();
}

void tellNoEffect(const knownkeys::Key &key, const StoredValue &value, FindingSink &sink)
{
    const bool isForOthers = !knownkeys::methodsUsing(*settingOf(key)).isEmpty();
    sink.take({named("no-effect"), value.keyPlace, UserWords::tr("%1 changes nothing on paper").arg(key.name),
               isForOthers ? UserWords::tr("none of the documents of this block asks for it")
                           : inUserLanguage(key.meaning)});
}

void tellBadValue(const knownkeys::Key &key, const StoredValue &value, const QString &objection,
                  FindingSink &sink)
{
    const QString effective = knownkeys::effectiveValue(key, value.text);
    const QString shown = discreet(key.name, value.text);
    sink.take(
        {named("bad-value"), value.valuePlace,
         effective == value.text
             ? UserWords::tr("%1 is no sensible value for %2").arg(shown, key.name)
             : UserWords::tr("%1 counts as %2 for %3")
                   .arg(shown, effective.isEmpty() ? inUserLanguage(key.whenMissing) : effective, key.name),
         objection});
}

} // namespace

void checkSettingValue(const knownkeys::Key &key, const StoredValue &value, FindingSink &sink)
{
    const QString objection = knownkeys::objection(key, value.text);
    if (!value.text.isEmpty() && !objection.isEmpty())
        tellBadValue(key, value, objection, sink);
    else if (asksForAnything(key, value.text) && !hasEffect(key))
        tellNoEffect(key, value, sink);
}

} // namespace check
