#include "pvconfiguration.h"

#include <QDir>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Keys and values are 8-bit text: a character outside Latin-1 becomes '?'.
QString asLatin1(const QString &text)
{
    return QString::fromLatin1(text.toLatin1());
}

} // namespace

PVConfiguration::PVConfiguration()
{
    readFile(userFile(), u"cfg"_s);
}

QString PVConfiguration::userFile()
{
    return QDir::homePath() + "/.palvestrin/conf/palvestrin.conf"_L1;
}

QString PVConfiguration::getStrValue(const QString &key) const
{
    return asLatin1(lookup(asLatin1(key)));
}
