#include "localeencoding.h"

#include <QTextCodec>

#include <clocale>
#include <langinfo.h>
#include <locale.h>

namespace {

QByteArray codesetOfEnvironment()
{
    const locale_t locale = newlocale(LC_CTYPE_MASK, "", nullptr);
    if (!locale)
        return {};
    const QByteArray codeset = nl_langinfo_l(CODESET, locale);
    freelocale(locale);
    return codeset;
}

QTextCodec *codecOfEnvironment()
{
    const QByteArray codeset = codesetOfEnvironment();
    // What the C library calls the POSIX locale's encoding.
    QTextCodec *codec = codeset == "ANSI_X3.4-1968" ? nullptr : QTextCodec::codecForName(codeset);
    return codec ? codec : QTextCodec::codecForName("UTF-8");
}

} // namespace

LocaleEncoding::LocaleEncoding() : codec(codecOfEnvironment()) {}

QByteArray LocaleEncoding::encode(const QString &text) const
{
    return codec->fromUnicode(text);
}
