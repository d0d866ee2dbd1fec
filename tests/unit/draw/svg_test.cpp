// An SVG: well-formed, its text in rows, and nothing of the time.

#include "picture.h"
#include "samplestrip.h"

#include <QTest>
#include <QXmlStreamReader>

using namespace Qt::Literals::StringLiterals;

namespace {

struct Element
{
    QXmlStreamAttributes attributes;
    QString text;
};

/// The elements of that name; a parse error as the text of one more.
QList<Element> elements(const QByteArray &svg, QLatin1StringView name)
{
    QList<Element> list;
    QXmlStreamReader xml(svg);
    while (!xml.atEnd()) {
        xml.readNext();
        if (!xml.isStartElement() || xml.name() != name)
            continue;
        const QXmlStreamAttributes attributes = xml.attributes();
        list += {attributes, xml.readElementText(QXmlStreamReader::IncludeChildElements)};
    }
    if (xml.hasError())
        list += {{}, xml.errorString()};
    return list;
}

QStringList texts(const QByteArray &svg)
{
    QStringList list;
    for (const Element &element : elements(svg, "text"_L1))
        list += element.text;
    return list;
}

} // namespace

class SvgTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aRowIsOneText()
    {
        QCOMPARE(texts(svgPicture({paperStrip(24, {u"  2 Caffè & \"co\"  "_s, u""_s, u"<b>"_s})}, {})),
                 QStringList({u"  2 Caffè & \"co\"  "_s, u"<b>"_s}));
    }

    void rowsAndColumnsArePlaces()
    {
        const QList<Element> found =
            elements(svgPicture({paperStrip(24, {u"a日b"_s, u"c"_s})}, {}), "text"_L1);
        QCOMPARE(found.size(), 4);
        const auto place = [&found](int i, QLatin1StringView axis) {
            return found[i].attributes.value(axis).toDouble();
        };
        // A column is 32 * 1233 / 2048 wide, a row twice as high.
        QCOMPARE(place(1, "x"_L1) - place(0, "x"_L1), 19.2656);
        QCOMPARE(qRound(1000 * (place(2, "x"_L1) - place(1, "x"_L1))), 38531);
        QCOMPARE(qRound(1000 * (place(3, "y"_L1) - place(0, "y"_L1))), 38531);
        QCOMPARE(place(0, "y"_L1), place(2, "y"_L1));
    }

    void blanksAreKeptAndTheTypeIsFixedPitch()
    {
        const QList<Element> found = elements(svgPicture({paperStrip(24, {u"a  "_s})}, {}), "text"_L1);
        QCOMPARE(found.front().attributes.value("xml:space"_L1), u"preserve"_s);
        QCOMPARE(found.front().attributes.value("font-family"_L1), u"DejaVu Sans Mono, monospace"_s);
    }

    void captionsAreNoText()
    {
        Strip strip{paper::StripKind::Register, 40, {}};
        paper::Row row = plainRow(u"1600H1T"_s);
        row.meaning = u"cash: 16.00"_s;
        strip.lines = {row, u"The register will show 16.00."_s};
        QCOMPARE(texts(svgPicture({strip}, {})), QStringList({u"1600H1T"_s}));
        Strip cut = paperStrip(24, {u"a"_s});
        cut.lines.push_back(paper::Event::Cut);
        QCOMPARE(texts(svgPicture({cut}, {.marks = true})), QStringList({u"a"_s}));
    }

    void sizeAndTitle()
    {
        const QByteArray svg = svgPicture({paperStrip(32, {u"a"_s})}, {.scale = 2, .title = u"R & Co"_s});
        const QList<Element> root = elements(svg, "svg"_L1);
        QCOMPARE(root.front().attributes.value("width"_L1), u"206.375mm"_s); // 780 of 96 pixels to the inch
        QCOMPARE(elements(svg, "title"_L1).front().text, u"R & Co"_s);
    }

    void theSameRowsAreTheSameBytes()
    {
        const std::vector<Strip> strips{paperStrip(32, {u"Caffè"_s, u"日本 שלום 🍕"_s})};
        QCOMPARE(svgPicture(strips, {}), svgPicture(strips, {}));
    }
};

QTEST_MAIN(SvgTest)
#include "svg_test.moc"
