#include "cataloguefile.h"

#include <QFile>
#include <QXmlStreamReader>

using namespace Qt::Literals::StringLiterals;

namespace {

CatalogueEntry readMessage(QXmlStreamReader &xml, const QString &context)
{
    CatalogueEntry entry{context, {}, {}, false};
    while (xml.readNextStartElement()) {
        if (xml.name() == "source"_L1) {
            entry.source = xml.readElementText();
        } else if (xml.name() == "translation"_L1) {
            entry.finished = !xml.attributes().hasAttribute("type"_L1);
            entry.translation = xml.readElementText();
        } else {
            xml.skipCurrentElement();
        }
    }
    return entry;
}

void readContext(QXmlStreamReader &xml, QList<CatalogueEntry> &entries)
{
    QString context;
    while (xml.readNextStartElement()) {
        if (xml.name() == "name"_L1)
            context = xml.readElementText();
        else if (xml.name() == "message"_L1)
            entries += readMessage(xml, context);
        else
            xml.skipCurrentElement();
    }
}

} // namespace

QList<CatalogueEntry> readCatalogue(const QString &fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QXmlStreamReader xml(&file);
    QList<CatalogueEntry> entries;
    xml.readNextStartElement(); // TS
    while (xml.readNextStartElement())
        readContext(xml, entries);
    return xml.hasError() ? QList<CatalogueEntry>() : entries;
}
