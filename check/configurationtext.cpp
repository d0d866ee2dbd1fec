#include "configurationtext.h"

#include "discreet.h"
#include "droppedtext.h"
#include "readitem.h"
#include "usercatalogue.h"
#include "valuetext.h"
#include "words.h"

using namespace Qt::Literals::StringLiterals;
using libconfig::Token;
using libconfig::TokenKind;

namespace check {

namespace {

/// Whether the text in front of a brace ends in a remark: then the brace is part of that.
bool endsInRemark(QByteArrayView text)
{
    const QByteArrayView line = text.sliced(text.lastIndexOf('\n') + 1).trimmed();
    return line.startsWith('#') || line.startsWith("//");
}

class TextListener : public libconfig::TokenListener
{
public:
    TextListener(SettingsInForce &settings, FindingSink &findings) : path(settings, findings), sink(findings)
    {
    }

    void token(const Token &token) override
    {
        switch (token.kind) {
        case TokenKind::BlockName:
            block = readItem(token, path, sink);
            isBraceMissing = !block.isTold;
            break;
        case TokenKind::BeforeBrace:
            tellBeforeBrace(token);
            break;
        case TokenKind::OpenBrace:
            openBlock();
            break;
        case TokenKind::Key:
            key = readItem(token, path, sink);
            break;
        case TokenKind::Value:
            takeValue(token);
            break;
        case TokenKind::Stray:
            stray = token.bytes.toByteArray();
            tellStray(token, UserWords::tr("belongs to no setting and is dropped"));
            break;
        case TokenKind::CloseBrace:
            closeBlock(token);
            break;
        case TokenKind::BehindBrace:
            tellBehindBrace(token);
            break;
        case TokenKind::Unread:
            tellUnread(token);
            break;
        default: // the other delimiters
            break;
        }
    }

    /// When the file has ended.
    void end()
    {
        if (isBraceMissing) {
            sink.take({named("missing-brace"), block.place,
                       UserWords::tr("the block %1 has no \"{\": everything behind its name is dropped")
                           .arg(discreet(block.name.toLatin1())),
                       UserWords::tr("put a \"{\" behind its name and the \":\"")});
        }
        for (const ReadItem &item : opened) {
            sink.take({named("unclosed-block"), item.place,
                       UserWords::tr("the block %1 is never closed").arg(discreet(item.name.toLatin1())),
                       UserWords::tr("put \"};\" where it ends")});
        }
    }

private:
    /// What stands between a block's ":" and the next "{" is dropped, and may be far more than was meant.
    void tellBeforeBrace(const Token &token)
    {
        const std::vector<LostName> names = lostNames(token, TextBegins::WithItem);
        for (const LostName &name : names)
            tellLostToBlock(name);
        isBraceMissing = isBraceMissing && names.empty();
        block.isTold = block.isTold || !names.empty();
        if (names.empty() && !block.isRemark)
            tellStray(token, UserWords::tr("stands between a block's name and its \"{\" and is dropped"));
        isHarmless = names.empty();
    }

    void tellLostToBlock(const LostName &name)
    {
        if (block.isRemark) {
            sink.take(
                {named("remark"), name.place,
                 UserWords::tr(
                     "%1 is lost: the \":\" of the remark in line %2 drops everything up to the next \"{\"")
                     .arg(quoted(name.name), QString::number(block.place.line)),
                 UserWords::tr("take the remark out; this form of file has no remarks")});
        } else {
            sink.take({named("missing-brace"), name.place,
                       UserWords::tr("%1 is lost: the block %2 in line %3 has no \"{\" of its own")
                           .arg(quoted(name.name), discreet(block.name.toLatin1()),
                                QString::number(block.place.line)),
                       UserWords::tr("put a \"{\" behind the \":\" of that block")});
        }
    }

    void openBlock()
    {
        if (block.isRemark && isHarmless)
            tellDisabled(block, UserWords::tr("a block"));
        path.enter(block.name, block.place, block.isTold);
        opened.push_back(block);
        isBraceMissing = false;
        isHarmless = true;
    }

    void tellDisabled(const ReadItem &item, const QString &what)
    {
        sink.take(
            {named("disabled-line"), item.place,
             UserWords::tr("this remark is read as %1 of an odd name, which nobody looks for").arg(what),
             UserWords::tr("this form of file has no remarks")});
    }

    void takeValue(const Token &token)
    {
        const bool isSpoiled = checkValueText(token, key, sink);
        if (key.isRemark && !isSpoiled)
            tellDisabled(key, UserWords::tr("a setting"));
        path.add(key.name, {token.value(), key.place, placeOf(token.textAt())}, key.isTold || isSpoiled);
    }

    void closeBlock(const Token &token)
    {
        if (endsInRemark(stray)) {
            sink.take({named("remark"), placeOf(token.at),
                       UserWords::tr("the \"}\" in the remark %1 ends the block here")
                           .arg(discreet(stray.sliced(stray.lastIndexOf('\n') + 1).trimmed())),
                       UserWords::tr("take the remark out; this form of file has no remarks")});
        }
        stray.clear();
        lastBrace = placeOf(token.at);
        isEnded = opened.empty();
        path.leave();
        if (!opened.empty())
            opened.pop_back();
    }

    void tellStray(const Token &token, const QString &what)
    {
        if (token.isBlank())
            return;
        sink.take({named("stray-text"), placeOf(token.textAt()),
                   u"%1 %2"_s.arg(discreet(token.bytes.toByteArray()), what),
                   UserWords::tr("take it out, or put in the \"=\" or \";\" that it lacks")});
    }

    void tellBehindBrace(const Token &token)
    {
        const std::vector<LostName> names = lostNames(token, TextBegins::WithItem);
        for (const LostName &name : names)
            tellSkipped(quoted(name.name), name.place);
        if (names.empty() && !token.isBlank())
            tellSkipped(discreet(token.bytes.toByteArray()), placeOf(token.textAt()));
    }

    void tellSkipped(const QString &what, Place place)
    {
        sink.take({named("missing-semicolon"), place,
                   UserWords::tr("%1 is skipped: the \";\" behind the \"}\" in line %2 is missing")
                       .arg(what, QString::number(lastBrace.line)),
                   UserWords::tr("put a \";\" behind that brace")});
    }

    void tellUnread(const Token &token)
    {
        if (token.isBlank())
            return;
        sink.take({named("unread"), placeOf(token.textAt()),
                   isEnded
                       ? UserWords::tr("nothing from here on is read: the \"}\" in line %1 closes no block")
                             .arg(lastBrace.line)
                       : UserWords::tr("nothing from here on is read: blocks nest deeper than %1")
                             .arg(libconfig::maxDepth),
                   isEnded ? UserWords::tr("take that brace out") : QString()});
    }

    BlockPath path;
    FindingSink &sink;
    std::vector<ReadItem> opened; ///< blocks that are not closed yet, from the outermost one
    ReadItem block;
    ReadItem key;
    QByteArray stray; ///< in front of the brace at hand
    Place lastBrace;
    bool isBraceMissing = false; ///< behind the last name of a block, and nothing told of it yet
    bool isHarmless = true;      ///< whether nothing is lost in front of the brace at hand
    bool isEnded = false;        ///< by a brace that closes no block
};

} // namespace

void checkConfigurationText(const QByteArray &content, SettingsInForce &settings, FindingSink &sink)
{
    TextListener listener(settings, sink);
    libconfig::tokenize(content, listener);
    listener.end();
}

} // namespace check
