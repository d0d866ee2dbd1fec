#pragma once

#include <QByteArray>
#include <QString>

class QTextCodec;

/// The character encoding of the locale of the run (see runlocale.h).
///
/// The ordering application starts the renderer in the printer's locale, for instance it_IT.ISO-8859-15. The
/// toolkit itself is UTF-8 whatever the locale says, so the encoding is asked of the C library. POSIX
/// locales, locales that are not installed and encodings that the toolkit does not know count as UTF-8.
class LocaleEncoding
{
public:
    LocaleEncoding();
    /// The same of the locale of that name, such as "it_IT.ISO-8859-15", as if the program had been started
    /// in it. "" stands for the locale of the run.
    explicit LocaleEncoding(const QByteArray &locale);

    /// `text` as bytes; a character that the encoding lacks becomes one '?'.
    QByteArray encode(const QString &text) const;
    /// `bytes` as text; what is no character of the encoding becomes U+FFFD.
    QString decode(const QByteArray &bytes) const;
    /// What the encoding is called, for those who read what was encoded.
    QByteArray name() const;

private:
    QTextCodec *codec; ///< owned by the toolkit
};
