#include "libconfig.h"

#include "orderedattributes.h"

#include <QByteArray>
#include <QFile>
#include <QStringView>
#include <QXmlStreamReader>

#include <iostream>
#include <optional>
#include <string>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace libconfig {

namespace {

/// The text of one name, key or value: bytes up to the loader's limit.
class TextBuffer
{
public:
    void add(char c)
    {
        if (bytes.size() < Config::maxTextLength)
            bytes.push_back(c);
    }
    void clear() { bytes.clear(); }
    /// The text without surrounding white space, until the next change. Stripped as bytes: QString::trimmed()
    /// would take the no-break space (0xA0) too, which is an ordinary character here.
    QByteArrayView stripped() const { return QByteArrayView(bytes).trimmed(); }

private:
    std::string bytes;
};

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
            if (++depth > Config::maxDepth)
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

} // namespace

Config::Config() = default;

Config::Config(const QString &name, const QString &type)
{
    constructor(name, type);
}

Config::~Config() = default;

void Config::constructor(const QString &name, const QString &type)
{
    fileName = name;
    fileType = type;
    document = std::make_unique<QDomDocument>();
    if (fileType == "cfg"_L1)
        loadFile();
    else if (fileType == "xml"_L1)
        loadXmlFile();
}

void Config::readFile(const QString &name, const QString &type)
{
    constructor(name, type);
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

bool Config::get(char &c)
{
    // From the stream's buffer: the stream's own `get` takes several times as long for each byte.
    using Traits = std::ifstream::traits_type;
    Traits::int_type next = Traits::eof();
    try {
        if (file.good())
            next = file.rdbuf()->sbumpc();
    } catch (const std::ios_base::failure &) {
        // A file that opens and cannot be read, such as a folder: it ends here.
    }
    if (next == Traits::eof()) {
        file.setstate(std::ios_base::eofbit | std::ios_base::failbit);
        return false;
    }
    c = Traits::to_char_type(next);
    return true;
}

bool Config::jump(char c)
{
    char read = 0;
    while (get(read)) {
        if (read == c)
            return true;
    }
    return false;
}

void Config::loadFile()
{
    if (!openFile())
        return;
    depth = 0;
    const QDomElement root = newElement(fileName);
    if (readItems(root, *document) == End::File)
        closeFile();
}

void Config::loadFile(const QString &name, QDomNode parent)
{
    if (depth == maxDepth) {
        file.setstate(std::ios::eofbit | std::ios::failbit);
        return;
    }
    ++depth;
    readItems(newElement(name), parent);
    --depth;
}

Config::End Config::readItems(QDomElement element, QDomNode parent)
{
    TextBuffer text;
    OrderedAttributes attributes(element);
    char c = 0;
    while (get(c)) {
        switch (c) {
        case ':': // a block; what stands between the name and its brace is ignored
            jump('{');
            parent.appendChild(element);
            loadFile(QString::fromLatin1(text.stripped()), element);
            text.clear();
            break;
        case '=':
            attributes.set(QString::fromLatin1(text.stripped()), readValue());
            parent.appendChild(element);
            text.clear();
            break;
        case '}': // a missing ';' swallows everything up to the next one, wherever it is
            jump(';');
            return End::Brace;
        default:
            text.add(c);
        }
    }
    return End::File;
}

QString Config::readValue()
{
    TextBuffer text;
    char c = 0;
    while (get(c) && c != ';')
        text.add(c);
    // Quotes are deleted wherever they stand, and after the stripping: blanks inside the quotes stay.
    return QString::fromLatin1(text.stripped()).remove(u'"');
}

QDomElement Config::newElement(const QString &name)
{
    // Made under another name first: the toolkit makes no element for an empty name, but a nameless block is
    // a block all the same, and hides the blocks behind it when it is the first.
    QDomElement element = document->createElement(u"block"_s);
    element.setTagName(name);
    return element;
}

void Config::loadXmlFile()
{
    QFile xmlFile(fileName);
    if (!xmlFile.open(QIODevice::ReadOnly))
        return;
    const QByteArray content = xmlFile.readAll();
    const auto names = attributeNames(content);
    if (!names || !document->setContent(content))
        return;
    rememberOrder(*document, names->begin(), names->end());
    // Whatever stands first moves under the root, a comment or an XML declaration too: then no key is found.
    QDomElement root = newElement(fileName);
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

} // namespace libconfig
