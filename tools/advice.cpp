#include "advice.h"

#include "console.h"

#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

namespace {

void printNoteAt(const FileName &file, libconfig::Position at, const QString &text)
{
    printNote(u"%1:%2:%3"_s.arg(file.shown()).arg(at.line).arg(at.column), text);
}

} // namespace

void tellDeadLines(const ConfigFile &file, const QString &key)
{
    for (const DeadLine &line : file.deadLines(key))
        printNoteAt(file.path, line.at, line.why);
}

void tellLosses(ConfigFile &file, const QString &as)
{
    for (const Loss &loss : file.losses())
        printNoteAt(file.path, loss.at, u"lost: %1"_s.arg(loss.what));
    if (const QString changed = file.changedIn(as); !changed.isEmpty())
        printNote(u"%1: \"%2\" does not survive"_s.arg(file.path.shown(), changed));
}

QString shellWord(const QString &text)
{
    static const QRegularExpression plain(u"\\A[A-Za-z0-9_./:@%+=,-]+\\z"_s);
    if (plain.match(text).hasMatch())
        return text;
    return u'\'' + QString(text).replace(u'\'', "'\\''"_L1) + u'\'';
}
