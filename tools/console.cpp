#include "console.h"

#include "commanderror.h"
#include "localeencoding.h"

#include <iostream>

using namespace Qt::Literals::StringLiterals;

namespace {

const LocaleEncoding &encoding()
{
    static const LocaleEncoding ofThisRun;
    return ofThisRun;
}

void write(std::ostream &stream, const QString &text)
{
    const QByteArray bytes = encoding().encode(text);
    stream.write(bytes.constData(), bytes.size());
}

} // namespace

QString fromTerminal(const QByteArray &word)
{
    return encoding().decode(word);
}

void printText(const QString &text)
{
    write(std::cout, text);
}

void printNote(const QString &text)
{
    printNote(u"palvestrin"_s, text);
}

void printNote(const QString &place, const QString &text)
{
    write(std::cerr, place + ": note: "_L1 + text + u'\n');
}

void printErrors(const CommandError &error)
{
    std::cout.flush();
    for (const QString &line : error.messages())
        write(std::cerr, line + u'\n');
}

void printBytes(const QByteArray &bytes)
{
    std::cout.write(bytes.constData(), bytes.size());
}
