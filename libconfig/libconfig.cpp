#include "libconfig.h"

#include "orderedattributes.h"

#include <QByteArray>
#include <QFile>
#include <QStringView>
#include <QXmlStreamReader>

#include <iostream>
#include <optional>
#include <sstream>
#include <stack>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace libconfig {

namespace {

/// The attribute names of every element in document order; nothing when the file is no XML, or nests its
/// elements deeper than the tree can be freed again: it recurses.
std::optional<std::vector<QStringList>> attributeNames(const QByteArray &xml)
{
    std::vector<QStringList> names;
    QXmlStreamReader reader(xml);
    reader.setNamespaceProcessing(false); // as the tree is built: what one takes, the other must take too
    int depth = 0;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement()) {
            if (++depth > maxDepth)
                return std::nullopt;
            QStringList &ofElement = names.emplace_back();
            for (const QXmlStreamAttribute &attribute : reader.attributes())
                ofElement += attribute.qualifiedName().toString();
        }
        if (reader.isEndElement())
            --depth;
    }
    if (reader.hasError())
        return std::nullopt;
    return names;
}

using NamesIterator = std::vector<QStringList>::const_iterator;

/// Hands the elements from `node` down their attribute names, in document order; returns where it stopped.
NamesIterator rememberOrder(const QDomNode &node, NamesIterator next, NamesIterator end)
{
    if (node.isElement() && next != end)
        OrderedAttributes(node.toElement()).setOrder(*next++);
    for (QDomNode child = node.firstChild(); !child.isNull(); child = child.nextSibling())
        next = rememberOrder(child, next, end);
    return next;
}

QDomElement newElement(QDomDocument &document, const QString &name)
{
    // Made under another name first: the toolkit makes no element for an empty name, but a nameless block is
    // a block all the same, and hides the blocks behind it when it is the first.
    QDomElement element = document.createElement(u"block"_s);
    element.setTagName(name);
    return element;
}

/// Makes elements of the blocks that it hears of, and attributes of the pairs.
class TreeBuilder : public TokenListener
{
public:
    /// What is heard goes into a new element `name`. That joins `parent` with its first item, so an empty
    /// block leaves no trace.
    TreeBuilder(QDomDocument &of, const QString &name, const QDomNode &parent) : document(of)
    {
        blocks.emplace(newElement(document, name), parent);
    }

    void token(const Token &token) override
    {
        switch (token.kind) {
        case TokenKind::BlockName:
            openBlock(token.name());
            break;
        case TokenKind::Key:
            key = token.name();
            break;
        case TokenKind::Value:
            blocks.top().attributes.set(key, token.value());
            join();
            break;
        case TokenKind::CloseBrace:
            blocks.pop();
            break;
        default: // delimiters, and what belongs to nothing
            break;
        }
    }

private:
    struct Block
    {
        Block(const QDomElement &of, const QDomNode &above) : element(of), parent(above), attributes(of) {}
        QDomElement element;
        QDomNode parent;
        OrderedAttributes attributes;
    };

    void join()
    {
        if (blocks.top().element.parentNode().isNull())
            blocks.top().parent.appendChild(blocks.top().element);
    }
    void openBlock(const QString &name)
    {
        join();
        blocks.emplace(newElement(document, name), blocks.top().element);
    }

    QDomDocument &document;
    std::stack<Block> blocks;
    QString key;
};

} // namespace

Config::Config() = default;

Config::Config(const QString &name, const QString &type)
{
    constructor(name, type);
}

Config::~Config() = default;

void Config::constructor(const QString &name, const QString &type)
{
    begin(name, type);
    if (fileType == "cfg"_L1)
        loadFile();
    else if (fileType == "xml"_L1)
        loadXmlFile();
}

void Config::readFile(const QString &name, const QString &type)
{
    constructor(name, type);
}

void Config::readContent(const QByteArray &content, const QString &name, const QString &type)
{
    begin(name, type);
    if (fileType == "cfg"_L1) {
        std::istringstream stream(content.toStdString());
        readText(stream);
    } else if (fileType == "xml"_L1) {
        readXml(content);
    }
}

void Config::begin(const QString &name, const QString &type)
{
    fileName = name;
    fileType = type;
    document = std::make_unique<QDomDocument>();
}

bool Config::openFile()
{
    return openFile(fileName);
}

bool Config::openFile(const QString &name)
{
    closeFile();
    file.open(QFile::encodeName(name).toStdString(), std::ios::in | std::ios::binary);
    if (file.is_open())
        return true;
    std::cout << "Error in the method FileReader::open( " << QFile::encodeName(name).constData()
              << " ): File Not Found" << std::endl;
    return false;
}

void Config::closeFile()
{
    file.close();
    file.clear();
}

bool Config::jump(char c)
{
    for (int byte = nextByte(file); byte != noByte; byte = nextByte(file)) {
        if (char(byte) == c)
            return true;
    }
    return false;
}

void Config::loadFile()
{
    if (openFile() && readText(file) == Tokenizer::End::File)
        closeFile();
}

void Config::loadFile(const QString &name, QDomNode parent)
{
    TreeBuilder builder(*document, name, parent);
    Tokenizer(file, builder).readBlock();
}

Tokenizer::End Config::readText(std::istream &stream)
{
    TreeBuilder builder(*document, fileName, *document);
    return Tokenizer(stream, builder).readFile();
}

void Config::loadXmlFile()
{
    if (fileName.isEmpty()) // the toolkit would complain of it on standard error
        return;
    QFile xmlFile(fileName);
    if (xmlFile.open(QIODevice::ReadOnly))
        readXml(xmlFile.readAll());
}

void Config::readXml(const QByteArray &content)
{
    const auto names = attributeNames(content);
    if (!names || !document->setContent(content))
        return;
    rememberOrder(*document, names->begin(), names->end());
    // Whatever stands first moves under the root, a comment or an XML declaration too: then no key is found.
    QDomElement root = newElement(*document, fileName);
    root.appendChild(document->firstChild());
    document->insertBefore(root, document->firstChild());
}

QString Config::lookup(const QString &key) const
{
    if (!document)
        return {};
    return lookup(document->documentElement().firstChild(), key);
}

QString Config::lookup(const QDomNode &node, const QString &key) const
{
    const QDomElement element = node.toElement();
    const QStringView path(key);
    const qsizetype firstDot = path.indexOf(u'.');
    if (element.isNull() || element.tagName() != path.left(firstDot < 0 ? path.size() : firstDot))
        return {};
    if (firstDot < 0)
        return {};

    const QStringView rest = path.mid(firstDot + 1);
    const qsizetype secondDot = rest.indexOf(u'.');
    if (secondDot < 0)
        return element.attribute(key.mid(firstDot + 1));
    const bool hasThirdComponent = secondDot + 1 < rest.size() && rest.at(secondDot + 1) != u'.';
    if (!hasThirdComponent)
        return element.attribute(rest.left(secondDot).toString());

    const QString restOfKey = rest.toString();
    for (QDomNode child = element.firstChild(); !child.isNull(); child = child.nextSibling()) {
        const QString value = lookup(child, restOfKey);
        if (!value.isEmpty())
            return value;
    }
    return {};
}

QDomElement Config::root()
{
    if (!document)
        document = std::make_unique<QDomDocument>();
    if (document->documentElement().isNull())
        document->appendChild(newElement(*document, fileName));
    return document->documentElement();
}

QDomElement Config::appendBlock(QDomElement parent, const QString &name)
{
    return parent.appendChild(newElement(*document, name)).toElement();
}

} // namespace libconfig
