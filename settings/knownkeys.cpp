#include "knownkeys.h"

#include "companyprinterdriver.h"
#include "printmethods.h"
#include "spelling.h"
#include "usercatalogue.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace knownkeys {

using vocabulary::DocumentKind;
using vocabulary::DocumentSetting;
using vocabulary::ValueKind;

namespace {

constexpr int printerWidth = CompanyPrinterDriver::lineWidth;
constexpr int largestSensibleCount = 999;

QStringList methodsOf(const DocumentKind &kind, const DocumentSetting &setting)
{
    QStringList names;
    for (const vocabulary::PrintMethod &method : vocabulary::printMethods) {
        if (method.kind == kind.name && consults(method.document, setting))
            names += method.name;
    }
    return names;
}

Key documentKey(const DocumentKind &kind, const DocumentSetting &setting)
{
    return {kind.path() + setting.name, setting.kind,  setting.meaning, whenMissing(setting.kind),
            methodsOf(kind, setting),   setting.readBy};
}

std::vector<Key> expandedTables()
{
    std::vector<Key> keys;
    for (const vocabulary::ApplicationKey &key : vocabulary::applicationKeys)
        keys.push_back({key.name, key.kind, key.meaning, key.whenMissing, {}, key.readBy});
    for (const DocumentKind &kind : vocabulary::documentKinds) {
        for (const DocumentSetting &setting : vocabulary::documentSettings) {
            if (kind.hasCopyNumber || setting.name != vocabulary::copyNumberSetting)
                keys.push_back(documentKey(kind, setting));
        }
    }
    return keys;
}

bool isOneOf(const QString &value, ValueKind kind)
{
    return std::ranges::find(vocabulary::wordsOf(kind), value) != vocabulary::wordsOf(kind).end();
}

QString words(ValueKind kind, const QString &separator)
{
    QStringList list;
    for (const QLatin1StringView word : vocabulary::wordsOf(kind))
        list += word;
    return list.join(separator);
}

bool isSensibleCount(const QString &value)
{
    bool isNumber = false;
    const int count = value.toInt(&isNumber);
    return isNumber && count >= 0 && count <= largestSensibleCount;
}

} // namespace

const std::vector<Key> &all()
{
    static const std::vector<Key> keys = expandedTables();
    return keys;
}

const Key *find(const QString &name)
{
    const auto found = std::ranges::find(all(), name, &Key::name);
    return found == all().end() ? nullptr : &*found;
}

QString closest(const QString &name)
{
    QStringList names;
    for (const Key &key : all()) {
        if (key.name.endsWith(u'.' + name, Qt::CaseInsensitive)) // only the way to the setting is left out
            return key.name;
        names += key.name;
    }
    return nearestWord(name, names);
}

QString effectiveValue(const Key &key, const QString &value)
{
    switch (key.kind) {
    case ValueKind::Text:
    case ValueKind::Secret:
        return value;
    case ValueKind::Count:
        return QString::number(value.toInt());
    case ValueKind::Width:
        return QString::number(value.toInt() == 0 ? printerWidth : value.toInt());
    case ValueKind::Flag:
        return isOneOf(value, key.kind) ? value : u"false"_s;
    case ValueKind::Level:
        return isOneOf(value.toUpper(), key.kind) ? value.toUpper() : QString(vocabulary::logLevels[0]);
    case ValueKind::LogType:
        return isOneOf(value.toUpper(), key.kind) ? value.toUpper() : QString();
    }
    return value;
}

QString objection(const Key &key, const QString &value)
{
    switch (key.kind) {
    case ValueKind::Text:
    case ValueKind::Secret:
        return {};
    case ValueKind::Count:
    case ValueKind::Width:
        return isSensibleCount(value)
                   ? QString()
                   : UserWords::tr("give a whole number from 0 to %1").arg(largestSensibleCount);
    case ValueKind::Flag:
        return isOneOf(value, key.kind) ? QString() : UserWords::tr("give true or false, in small letters");
    case ValueKind::Level:
        return isOneOf(value.toUpper(), key.kind)
                   ? QString()
                   : UserWords::tr("give one of %1").arg(words(key.kind, u", "_s));
    case ValueKind::LogType:
        return isOneOf(value.toUpper(), key.kind)
                   ? QString()
                   : UserWords::tr("give %1").arg(words(key.kind, u' ' + UserWords::tr("or") + u' '));
    }
    return {};
}

QString whenMissing(ValueKind kind)
{
    switch (kind) {
    case ValueKind::Count:
        return u"0"_s;
    case ValueKind::Width:
        return u"%1, the printer's own width; the same for 0"_s.arg(printerWidth);
    case ValueKind::Flag:
        return u"off"_s;
    default:
        return u"\"\""_s;
    }
}

QStringList methodsUsing(const DocumentSetting &setting)
{
    QStringList names;
    for (const vocabulary::PrintMethod &method : vocabulary::printMethods) {
        if (consults(method.document, setting))
            names += method.name;
    }
    return names;
}

} // namespace knownkeys
