#include "schema.h"

#include "grammar.h"

#include <QXmlStreamWriter>

using namespace Qt::Literals::StringLiterals;

namespace check {

namespace {

constexpr auto schemaNamespace = "http://relaxng.org/ns/structure/1.0"_L1;
constexpr auto annotations = "http://relaxng.org/ns/compatibility/annotations/1.0"_L1;
constexpr auto anything = "anything"_L1; ///< the definition that takes any element

/// Writes the schema from its root to its leaves. Definitions are named after what they define: the method,
/// or the element and its attributes.
class SchemaWriter
{
public:
    QByteArray write();

private:
    template <typename Content>
    void inside(QLatin1StringView pattern, Content content)
    {
        xml.writeStartElement(pattern);
        content();
        xml.writeEndElement();
    }
    template <typename Content>
    void withName(QLatin1StringView pattern, const QString &name, Content content)
    {
        xml.writeStartElement(pattern);
        xml.writeAttribute(u"name"_s, name);
        content();
        xml.writeEndElement();
    }
    void ref(const QString &definition);
    void writeValue(const QString &text);
    void anyAttributes(const QStringList &butThese);

    void writeStart();
    void writeJob();
    void writeMethod(const vocabulary::PrintMethod &method);
    void writePieces(const vocabulary::PrintMethod &method);
    void writeAttributes(const QString &element);
    void writeAnything();

    QByteArray bytes;
    QXmlStreamWriter xml{&bytes};
};

void SchemaWriter::ref(const QString &definition)
{
    xml.writeEmptyElement(u"ref"_s);
    xml.writeAttribute(u"name"_s, definition);
}

/// A text as it stands: without its type, blanks around it would be forgiven.
void SchemaWriter::writeValue(const QString &text)
{
    xml.writeStartElement(u"value"_s);
    xml.writeAttribute(u"type"_s, u"string"_s);
    xml.writeCharacters(text);
    xml.writeEndElement();
}

/// Attributes of any name and number.
void SchemaWriter::anyAttributes(const QStringList &butThese)
{
    inside("zeroOrMore"_L1, [&] {
        inside("attribute"_L1, [&] {
            inside("anyName"_L1, [&] {
                if (butThese.isEmpty())
                    return;
                inside("except"_L1, [&] {
                    for (const QString &name : butThese)
                        xml.writeTextElement(u"name"_s, name);
                });
            });
        });
    });
}

QByteArray SchemaWriter::write()
{
    xml.setAutoFormatting(true);
    xml.setAutoFormattingIndent(2);
    xml.writeStartDocument();
    xml.writeComment(u" The print job of Palvestrin Print, made from the renderer's own vocabulary. "_s);
    xml.writeStartElement(u"grammar"_s);
    xml.writeDefaultNamespace(schemaNamespace);
    xml.writeNamespace(annotations, u"a"_s);
    inside("start"_L1, [this] { writeStart(); });
    for (const vocabulary::PrintMethod &method : vocabulary::printMethods)
        writeMethod(method);
    for (const QString &element : allElementNames())
        writeAttributes(element);
    writeAnything();
    xml.writeEndDocument();
    return bytes;
}

/// A job may also be one document, in its method element.
void SchemaWriter::writeStart()
{
    inside("choice"_L1, [this] {
        writeJob();
        for (const vocabulary::PrintMethod &method : vocabulary::printMethods)
            ref(method.name + ".method"_L1);
    });
}

/// The root element may have any name and any attributes.
void SchemaWriter::writeJob()
{
    inside("element"_L1, [this] {
        xml.writeEmptyElement(u"anyName"_s);
        anyAttributes({});
        inside("oneOrMore"_L1, [this] {
            inside("choice"_L1, [this] {
                for (const vocabulary::PrintMethod &method : vocabulary::printMethods)
                    ref(method.name);
            });
        });
    });
}

/// A method element and the pieces of its document.
void SchemaWriter::writeMethod(const vocabulary::PrintMethod &method)
{
    withName("define"_L1, method.name, [&] {
        ref(method.name + ".method"_L1);
        ref(method.name + ".pieces"_L1);
    });
    withName("define"_L1, method.name + ".method"_L1, [&] {
        withName("element"_L1, vocabulary::methodElement.name, [&] {
            xml.writeTextElement(annotations, u"documentation"_s, method.title);
            withName("attribute"_L1, u"name"_s, [&] { writeValue(method.name); });
            ref(method.name + ".pieces"_L1);
        });
    });
    withName("define"_L1, method.name + ".pieces"_L1, [&] { writePieces(method); });
}

void SchemaWriter::writePieces(const vocabulary::PrintMethod &method)
{
    const std::vector<const vocabulary::Element *> elements = elementsOf(method.document);
    inside("zeroOrMore"_L1, [&] {
        if (elements.empty())
            return ref(anything);
        inside("choice"_L1, [&] {
            for (const vocabulary::Element *element : elements) {
                withName("element"_L1, element->name, [&] {
                    ref(element->name + ".attributes"_L1);
                    ref(method.name + ".pieces"_L1);
                });
            }
        });
    });
}

/// What any method reads from the element: one that this method does not read may stand there all the same.
void SchemaWriter::writeAttributes(const QString &element)
{
    const QStringList names = attributesReadFrom(element);
    withName("define"_L1, element + ".attributes"_L1, [&] {
        xml.writeEmptyElement(u"empty"_s);
        for (const QString &name : names) {
            inside("optional"_L1, [&] {
                xml.writeEmptyElement(u"attribute"_s);
                xml.writeAttribute(u"name"_s, name);
            });
        }
        if (takesAnyAttribute(element))
            anyAttributes(names);
    });
}

void SchemaWriter::writeAnything()
{
    withName("define"_L1, anything, [this] {
        inside("element"_L1, [this] {
            inside("anyName"_L1, [this] {
                inside("except"_L1,
                       [this] { xml.writeTextElement(u"name"_s, vocabulary::methodElement.name); });
            });
            anyAttributes({});
            inside("zeroOrMore"_L1, [this] { ref(anything); });
        });
    });
}

} // namespace

QByteArray printJobSchema()
{
    return SchemaWriter().write();
}

} // namespace check
