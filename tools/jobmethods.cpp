#include "jobmethods.h"

#include <QRegularExpression>
#include <QXmlInputSource>

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Cuts the text of a job into what stands between "<" and ">", remarks and the like left out.
class TagScanner
{
public:
    /// True when a tag is complete: then `tag` has its text.
    bool take(QChar character)
    {
        if (!isInside) {
            isInside = character == u'<';
            text.clear();
            return false;
        }
        if (text.size() < longestKept)
            text += character;
        last = {last.at(1), last.at(2), character};
        const bool isElement = !text.startsWith(u'!') && !text.startsWith(u'?');
        if (isElement && isQuoted(character))
            return false;
        isInside = !ends(character);
        return !isInside;
    }
    QStringView tag() const { return QStringView(text).chopped(1); }

private:
    static constexpr qsizetype longestKept = 10'000; // characters; enough for a method and its name

    /// Whether the character stands in quotes, or is one, where those hide a ">".
    bool isQuoted(QChar character)
    {
        const bool isOpen = !quote.isNull();
        const bool isMark = isOpen ? character == quote : character == u'"' || character == u'\'';
        if (isMark)
            quote = isOpen ? QChar() : character;
        return isOpen || isMark;
    }
    bool ends(QChar character) const
    {
        if (text.startsWith("!--"_L1))
            return text.size() >= 6 && last == std::array<QChar, 3>{u'-', u'-', u'>'};
        if (text.startsWith("![CDATA["_L1))
            return last == std::array<QChar, 3>{u']', u']', u'>'};
        return character == u'>';
    }

    QString text;
    std::array<QChar, 3> last;
    QChar quote;
    bool isInside = false;
};

/// What a start tag of a `method` calls; a null text when the tag is another.
QString methodIn(QStringView tag)
{
    static const QRegularExpression element(u"^method[\\s/]"_s);
    static const QRegularExpression attribute(u"([^\\s=]+)\\s*=\\s*(?:\"([^\"]*)\"|'([^']*)')"_s);
    if (!element.match(tag).hasMatch())
        return {};
    for (const QRegularExpressionMatch &match : attribute.globalMatch(tag)) {
        if (match.capturedView(1) == "name"_L1)
            return match.captured(2) + match.captured(3);
    }
    return {};
}

} // namespace

void forEachMethod(QIODevice &job, const std::function<void(const QString &)> &take)
{
    QXmlInputSource characters(&job);
    TagScanner scanner;
    for (;;) {
        const QChar character = characters.next();
        if (character == QXmlInputSource::EndOfDocument)
            return;
        if (character != QXmlInputSource::EndOfData && scanner.take(character)) {
            const QString name = methodIn(scanner.tag());
            if (!name.isNull())
                take(name);
        }
    }
}
