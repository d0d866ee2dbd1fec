#include "localeencoding.h"

#include "runlocale.h"

#include <QTextCodec>

namespace {

QTextCodec *codecOfTheRun()
{
    const QByteArray codeset = runlocale::codeset();
    // What the C library calls the POSIX locale's encoding.
    QTextCodec *codec = codeset == "ANSI_X3.4-1968" ? nullptr : QTextCodec::codecForName(codeset);
    return codec ? codec : QTextCodec::codecForName("UTF-8");
}

} // namespace

LocaleEncoding::LocaleEncoding() : codec(codecOfTheRun()) {}

QByteArray LocaleEncoding::encode(const QString &text) const
{
    return codec->fromUnicode(text);
}

QString LocaleEncoding::decode(const QByteArray &bytes) const
{
    return codec->toUnicode(bytes);
}
