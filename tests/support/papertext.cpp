#include "papertext.h"

#include <QRegularExpression>
#include <QString>
#include <QStringList>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A text with pictures for control characters. A line break in it ends a row, and its picture stays there.
QString withPictures(const QString &text)
{
    QString shown;
    for (const QChar character : text) {
        const char16_t code = character.unicode();
        if (code < 0x20)
            shown += QChar(0x2400 + code);
        else if (code == 0x7f)
            shown += QChar(0x2421);
        else
            shown += code >= 0x80 && code < 0xa0 ? QChar(QChar::ReplacementCharacter) : character;
        if (character == u'\n')
            shown += u'\n';
    }
    return shown;
}

/// Takes the matches of `form` one after another from `place` on; what it captures is a row each.
QString takeRows(const QString &stream, qsizetype &place, const QRegularExpression &form)
{
    QString rows;
    for (;;) {
        const QRegularExpressionMatch match = form.match(stream, place, QRegularExpression::NormalMatch,
                                                         QRegularExpression::AnchorAtOffsetMatchOption);
        if (!match.hasMatch())
            return rows;
        rows += withPictures(match.captured(1)) + u'\n';
        place = match.capturedEnd();
    }
}

} // namespace

QByteArray paperText(const QByteArray &bytes)
{
    static const auto everything = QRegularExpression::DotMatchesEverythingOption;
    static const QRegularExpression printed(u"\"(.*?)\"@\n"_s, everything);
    static const QRegularExpression sent(u"(\"[^*]*\\*[^H]*H.*?R)\r\n|(=[^\n]*H4M)\r\n|([^\n]+[MT])\n"_s,
                                         everything);
    static const QRegularExpression command(u"(?|"_s + sent.pattern() + u')', everything);
    const QString stream = QString::fromUtf8(bytes);
    QStringList sections;
    for (qsizetype place = 0; place < stream.size();) {
        const QStringView rest = QStringView(stream).sliced(place);
        if (rest == "J\n"_L1)
            break;
        const bool isPaper = rest.startsWith("\nj\n"_L1);
        if (!isPaper && !rest.startsWith(u'\n'))
            qFatal("no job prints this: %s",
                   qPrintable(rest.first(qMin<qsizetype>(60, rest.size())).toString()));
        place += isPaper ? 3 : 1;
        sections += takeRows(stream, place, isPaper ? printed : command);
    }
    return sections.join(u"\f\n"_s).toUtf8();
}
