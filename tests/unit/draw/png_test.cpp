// A PNG to the pixel: the grid, what is marked, and how large it may be.

#include "colours.h"
#include "commanderror.h"
#include "picture.h"
#include "samplestrip.h"

#include <QImage>
#include <QSet>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Around the paper 15 pixels of table; on it, 20 of margin at the sides, and 5 of teeth and 20 of margin
/// above.
constexpr QPoint firstCell(35, 40);
constexpr QSize cellSize(10, 20);

QImage drawn(const Strip &strip, const PictureOptions &options = {})
{
    return QImage::fromData(pngPicture({strip}, options), "PNG");
}

/// Whether all pixels of the cells have that colour; those of the rim may be mixed where another colour
/// begins.
bool isFilled(const QImage &image, int row, int column, int columns, QColor colour)
{
    const QPoint corner = firstCell + QPoint(column * cellSize.width(), row * cellSize.height());
    const QRect inside =
        QRect(corner, QSize(columns * cellSize.width(), cellSize.height())).adjusted(1, 1, -1, -1);
    for (int y = inside.top(); y <= inside.bottom(); ++y) {
        for (int x = inside.left(); x <= inside.right(); ++x) {
            if (image.pixelColor(x, y) != colour)
                return false;
        }
    }
    return true;
}

const QString block = u"█"_s; // fills its cell

} // namespace

class PngTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itIsAsLargeAsItsCells()
    {
        // 32 columns and 2 + 2 of margin, a table of 15 pixels on both sides
        QCOMPARE(drawn(paperStrip(32, {u""_s})).size(), QSize(36 * 10 + 30, 5 + 20 + 20 + 20 + 5 + 30));
        QCOMPARE(drawn(paperStrip(24, {u"a"_s, u"b"_s}), {.scale = 3}).size(), QSize(310 * 3, 120 * 3));
        QCOMPARE(drawn(paperStrip(32, {})).size(), QSize(390, 80));
    }

    void cellsStandOnTheGrid()
    {
        const QImage image = drawn(paperStrip(40, {u"a"_s, QString(30, u' ') + block + u" "_s + block}));
        QVERIFY(isFilled(image, 1, 30, 1, colours::ink));
        QVERIFY(isFilled(image, 1, 31, 1, colours::paper));
        QVERIFY(isFilled(image, 1, 32, 1, colours::ink));
        QVERIFY(isFilled(image, 0, 30, 3, colours::paper));
    }

    void aWideCharacterTakesTwoCellsAndAMarkNone()
    {
        const QImage wide = drawn(paperStrip(40, {u"日"_s + block}));
        QVERIFY(isFilled(wide, 0, 2, 1, colours::ink));
        const QImage marked = drawn(paperStrip(40, {u"e\u0301"_s + block}));
        QVERIFY(isFilled(marked, 0, 1, 1, colours::ink));
    }

    void styles()
    {
        Strip strip = paperStrip(40, {});
        strip.lines.push_back(plainRow(block + block, {.doubleWidth = true}));
        strip.lines.push_back(plainRow(block, {.doubleHeight = true}));
        strip.lines.push_back(plainRow(u"  "_s, {.inverse = true}));
        const QImage image = drawn(strip);
        QVERIFY(isFilled(image, 0, 0, 4, colours::ink));
        QVERIFY(isFilled(image, 0, 4, 4, colours::paper));
        QVERIFY(isFilled(image, 1, 0, 1, colours::ink)); // two rows high
        QVERIFY(isFilled(image, 2, 0, 1, colours::ink));
        QVERIFY(isFilled(image, 3, 0, 2, colours::ink));
    }

    void aPictureHasItsDotsWhereThePrinterBurnsThem()
    {
        // 24 dots at the left of it are two columns; it is two columns wide and a row high.
        QByteArray dots;
        for (int y = 0; y < 24; ++y)
            dots += y < 12 ? QByteArray::fromHex("FFF000") : QByteArray::fromHex("000FFF");
        Strip strip = paperStrip(40, {});
        strip.lines.push_back(paper::Picture{.left = 24, .width = 24, .height = 24, .dots = dots});
        strip.lines.push_back(plainRow(block));
        const QImage image = drawn(strip, {.scale = 2});
        const auto colourAt = [&](int column, int halfRow) {
            return image.pixelColor(2 * (firstCell.x() + 10 * column + 5),
                                    2 * (firstCell.y() + 10 * halfRow + 5));
        };
        const QColor ink = colours::ink;
        const QColor paper = colours::paper;
        QCOMPARE(colourAt(1, 0), paper);
        QCOMPARE(colourAt(2, 0), ink);
        QCOMPARE(colourAt(3, 0), paper);
        QCOMPARE(colourAt(2, 1), paper);
        QCOMPARE(colourAt(3, 1), ink);
        QCOMPARE(colourAt(4, 1), paper);
        QCOMPARE(colourAt(0, 2), ink); // the row below it
    }

    void fourNarrowCharactersTakeThreeColumns()
    {
        Strip strip = paperStrip(3, {});
        paper::Row row = plainRow(u"     "_s, {.inverse = true});
        row.isNarrow = true;
        strip.lines.push_back(row);
        const QImage image = drawn(strip);
        QVERIFY(isFilled(image, 0, 0, 3, colours::ink));
        QCOMPARE(image.pixelColor(firstCell + QPoint(33, 10)), QColor(colours::overInk));
    }

    void boldAndUnderlinedHaveMoreInk()
    {
        const auto ink = [](paper::Style style) {
            Strip strip = paperStrip(20, {});
            strip.lines.push_back(plainRow(u"Totale"_s, style));
            const QImage image = drawn(strip).convertToFormat(QImage::Format_Grayscale8);
            qint64 sum = 0;
            for (int y = firstCell.y(); y < firstCell.y() + cellSize.height(); ++y) {
                for (int x = firstCell.x(); x < firstCell.x() + 6 * cellSize.width(); ++x)
                    sum += 255 - qGray(image.pixel(x, y));
            }
            return sum;
        };
        QVERIFY(ink({.bold = true}) > ink({}) * 12 / 10);
        QVERIFY(ink({.underlined = true}) > ink({}) * 12 / 10);
    }

    void whatRunsOverTheEdgeIsMarked()
    {
        const QImage image = drawn(paperStrip(24, {QString(23, u' ') + block.repeated(6)}));
        QVERIFY(isFilled(image, 0, 23, 1, colours::ink));
        QVERIFY(isFilled(image, 0, 25, 5 - 1, colours::overInk)); // beside the broken line at the edge
        QCOMPARE(image.width(), 15 + (2 + 29) * 10 + 15);
    }

    void brokenCellsAreMarked()
    {
        Strip strip = paperStrip(24, {u"   "_s});
        std::get<paper::Row>(strip.lines[0]).cells[1].isBroken = true;
        const QImage image = drawn(strip);
        QCOMPARE(image.pixelColor(firstCell + QPoint(15, 5)), QColor(colours::brokenPaper));
        QCOMPARE(image.pixelColor(firstCell + QPoint(5, 5)), QColor(colours::paper));
    }

    void marksAreDrawnOnlyWhenWanted()
    {
        const Strip strip = paperStrip(40, {u""_s, u""_s, u""_s});
        const auto has = [&strip](bool marks) {
            const QImage image = drawn(strip, {.scale = 2, .marks = marks});
            for (int i = 0; i < image.height() * image.width(); ++i) {
                if (image.pixelColor(i % image.width(), i / image.width()) == colours::mark)
                    return true;
            }
            return false;
        };
        QVERIFY(has(true));
        QVERIFY(!has(false));
    }

    void eventsAreShownBetweenRows()
    {
        Strip strip = paperStrip(24, {u"a"_s});
        const int without = drawn(strip).height();
        for (const paper::Event event : {paper::Event::Cut, paper::Event::Drawer, paper::Event::TearOff}) {
            strip.lines.push_back(event);
            const QImage image = drawn(strip);
            const int row = int(strip.lines.size()) - 1;
            QVERIFY(!isFilled(image, row, 0, 24, colours::paper));
        }
        QCOMPARE(drawn(strip).height(), without + 3 * cellSize.height());
    }

    void stripsLieBelowOneAnother()
    {
        const QByteArray picture = pngPicture({paperStrip(24, {u"a"_s}), paperStrip(32, {u"b"_s})}, {});
        QCOMPARE(QImage::fromData(picture).size(), QSize(36 * 10 + 30, 15 + 70 + 20 + 70 + 15));
    }

    void aRowIsLostInNoShade()
    {
        // Whatever is drawn on paper is between its colour and that of the ink, and the table has many such.
        const QImage image = drawn(paperStrip(24, {u"Caffè"_s}));
        QCOMPARE(image.format(), QImage::Format_Indexed8);
        QSet<QRgb> shades;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                shades += image.pixel(x, y);
        }
        QVERIFY(shades.contains(colours::paper.rgb()));
        QVERIFY(shades.contains(colours::ink.rgb()));
        QVERIFY2(shades.size() > 20, QByteArray::number(shades.size()));
    }

    void aTitleStandsInTheFile()
    {
        QCOMPARE(drawn(paperStrip(24, {}), {.title = u"Scontrino"_s}).text(u"Title"_s), u"Scontrino"_s);
    }

    void tooLarge()
    {
        Strip strip = paperStrip(24, QStringList(2000, u"a"_s));
        try {
            pngPicture({strip}, {});
            QFAIL("it was drawn");
        } catch (const CommandError &error) {
            QCOMPARE(error.code(), ExitCode::TooLarge);
            QCOMPARE(
                error.messages().front(),
                u"palvestrin: error: the picture would be 310 pixels wide and 40080 high, and a PNG is at "
                u"most "
                "30000 in either and 40000000 in all; use --format pdf, svg or txt, or a smaller --scale"_s);
        }
    }
};

QTEST_MAIN(PngTest)
#include "png_test.moc"
