#include "knownkeys.h"

#include <algorithm>
#include <cstdlib>
#include <numeric>
#include <utility>

namespace knownkeys {

namespace {

constexpr int printerWidth = 32;
constexpr int largestSensibleCount = 999;

const QStringList levels{u"DEBUG"_s, u"INFO"_s, u"WARNING"_s, u"ERROR"_s, u"FATAL"_s};
const QStringList logTypes{u"APPEND"_s, u"OVERWRITE"_s};

QStringList methodsOf(const DocumentBlock &block, const DocumentSetting &setting)
{
    QStringList names;
    for (const PrintMethod &method : printMethods) {
        if (method.block == block.name && (method.uses & setting.use))
            names += method.name;
    }
    return names;
}

/// Whether anything ever asks for the setting in this block.
bool isRead(const DocumentBlock &block, const DocumentSetting &setting)
{
    switch (setting.loading) {
    case Loading::Always:
        return true;
    case Loading::OnUse:
        return !methodsOf(block, setting).isEmpty();
    case Loading::Copying:
        return block.copyNumber;
    }
    return false;
}

Key documentKey(const DocumentBlock &block, const DocumentSetting &setting)
{
    const QString name = "palvestrin."_L1 + block.name + u'.' + setting.name;
    const QString readBy = setting.loading == Loading::Copying ? u"copy number"_s : u"printing"_s;
    return {name, setting.kind, setting.meaning, setting.whenMissing, methodsOf(block, setting), readBy};
}

std::vector<Key> expandedTables()
{
    std::vector<Key> keys;
    keys.reserve(applicationKeys.size() + documentBlocks.size() * documentSettings.size());
    for (const ApplicationKey &key : applicationKeys)
        keys.push_back({key.name, key.kind, key.meaning, key.whenMissing, {}, key.readBy});
    for (const DocumentBlock &block : documentBlocks) {
        for (const DocumentSetting &setting : documentSettings) {
            if (isRead(block, setting))
                keys.push_back(documentKey(block, setting));
        }
    }
    return keys;
}

/// How many characters must be put in, taken out or changed to make one text of the other; `limit` when it is
/// that many or more.
qsizetype editDistance(QStringView from, QStringView to, qsizetype limit)
{
    if (std::abs(from.size() - to.size()) >= limit)
        return limit;
    std::vector<qsizetype> row(to.size() + 1);
    std::iota(row.begin(), row.end(), 0);
    for (qsizetype i = 0; i < from.size(); ++i) {
        qsizetype diagonal = std::exchange(row[0], i + 1);
        for (qsizetype j = 0; j < to.size(); ++j) {
            const qsizetype changed = diagonal + (from[i] != to[j]);
            diagonal = row[j + 1];
            row[j + 1] = std::min({changed, row[j] + 1, diagonal + 1});
        }
    }
    return std::min(row.back(), limit);
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
    // A third of the letters wrong is a slip; more is another word.
    qsizetype least = std::max<qsizetype>(2, name.size() / 3);
    const QString lowered = name.toLower();
    QString nearest;
    for (const Key &key : all()) {
        const QString known = key.name.toLower();
        if (known.endsWith(u'.' + lowered)) // only the way to the setting is left out: "paperWidth"
            return key.name;
        const qsizetype distance = editDistance(lowered, known, least);
        if (distance < least) {
            least = distance;
            nearest = key.name;
        }
    }
    return nearest;
}

QString effectiveValue(const Key &key, const QString &value)
{
    switch (key.kind) {
    case ValueKind::Text:
        return value;
    case ValueKind::Count:
        return QString::number(value.toInt());
    case ValueKind::Width:
        return QString::number(value.toInt() == 0 ? printerWidth : value.toInt());
    case ValueKind::Flag:
        return value == "true"_L1 ? u"true"_s : u"false"_s;
    case ValueKind::Level:
        return levels.contains(value.toUpper()) ? value.toUpper() : u"DEBUG"_s;
    case ValueKind::LogType:
        return logTypes.contains(value.toUpper()) ? value.toUpper() : QString();
    }
    return value;
}

QString objection(const Key &key, const QString &value)
{
    switch (key.kind) {
    case ValueKind::Text:
        return {};
    case ValueKind::Count:
    case ValueKind::Width:
        return isSensibleCount(value) ? QString()
                                      : u"give a whole number from 0 to %1"_s.arg(largestSensibleCount);
    case ValueKind::Flag:
        return value == "true"_L1 || value == "false"_L1 ? QString()
                                                         : u"give true or false, in small letters"_s;
    case ValueKind::Level:
        return levels.contains(value.toUpper()) ? QString() : "give one of "_L1 + levels.join(", "_L1);
    case ValueKind::LogType:
        return logTypes.contains(value.toUpper()) ? QString() : u"give APPEND or OVERWRITE"_s;
    }
    return {};
}

QStringList methodsUsing(const DocumentSetting &setting)
{
    QStringList names;
    for (const PrintMethod &method : printMethods) {
        if (method.uses & setting.use)
            names += method.name;
    }
    return names;
}

} // namespace knownkeys
