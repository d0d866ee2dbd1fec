#include "listing.h"

#include "keyedit.h"
#include "knownkeys.h"
#include "secrets.h"
#include "usercatalogue.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <iterator>

using namespace Qt::Literals::StringLiterals;

namespace {

bool isNamedBy(const knownkeys::Key &key, const QString &name)
{
    const QString dotted = u'.' + key.name + u'.';
    return key.name.startsWith(name, Qt::CaseInsensitive) ||
           dotted.contains(u'.' + name + u'.', Qt::CaseInsensitive);
}

std::vector<knownkeys::Key> knownKeysNamed(const QString &name)
{
    std::vector<knownkeys::Key> keys;
    std::ranges::copy_if(knownkeys::all(), std::back_inserter(keys),
                         [&](const knownkeys::Key &key) { return isNamedBy(key, name); });
    if (keys.empty()) {
        std::ranges::copy_if(knownkeys::all(), std::back_inserter(keys), [&](const knownkeys::Key &key) {
            return key.name.contains(u'.' + name, Qt::CaseInsensitive);
        });
    }
    return keys;
}

ListedKey knownKey(const knownkeys::Key &key, const QString &value)
{
    return {key.name,
            value,
            knownkeys::effectiveValue(key, value),
            key.meaning,
            key.whenMissing,
            key.readBy,
            key.printMethods,
            {},
            {}};
}

QString valueLine(const ListedKey &key)
{
    if (!key.objection.isEmpty())
        return u"%1 = %2\n    %3\n"_s.arg(key.key.simplified(), key.value, key.objectionTold);
    const QString state =
        key.value.isEmpty() ? UserWords::tr("%1 is not set").arg(key.key) : key.key + " = "_L1 + key.value;
    if (key.effective == key.value || key.effective.isEmpty())
        return state + u'\n';
    return UserWords::tr("%1, counts as %2").arg(state, key.effective) + u'\n';
}

QString meaningText(const ListedKey &key)
{
    return UserWords::tr("%1; when missing: %2")
        .arg(inUserLanguage(key.meaning), inUserLanguage(key.whenMissing));
}

QString readersText(const ListedKey &key)
{
    if (key.readBy != "printing"_L1)
        return UserWords::tr("read by: %1").arg(inUserLanguage(key.readBy));
    if (key.printMethods.isEmpty())
        return UserWords::tr("consulted by no print method");
    return UserWords::tr("consulted by: %1").arg(key.printMethods.join(", "_L1));
}

QJsonObject asObject(const ListedKey &key)
{
    QJsonObject object{{u"key"_s, key.key},
                       {u"value"_s, key.value.isEmpty() ? QJsonValue() : QJsonValue(key.value)},
                       {u"known"_s, key.objection.isEmpty()}};
    if (key.isHidden)
        object.insert(u"hidden"_s, true);
    if (!key.objection.isEmpty()) {
        object.insert(u"objection"_s, key.objection);
        return object;
    }
    object.insert(u"effective"_s, key.effective);
    object.insert(u"meaning"_s, key.meaning);
    object.insert(u"whenMissing"_s, key.whenMissing);
    object.insert(u"readBy"_s, key.readBy);
    object.insert(u"printMethods"_s, QJsonArray::fromStringList(key.printMethods));
    return object;
}

} // namespace

std::vector<ListedKey> listedKeys(libconfig::Config &config, const QString &name)
{
    std::vector<ListedKey> keys;
    for (const knownkeys::Key &key : knownKeysNamed(name))
        keys.push_back(knownKey(key, config.lookup(key.name)));
    for (const StoredPair &pair : storedPairs(config)) {
        const QString objection = pairObjection(pair.key, pair.isFound);
        // A remark may stand in front of the key.
        if (!objection.isEmpty() && pair.key.contains(name, Qt::CaseInsensitive)) {
            keys.push_back({pair.key,
                            pair.value,
                            {},
                            {},
                            {},
                            {},
                            {},
                            objection,
                            pairObjection(pair.key, pair.isFound, inUserLanguage)});
        }
    }
    return keys;
}

void hideSecrets(std::vector<ListedKey> &keys)
{
    for (ListedKey &key : keys) {
        key.isHidden = !key.value.isEmpty() && mayBeSecret(key.key, key.value);
        if (key.isHidden)
            key.value = key.effective = hiddenValue;
    }
}

QString namesOfKnownKeys(const QString &name)
{
    QString names;
    for (const knownkeys::Key &key : knownKeysNamed(name))
        names += key.name + u'\n';
    return names;
}

QString asText(const std::vector<ListedKey> &keys)
{
    QString text;
    for (const ListedKey &key : keys) {
        text += valueLine(key);
        if (key.objection.isEmpty())
            text += u"    %1\n    %2\n"_s.arg(meaningText(key), readersText(key));
    }
    return text;
}

QByteArray asJson(const std::vector<ListedKey> &keys)
{
    QJsonArray array;
    for (const ListedKey &key : keys)
        array.append(asObject(key));
    return QJsonDocument(array).toJson();
}
