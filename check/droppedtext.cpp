#include "droppedtext.h"

#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

namespace check {

namespace {

/// A name is what stands in front of ":" or "=" on a new line, or behind the end of something else. Texts in
/// quotes hold none.
const QRegularExpression &namePattern(TextBegins begins)
{
    static const QString behind = uR"((?:%1[\n;{}]|"[^"\n]*+")[ \t\r\f\v]*+([A-Za-z_][\w-]*+)\s*+[:=])"_s;
    static const QRegularExpression inItem(behind.arg(uR"(\A|)"_s));
    static const QRegularExpression inValue(behind.arg(QString()));
    return begins == TextBegins::WithItem ? inItem : inValue;
}

} // namespace

std::vector<LostName> lostNames(const libconfig::Token &token, TextBegins begins)
{
    std::vector<LostName> names;
    const QString text = QString::fromLatin1(token.bytes); // a character is a byte
    Place place = placeOf(token.at);
    qsizetype reached = 0;
    for (const QRegularExpressionMatch &match : namePattern(begins).globalMatch(text)) {
        for (; reached < match.capturedStart(1); ++reached)
            place = text[reached] == u'\n' ? Place{place.line + 1, 1} : Place{place.line, place.column + 1};
        names.push_back({match.captured(1), place});
    }
    return names;
}

Place placeOf(libconfig::Position position)
{
    return {position.line, position.column};
}

} // namespace check
