// The writers of libconfig::Config.
//
// The text form, for a tree with the top-level pair `a` and one block:
//
//     a = "1";
//     palvestrin:
//     {
//         level = "INFO";
//     };
//
// There is a blank behind the colon, and an empty line behind every closing brace. The same tree in XML:
//
//     a = "1";
//
//     <palvestrin
//         level = "INFO">
//     </palvestrin>
//
// Values are written as they stand in both forms: a quote in a value is lost when the text is read again, and
// a value with '"', '<' or '&' makes XML that nothing reads. Whoever must not lose them looks first.

#include "libconfig.h"
#include "orderedattributes.h"

#include <QFile>
#include <QTextStream>

#include <iostream>

using namespace Qt::Literals::StringLiterals;

namespace libconfig {

namespace {

constexpr auto indentStep = "    "_L1;

/// Each writer has one indentation for all its calls in the life of the process.
QString textIndentation;
QString xmlIndentation;

void writePair(QTextStream &stream, const QString &name, const QString &value)
{
    stream << name << " = \"" << value << '"';
}

/// The attributes of the root, one text-form pair a line.
void writeRootPairs(QTextStream &stream, const QDomElement &root)
{
    for (const QString &name : OrderedAttributes(root).names()) {
        writePair(stream, name, root.attribute(name));
        stream << ";\n";
    }
}

std::string utf8(const QString &text)
{
    return text.toStdString();
}

} // namespace

bool Config::write(QIODevice &device, QStringConverter::Encoding encoding, BlockWriter writeBlock)
{
    QString text;
    QTextStream stream(&text);
    if (document) {
        const QDomElement root = document->documentElement();
        writeRootPairs(stream, root);
        (this->*writeBlock)(root.firstChild(), stream);
    }
    QStringEncoder encoder(encoding);
    const QByteArray bytes = encoder(text);
    return device.write(bytes) == bytes.size() && !encoder.hasError();
}

bool Config::writeFile(const QString &name, QStringConverter::Encoding encoding, BlockWriter writeBlock)
{
    QFile target(name.isEmpty() ? fileName : name);
    // Without a name the toolkit would complain on standard error.
    if (target.fileName().isEmpty() || !target.open(QIODevice::WriteOnly))
        return false;
    const bool isFaithful = write(target, encoding, writeBlock);
    target.close();
    return isFaithful && target.error() == QFileDevice::NoError;
}

bool Config::buildConfigFile(const QString &name)
{
    return writeFile(name, QStringConverter::Latin1, &Config::buildConfigFile);
}

bool Config::buildConfigFile(QIODevice &device)
{
    return write(device, QStringConverter::Latin1, &Config::buildConfigFile);
}

void Config::buildConfigFile(const QDomNode &node, QTextStream &stream)
{
    if (!node.isElement())
        return;
    const QDomElement element = node.toElement();
    stream << textIndentation << element.tagName() << ": \n" << textIndentation << "{\n";
    textIndentation += indentStep;
    for (const QString &name : OrderedAttributes(element).names()) {
        stream << textIndentation;
        writePair(stream, name, element.attribute(name));
        stream << ";\n";
    }
    for (QDomNode child = element.firstChild(); !child.isNull(); child = child.nextSibling())
        buildConfigFile(child, stream);
    textIndentation.remove(0, indentStep.size());
    stream << textIndentation << "};\n\n";
}

bool Config::buildConfigXmlFile(const QString &name)
{
    // The root's pairs keep the text form's syntax in this file too. No XML reader takes them, yet they stay:
    // tools that read the lines in front of the first element rely on it.
    return writeFile(name, QStringConverter::Utf8, &Config::buildConfigXmlFile);
}

bool Config::buildConfigXmlFile(QIODevice &device)
{
    return write(device, QStringConverter::Utf8, &Config::buildConfigXmlFile);
}

void Config::buildConfigXmlFile(const QDomNode &node, QTextStream &stream)
{
    if (!node.isElement())
        return;
    const QDomElement element = node.toElement();
    stream << '\n' << xmlIndentation << '<' << element.tagName();
    xmlIndentation += indentStep;
    for (const QString &name : OrderedAttributes(element).names()) {
        stream << '\n' << xmlIndentation;
        writePair(stream, name, element.attribute(name));
    }
    stream << ">\n";
    for (QDomNode child = element.firstChild(); !child.isNull(); child = child.nextSibling())
        buildConfigXmlFile(child, stream);
    xmlIndentation.remove(0, indentStep.size());
    stream << xmlIndentation << "</" << element.tagName() << ">\n";
}

void Config::printConfigTree() const
{
    std::cout << "Tree \n";
    if (document)
        printConfigTree(document->documentElement());
    std::cout.flush();
}

void Config::printConfigTree(const QDomNode &node) const
{
    if (node.isElement()) {
        const QDomElement element = node.toElement();
        std::cout << utf8(element.tagName()) << '\n';
        for (const QString &name : OrderedAttributes(element).names())
            std::cout << utf8(name) << " = " << utf8(element.attribute(name)) << '\n';
    }
    for (QDomNode child = node.firstChild(); !child.isNull(); child = child.nextSibling())
        printConfigTree(child);
}

} // namespace libconfig
