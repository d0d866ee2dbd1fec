#include "settingsinforce.h"

#include "discreet.h"
#include "settingvalue.h"
#include "usercatalogue.h"

using namespace Qt::Literals::StringLiterals;

namespace check {

namespace {

void tellTwice(const QString &key, const StoredValue &lost, const StoredValue &counts, FindingSink &sink)
{
    sink.take({named("key-twice"), lost.keyPlace,
               UserWords::tr("%1 is given twice: this value %2 does not count, the one in line %3 does")
                   .arg(key, discreet(key, lost.text), QString::number(counts.keyPlace.line)),
               UserWords::tr("remove one of them")});
}

} // namespace

void SettingsInForce::add(const knownkeys::Key &key, const StoredValue &value, bool isTold, FindingSink &sink)
{
    if (!isTold)
        checkSettingValue(key, value, sink);
    const StoredValue *earlier = find(key.name);
    // In one block the last value counts; of several blocks of one name, the first that has any.
    const bool counts = !earlier || earlier->block == value.block || earlier->text.isEmpty();
    if (earlier)
        tellTwice(key.name, counts ? *earlier : value, counts ? value : *earlier, sink);
    if (counts)
        values.insert(key.name, value);
}

const StoredValue *SettingsInForce::find(const QString &key) const
{
    const auto found = values.constFind(key);
    return found == values.cend() ? nullptr : &*found;
}

QString SettingsInForce::textOf(const QString &key) const
{
    const StoredValue *value = find(key);
    return value ? value->text : QString();
}

DocumentSettings SettingsInForce::of(const vocabulary::DocumentKind &kind) const
{
    DocumentSettings settings;
    for (const vocabulary::DocumentSetting &setting : vocabulary::documentSettings) {
        const QString text = textOf(kind.path() + setting.name);
        if (const auto *count = std::get_if<vocabulary::CountMember>(&setting.member))
            settings.*(*count) = text.toInt();
        else if (const auto *flag = std::get_if<vocabulary::FlagMember>(&setting.member))
            settings.*(*flag) = text == vocabulary::flagOn;
    }
    return settings;
}

} // namespace check
