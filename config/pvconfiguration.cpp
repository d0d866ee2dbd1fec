#include "pvconfiguration.h"

#include <QDir>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Keys and values are 8-bit text: a character outside Latin-1 becomes '?'.
QString asLatin1(const QString &text)
{
    const bool isLatin1 =
        std::all_of(text.begin(), text.end(), [](QChar character) { return character <= u'\xff'; });
    return isLatin1 ? text : QString::fromLatin1(text.toLatin1());
}

} // namespace

PVConfiguration::PVConfiguration()
{
    readFile(userFile(), u"cfg"_s);
}

PVConfiguration::PVConfiguration(const QByteArray &content, const QString &name)
{
    readContent(content, name, u"cfg"_s);
}

QString PVConfiguration::userFile()
{
    return QDir::homePath() + "/.palvestrin/conf/palvestrin.conf"_L1;
}

QString PVConfiguration::getStrValue(const QString &key) const
{
    return asLatin1(lookup(asLatin1(key)));
}
