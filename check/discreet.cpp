#include "discreet.h"

#include "secrets.h"
#include "words.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace check {

QString discreet(const QString &key, const QString &value)
{
    return quoted(mayBeSecret(key, value) ? QString(hiddenValue) : value);
}

QString discreet(const QByteArray &text)
{
    const QString line = QString::fromLatin1(text).simplified();
    const auto *value = std::find_if(line.begin(), line.end(),
                                     [](QChar character) { return character == u'"' || character == u'='; });
    const QString front = QStringView(line.begin(), value).trimmed().toString();
    const bool isWhole = value == line.end();
    if (mayBeSecret(QString(), front) && front.contains(u' '))
        return quoted(QString(hiddenValue));
    return quoted(isWhole ? line : front + u" ..."_s);
}

} // namespace check
