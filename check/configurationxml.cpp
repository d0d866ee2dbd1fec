#include "configurationxml.h"

#include "blockpath.h"
#include "discreet.h"
#include "placedsource.h"
#include "starttag.h"
#include "tokenizer.h"
#include "usercatalogue.h"

#include <QXmlStreamReader>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace check {

namespace {

/// Reads as the tree is built.
class TreeReader : public QXmlStreamReader
{
public:
    explicit TreeReader(const QByteArray &content) : QXmlStreamReader(content)
    {
        setNamespaceProcessing(false);
    }
};

/// Whether anything but white space stands in front of the first element: then nothing is found in the file.
bool isInFront(const QXmlStreamReader &reader)
{
    switch (reader.tokenType()) {
    case QXmlStreamReader::StartDocument:
        return !reader.documentVersion().isEmpty();
    case QXmlStreamReader::Comment:
    case QXmlStreamReader::ProcessingInstruction:
    case QXmlStreamReader::DTD:
        return true;
    default:
        return false;
    }
}

void tellMalformed(const QXmlStreamReader &reader, const QString &reason, FindingSink &sink)
{
    sink.take({named("xml-malformed"),
               {reader.lineNumber(), reader.columnNumber() + 1},
               UserWords::tr("nothing of this file is read: %1").arg(reason),
               {}});
}

/// Whether anything of the file is found. Tells what is in the way.
bool isReadable(const QByteArray &content, FindingSink &sink)
{
    TreeReader reader(content);
    int depth = 0;
    for (bool isRootSeen = false; !reader.atEnd(); isRootSeen = isRootSeen || reader.isStartElement()) {
        reader.readNext();
        if (!isRootSeen && isInFront(reader)) {
            sink.take(
                {named("xml-front"),
                 {},
                 UserWords::tr(
                     "nothing is found in an XML configuration that begins with a declaration or a remark"),
                 UserWords::tr("take out what stands in front of the first element")});
            return false;
        }
        depth += reader.isStartElement() ? 1 : reader.isEndElement() ? -1 : 0;
        if (depth > libconfig::maxDepth) {
            tellMalformed(reader, UserWords::tr("elements nest deeper than %1").arg(libconfig::maxDepth),
                          sink);
            return false;
        }
    }
    if (reader.hasError())
        tellMalformed(reader, reader.errorString().remove(u'.'), sink);
    return !reader.hasError();
}

/// The places of growing offsets in a text.
class XmlPlaces
{
public:
    explicit XmlPlaces(const QByteArray &content) : text(QString::fromUtf8(content)) {}

    Place of(qsizetype offset)
    {
        const qsizetype passed = qBound(reached, offset, text.size()) - reached;
        at = placeIn(QStringView(text).sliced(reached, passed), passed, at);
        reached += passed;
        return at;
    }
    /// Where the tag begins that a reader has seen at `offset`: it may have gone a little into it.
    qsizetype tagAt(qsizetype offset) const
    {
        return qMax(qsizetype(0), text.lastIndexOf(u'<', qMin(offset, text.size() - 1)));
    }
    QString written(qsizetype begin, qsizetype end) const
    {
        return text.sliced(begin, qMax(begin, end) - begin);
    }

private:
    const QString text;
    qsizetype reached = 0;
    Place at;
};

void takeElement(const QXmlStreamReader &reader, const StartTag &tag, BlockPath &path)
{
    path.enter(reader.qualifiedName().toString(), tag.place());
    for (const QXmlStreamAttribute &attribute : reader.attributes()) {
        const QString name = attribute.qualifiedName().toString();
        const auto written = std::ranges::find(tag.attributes(), name, &WrittenAttribute::name);
        const bool isWritten = written != tag.attributes().end();
        path.add(name, {attribute.value().toString(), isWritten ? written->namePlace : tag.place(),
                        isWritten ? written->valuePlace : tag.place()});
    }
}

void tellText(const QXmlStreamReader &reader, Place place, FindingSink &sink)
{
    sink.take({named("stray-text"), place,
               UserWords::tr("%1 is text between elements, which sets nothing")
                   .arg(discreet(reader.text().toLatin1())),
               UserWords::tr("settings are attributes")});
}

} // namespace

void checkConfigurationXml(const QByteArray &content, SettingsInForce &settings, FindingSink &sink)
{
    if (!isReadable(content, sink))
        return;
    BlockPath path(settings, sink);
    XmlPlaces places(content);
    TreeReader reader(content);
    while (!reader.atEnd()) {
        const qint64 begin = reader.characterOffset();
        reader.readNext();
        if (reader.isStartElement()) {
            const qsizetype tag = places.tagAt(begin);
            const QString written = places.written(tag, reader.characterOffset());
            takeElement(reader, StartTag(written, places.of(tag)), path);
        } else if (reader.isEndElement()) {
            path.leave();
        } else if (reader.isCharacters() && !reader.isWhitespace()) {
            tellText(reader, places.of(begin), sink);
        }
    }
}

} // namespace check
