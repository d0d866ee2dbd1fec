#include "readitem.h"

#include "discreet.h"
#include "droppedtext.h"
#include "readname.h"
#include "words.h"

using namespace Qt::Literals::StringLiterals;
using libconfig::Token;
using libconfig::TokenKind;

namespace check {

namespace {

QString latin1(const QByteArray &bytes)
{
    return QString::fromLatin1(bytes);
}

/// The place of the last word.
Place wordPlace(const Token &token, const ReadName &name)
{
    const QByteArrayView text = token.bytes.trimmed();
    const qsizetype textEnd = text.data() - token.bytes.data() + text.size();
    return placeOf(token.positionOf(textEnd - name.word.size()));
}

bool beginsAsRemark(const QByteArray &text)
{
    return text.startsWith('#') || text.startsWith("//") || text.startsWith("/*") || text.startsWith("<!--");
}

/// Whether the last word of a name is what is meant by it, and the rest became part of it by mistake.
bool isMistaken(const ReadName &name, bool isKnown)
{
    return !name.front.isEmpty() && (isKnown || beginsAsRemark(name.front) || name.front.contains('\n') ||
                                     name.front.contains(';') || name.front.contains('{'));
}

void tellFront(const ReadName &name, const QString &lost, Place place, FindingSink &sink)
{
    const qsizetype brace = name.front.indexOf('{');
    if (brace >= 0 && !beginsAsRemark(name.front)) {
        sink.take(
            {named("missing-brace"), place,
             u"the block %1 does not begin, for the \":\" in front of its \"{\" is missing: %2 is lost"_s.arg(
                 discreet(name.front.first(brace)), lost),
             u"put a \":\" behind its name"_s});
        return;
    }
    sink.take({named("remark"), place,
               u"%1 is read as part of the name behind it: %2 is lost"_s.arg(discreet(name.front), lost),
               beginsAsRemark(name.front) ? u"take it out; this form of file has no remarks"_s
                                          : u"take it out, or put in the \"=\" or \";\" that it lacks"_s});
}

bool checkFront(const ReadName &name, Place place, bool isBlock, const BlockPath &path, FindingSink &sink)
{
    const QString word = latin1(name.word);
    if (!isMistaken(name, isBlock ? path.knowsBlock(word) : path.knowsKey(word)))
        return false;
    const QString lost = quoted(path.keyOf(word));
    tellFront(name, isBlock ? u"the block "_s + lost : lost, place, sink);
    return true;
}

/// A byte order mark stands in front of the first name of the file.
bool hasMark(const Token &token)
{
    return token.at.line == 1 && token.at.column == 1 && token.bytes.startsWith("\xef\xbb\xbf");
}

bool checkBytes(const Token &token, FindingSink &sink)
{
    if (hasMark(token)) {
        sink.take({named("byte-order-mark"),
                   {},
                   u"the file begins with a byte order mark, which is read as part of its first name: no "
                   "setting is found"_s,
                   u"save the file without it"_s});
        return true;
    }
    if (!losesItsEnd(token))
        return false;
    sink.take({named("cut-text"), placeOf(token.textAt()),
               u"a name of %1 bytes is cut to %2"_s.arg(token.size).arg(libconfig::maxTextLength),
               u"is an \"=\" or a \";\" missing in it?"_s});
    return true;
}

} // namespace

ReadItem readItem(const Token &token, const BlockPath &path, FindingSink &sink)
{
    const ReadName name = readName(token.bytes);
    ReadItem item{token.name(), wordPlace(token, name), checkBytes(token, sink), name.isDisabled};
    const bool isBlock = token.kind == TokenKind::BlockName;
    item.isTold = item.isTold || item.isRemark || checkFront(name, item.place, isBlock, path, sink);
    return item;
}

bool losesItsEnd(const Token &token)
{
    return token.isCut() &&
           token.bytes.trimmed().size() > token.bytes.first(libconfig::maxTextLength).trimmed().size();
}

} // namespace check
