#include "localeencoding.h"

#include "runlocale.h"

#include <QTextCodec>

namespace {

QTextCodec *codecOf(const QByteArray &codeset)
{
    // What the C library calls the POSIX locale's encoding.
    QTextCodec *codec = codeset == "ANSI_X3.4-1968" ? nullptr : QTextCodec::codecForName(codeset);
    return codec ? codec : QTextCodec::codecForName("UTF-8");
}

} // namespace

LocaleEncoding::LocaleEncoding() : codec(codecOf(runlocale::codeset())) {}

LocaleEncoding::LocaleEncoding(const QByteArray &locale)
    : codec(codecOf(locale.isEmpty() ? runlocale::codeset() : runlocale::codesetOf(locale)))
{
}

QByteArray LocaleEncoding::encode(const QString &text) const
{
    return codec->fromUnicode(text);
}

QString LocaleEncoding::decode(const QByteArray &bytes) const
{
    return codec->toUnicode(bytes);
}

QByteArray LocaleEncoding::name() const
{
    return codec->name();
}
