#include "valuetext.h"

#include "discreet.h"
#include "droppedtext.h"
#include "usercatalogue.h"
#include "words.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;
using libconfig::Token;

namespace check {

namespace {

/// The beginning of what is UTF-8 and read as Latin-1: a letter of two or more bytes. -1 when there is none.
qsizetype utf8LetterIn(QByteArrayView bytes)
{
    for (qsizetype i = 0; i + 1 < bytes.size(); ++i) {
        const auto first = uchar(bytes[i]);
        if (first >= 0xc2 && first <= 0xf4 && (uchar(bytes[i + 1]) & 0xc0) == 0x80)
            return i;
    }
    return -1;
}

void checkLetters(const Token &token, const ReadItem &item, FindingSink &sink)
{
    const qsizetype at = utf8LetterIn(token.bytes);
    if (at < 0)
        return;
    sink.take({named("not-latin-1"), placeOf(token.positionOf(at)),
               UserWords::tr("the value of %1 is UTF-8, and is read as Latin-1: %2")
                   .arg(quoted(item.name), discreet(item.name, token.value())),
               UserWords::tr("save the file as Latin-1, or use \"palvestrin config set\"")});
}

void tellMissingSemicolon(const QString &what, Place place, const ReadItem &item, FindingSink &sink)
{
    sink.take({named("missing-semicolon"), place,
               UserWords::tr("%1 is read as part of the value of %2, whose \";\" is missing")
                   .arg(what, discreet(item.name.toLatin1())),
               UserWords::tr("put a \";\" behind that value")});
}

/// Lines with settings of their own that the value swallowed.
bool tellSwallowedNames(const Token &token, const ReadItem &item, FindingSink &sink)
{
    const std::vector<LostName> names = lostNames(token, TextBegins::WithValue);
    for (const LostName &name : names) {
        if (item.isRemark) {
            sink.take({named("remark"), name.place,
                       UserWords::tr(
                           "%1 is read as part of the remark in line %2, which goes on up to the next \";\"")
                           .arg(quoted(name.name), QString::number(item.place.line)),
                       UserWords::tr("take the remark out; this form of file has no remarks")});
        } else {
            tellMissingSemicolon(quoted(name.name), name.place, item, sink);
        }
    }
    return !names.empty();
}

/// Where in a value something begins that is not meant for it, in another line or in front of a brace; null
/// when it is all one value. Quotes may hold anything.
QByteArrayView strayPart(QByteArrayView value)
{
    const qsizetype closingQuote = value.startsWith('"') ? value.indexOf('"', 1) : -1;
    const QByteArrayView open = value.sliced(closingQuote + 1);
    const QByteArrayView ends("\n{}");
    const auto *end = std::find_first_of(open.begin(), open.end(), ends.begin(), ends.end());
    if (end == open.end())
        return {};
    return closingQuote < 0 ? QByteArrayView(end, open.end()).trimmed() : open.trimmed();
}

bool tellStrayPart(const Token &token, const ReadItem &item, FindingSink &sink)
{
    const QByteArrayView stray = strayPart(token.bytes.trimmed());
    if (stray.isEmpty())
        return false;
    tellMissingSemicolon(discreet(stray.toByteArray()),
                         placeOf(token.positionOf(stray.data() - token.bytes.data())), item, sink);
    return true;
}

bool tellCut(const Token &token, const ReadItem &item, FindingSink &sink)
{
    if (!losesItsEnd(token))
        return false;
    sink.take({named("cut-text"), placeOf(token.textAt()),
               UserWords::tr("the value of %1 has %2 bytes and is cut to %3")
                   .arg(discreet(item.name.toLatin1()))
                   .arg(token.size)
                   .arg(libconfig::maxTextLength),
               UserWords::tr("is a \";\" missing in it?")});
    return true;
}

void checkQuotes(const Token &token, const ReadItem &item, FindingSink &sink)
{
    const QByteArrayView value = token.bytes.trimmed();
    const bool isQuoted = value.size() >= 2 && value.startsWith('"') && value.endsWith('"');
    const qsizetype outer = isQuoted ? 1 : 0;
    const qsizetype at = value.sliced(outer, value.size() - 2 * outer).indexOf('"');
    if (at < 0)
        return;
    sink.take({named("inner-quotes"),
               placeOf(token.positionOf(value.data() - token.bytes.data() + outer + at)),
               UserWords::tr("a quote inside the value of %1 vanishes: it is read as %2")
                   .arg(discreet(item.name.toLatin1()), discreet(item.name, token.value())),
               UserWords::tr("quotes stand around a value or nowhere")});
}

} // namespace

bool checkValueText(const Token &token, const ReadItem &item, FindingSink &sink)
{
    checkLetters(token, item, sink);
    if (tellSwallowedNames(token, item, sink) || tellStrayPart(token, item, sink) ||
        tellCut(token, item, sink))
        return true;
    checkQuotes(token, item, sink);
    return false;
}

} // namespace check
