#include "runlocale.h"

#include <QLocale>

#include <clocale>
#include <langinfo.h>
#include <locale.h>

namespace {

/// As the environment has it; "C" when it has none.
QByteArray fullName()
{
    for (const char *variable : {"LC_ALL", "LC_CTYPE", "LANG"}) {
        QByteArray value = qgetenv(variable);
        if (!value.isEmpty())
            return value;
    }
    return "C";
}

} // namespace

QString runlocale::name()
{
    return QLocale(QString::fromLatin1(fullName())).name();
}

QByteArray runlocale::codeset()
{
    return codesetOf(fullName());
}

QByteArray runlocale::codesetOf(const QByteArray &localeName)
{
    const locale_t locale = newlocale(LC_CTYPE_MASK, localeName.constData(), nullptr);
    if (!locale)
        return {};
    const QByteArray codeset = nl_langinfo_l(CODESET, locale);
    freelocale(locale);
    return codeset;
}
