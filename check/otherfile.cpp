#include "otherfile.h"

#include "knownkeys.h"
#include "readname.h"
#include "tokenizer.h"
#include "usercatalogue.h"
#include "words.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace check {

namespace {

/// The toolkit's XML reader compares each attribute of an element with every other.
constexpr int mostAttributes = 1000;

/// Listens for a name of a block that somebody could have meant for one of the known ones.
class BlockListener : public libconfig::TokenListener
{
public:
    void token(const libconfig::Token &token) override
    {
        if (token.kind == libconfig::TokenKind::BlockName && ++count <= mostLookedAt)
            isFound = isFound || isMeant(QString::fromLatin1(readName(token.bytes).word));
    }
    bool isFound = false;

private:
    static constexpr int mostLookedAt = 1000;

    static QStringList known()
    {
        QStringList names;
        for (const knownkeys::Key &key : knownkeys::all())
            names += key.name.split(u'.').first(2);
        names.removeDuplicates();
        return names;
    }
    static bool isMeant(const QString &name)
    {
        static const QStringList names = known();
        return name.endsWith("palvestrin"_L1) || !meantBy(name, names).isEmpty();
    }

    int count = 0;
};

bool hasKnownBlock(const QByteArray &content)
{
    BlockListener listener;
    libconfig::tokenize(content, listener);
    return listener.isFound;
}

bool hasCrowdedElement(const QByteArray &xml)
{
    int attributes = 0;
    return std::ranges::any_of(xml, [&attributes](char byte) {
        attributes = byte == '<' ? 0 : attributes + int(byte == '=');
        return attributes > mostAttributes;
    });
}

bool isJson(const QByteArray &text)
{
    return text.startsWith('{') || text.startsWith("[{") || text.startsWith("[\"");
}

} // namespace

QString otherFile(const QByteArray &content, bool isXml)
{
    if (content.size() > longestConfiguration)
        return UserWords::tr("a file of more than 1 MiB");
    if (content.contains('\0'))
        return UserWords::tr("a binary file, or text in UTF-16");
    if (isXml)
        return hasCrowdedElement(content) ? UserWords::tr("XML with more than 1000 attributes in an element")
                                          : QString();
    const QByteArray text = content.trimmed();
    if (isJson(text))
        return u"JSON"_s;
    if (text.isEmpty() || hasKnownBlock(content))
        return {};
    return text.startsWith('[') ? UserWords::tr("an INI file")
                                : UserWords::tr("text without a block \"palvestrin: {\"");
}

} // namespace check
