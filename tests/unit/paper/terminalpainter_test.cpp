#include "streamreader.h"
#include "terminalpainter.h"
#include "wordwrap.h"

#include <QTest>

#include <sstream>

using namespace Qt::Literals::StringLiterals;

/// The paper as a terminal shows it.
class TerminalPainterTest : public QObject
{
    Q_OBJECT

private:
    static QByteArray shown(const QByteArray &stream, const paper::Screen &screen,
                            std::vector<int> widths = {10}, bool showsBlanks = false)
    {
        std::ostringstream text;
        paper::TerminalPainter painter(text, screen, showsBlanks);
        painter.setWidths(std::move(widths));
        paper::StreamReader reader("UTF-8", painter, [](const paper::Fault &) {});
        reader.read(stream);
        reader.finish();
        return QByteArray::fromStdString(text.str());
    }
    static paper::Screen screenOf(int columns, bool hasColors = false, const QByteArray &encoding = "UTF-8")
    {
        paper::Screen screen;
        screen.columns = columns;
        screen.hasColors = hasColors;
        screen.encoding = encoding;
        return screen;
    }

private Q_SLOTS:
    void framesThePaper()
    {
        QCOMPARE(shown("\nj\n\"HELLO\"@\n\"\"@\n\"1234567890\"@\nJ\n", screenOf(0)), "  ┌──────────┐\n"
                                                                                     "  │HELLO     │\n"
                                                                                     "  │          │\n"
                                                                                     "  │1234567890│\n"
                                                                                     "  └──────────┘\n");
    }

    void framesEachStripAtItsWidth()
    {
        QCOMPARE(shown("\nj\n\"a\"@\n\nj\n\nj\nJ\n", screenOf(0), {5, 3}), "  ┌─────┐\n"
                                                                           "  │a    │\n"
                                                                           "  └─────┘\n"
                                                                           "\n"
                                                                           "  ┌───┐\n"
                                                                           "  └───┘\n"
                                                                           "\n"
                                                                           "  ┌───┐\n"
                                                                           "  └───┘\n");
    }

    void marksWhatRunsOver()
    {
        QCOMPARE(shown("\nj\n\"1234567890ab\"@\n\"1234567890 \"@\nJ\n", screenOf(0)), "  ┌──────────┐\n"
                                                                                      "  │1234567890»ab\n"
                                                                                      "  │1234567890» \n"
                                                                                      "  └──────────┘\n");
    }

    void wideCharactersTakeTwoColumns()
    {
        QCOMPARE(shown("\nj\n\"麺麺\"@\n\"麺麺麺麺麺\"@\n\"a麺麺麺麺麺\"@\n\"e\u0301\"@\nJ\n", screenOf(0)),
                 "  ┌──────────┐\n"
                 "  │麺麺      │\n"
                 "  │麺麺麺麺麺│\n"
                 "  │a麺麺麺麺 »麺\n"
                 "  │e\u0301         │\n"
                 "  └──────────┘\n");
    }

    void pointsAtWhatIsBroken()
    {
        QCOMPARE(shown("\nj\n\"a \"b\" \x1b\"@\n\"123456789麺\"\"@\n\"HEL", screenOf(0)),
                 "  ┌──────────┐\n"
                 "! │a \"b\" ␛   │\n"
                 "     ^ ^ ^\n"
                 "! │123456789 »麺\"\n"
                 "                ^\n"
                 "! │HEL       │\n"
                 "     ^\n"
                 "  └──────────┘\n"
                 "   The output is cut off here.\n");
    }

    void colours()
    {
        QCOMPARE(shown("\nj\n\"a\"b\"@\n\"1234567890x\"@\nJ\n", screenOf(40, true)),
                 "\033[0;2m  ┌──────────┐\033[0m\n"
                 "! \033[0;2m│\033[0ma\033[0;97;41m\"\033[0mb       \033[0;2m│\033[0m\n"
                 "  \033[0;2m│\033[0m1234567890\033[0;31m»x\033[0m\n"
                 "\033[0;2m  └──────────┘\033[0m\n");
    }

    void plainCharactersOutsideOfUtf8()
    {
        QCOMPARE(shown("\nj\n\"caff\u00e8 \u20ac\"@\n\"1234567890麺\"@\n\"a\tb\"@\nJ\n",
                       screenOf(0, false, "ISO-8859-15")),
                 "  +----------+\n"
                 "  |caff\xe8 \xa4   |\n"
                 "  |1234567890>??\n"
                 "! |a?b       |\n"
                 "    ^\n"
                 "  +----------+\n");
        QCOMPARE(shown("\nj\n\"caff\u00e8\"@\nJ\n", screenOf(0, false, "ANSI_X3.4-1968")),
                 "  +----------+\n"
                 "  |caff?     |\n"
                 "  +----------+\n");
        QCOMPARE(shown("\nj\nJ\n", screenOf(0, false, "no-such-encoding")),
                 "  +----------+\n  +----------+\n");
    }

    void commandsHaveTheirMeaningBeside()
    {
        QCOMPARE(shown("\n\"PIZZA\"3*650H2R\r\n1950H1T\nhello\"@\n", screenOf(0), {40}),
                 "  ┌─ to the cash register ─────────┐\n"
                 "  │\"PIZZA\"3*650H2R                 │ sale: 3 x PIZZA at 6.50 = 19.50, department 2\n"
                 "  │1950H1T                         │ cash: 19.50\n"
                 "  │hello                           │\n"
                 "  └────────────────────────────────┘\n"
                 "   The register will show 19.50. Settled by cash 19.50.\n");
    }

    void commandsHaveNoEdge()
    {
        QCOMPARE(
            shown("\n\"A name of thirty-two characters!\"1*100H1R\r\n", screenOf(0)),
            "  ┌─ to the cash register ─────────┐\n"
            "  │\"A name of thirty-two characters!\"1*100H1R sale: 1 x A name of thirty-two characters! at "
            "1.00, department 1\n"
            "  └────────────────────────────────┘\n"
            "   The register will show 1.00.\n");
    }

    void meaningsAreFoldedToTheScreen()
    {
        QCOMPARE(shown("\n\"PIZZA\"3*650H2R\r\n", screenOf(60)),
                 "  ┌─ to the cash register ─────────┐\n"
                 "  │\"PIZZA\"3*650H2R                 │ sale: 3 x PIZZA at 6.50\n"
                 "  │                                │ = 19.50, department 2\n"
                 "  └────────────────────────────────┘\n"
                 "   The register will show 19.50.\n");
        QCOMPARE(shown("\n\"PIZZA\"3*650H2R\r\n", screenOf(38)), "  ┌─ to the cash register ─────────┐\n"
                                                                 "  │\"PIZZA\"3*650H2R                 │\n"
                                                                 "    sale: 3 x PIZZA at 6.50 = 19.50,\n"
                                                                 "    department 2\n"
                                                                 "  └────────────────────────────────┘\n"
                                                                 "   The register will show 19.50.\n");
    }

    void noFrameOnANarrowTerminal()
    {
        QCOMPARE(shown("\nj\n\"1234567890ab\"@\n\"a\"b\"@\n\n\"A\"2*100H1R\r\n", screenOf(13)),
                 "─────────────\n"
                 "1234567890»ab\n"
                 "a\"b\n"
                 " ^\n"
                 "─────────────\n"
                 "\n"
                 "─ to the cash register \n"
                 "\"A\"2*100H1R\n"
                 "    sale: 2 x\n"
                 "    A at 1.00\n"
                 "    = 2.00,\n"
                 "    departmen\n"
                 "    t 1\n"
                 "─────────────\n"
                 "The register\n"
                 "will show\n"
                 "2.00.\n");
    }

    void showsBlanks()
    {
        QCOMPARE(shown("\nj\n\"a  \"@\nJ\n", screenOf(0), {12}, true), "   ....+....1..\n"
                                                                       "  ┌────────────┐\n"
                                                                       "  │a··         │\n"
                                                                       "  └────────────┘\n");
    }

    void stylesEventsAndTitles()
    {
        std::ostringstream text;
        paper::TerminalPainter painter(text, screenOf(30, true));
        painter.setWidths({8});
        painter.title(u"a.xml"_s);
        painter.beginStrip(paper::StripKind::Paper);
        paper::Row row;
        row.cells = {{U'B', {.bold = true}, false},
                     {U'T', {.doubleHeight = true}, false},
                     {U'W', {.doubleWidth = true}, false},
                     {U'U', {.bold = true, .underlined = true}, false},
                     {U'I', {.inverse = true}, false}};
        painter.row(row);
        painter.event(paper::Event::Cut);
        painter.event(paper::Event::Drawer);
        painter.event(paper::Event::TearOff);
        painter.endStrip();
        painter.title(u"b.xml"_s);
        QCOMPARE(QByteArray::fromStdString(text.str()),
                 "\033[0;1ma.xml\033[0m\n"
                 "\033[0;2m  ┌────────┐\033[0m\n"
                 "  \033[0;2m│\033[0;1mBT\033[0mW \033[0;1;4mU\033[0;7mI\033[0m  \033[0;2m│\033[0m\n"
                 "\033[0;2m  ├─ cut ──┤\033[0m\n"
                 "\033[0;2m  ├─ the cash drawer opens \033[0m\n"
                 "\033[0;2m  ├─ tear off here \033[0m\n"
                 "\033[0;2m  └────────┘\033[0m\n"
                 "\n\033[0;1mb.xml\033[0m\n");
    }

    void foldsAtBlanks_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("width");
        QTest::addColumn<QStringList>("lines");
        QTest::newRow("fits") << u"ab cd"_s << 5 << QStringList{u"ab cd"_s};
        QTest::newRow("any width") << u"ab cd"_s << 0 << QStringList{u"ab cd"_s};
        QTest::newRow("nothing") << QString() << 5 << QStringList{QString()};
        QTest::newRow("between words") << u"ab cd ef"_s << 5 << QStringList{u"ab cd"_s, u"ef"_s};
        QTest::newRow("a long word") << u"ab cdefghij"_s << 4 << QStringList{u"ab"_s, u"cdef"_s, u"ghij"_s};
        QTest::newRow("wide characters") << u"麺麺麺"_s << 5 << QStringList{u"麺麺"_s, u"麺"_s};
        QTest::newRow("no room at all") << u"麺a"_s << 1 << QStringList{u"麺"_s, u"a"_s};
        QTest::newRow("beyond the basic plane") << u"🍕🍕"_s << 3 << QStringList{u"🍕"_s, u"🍕"_s};
    }
    void foldsAtBlanks()
    {
        QFETCH(const QString, text);
        QFETCH(const int, width);
        QTEST(paper::wrapped(text, width), "lines");
    }
};

QTEST_APPLESS_MAIN(TerminalPainterTest)

#include "terminalpainter_test.moc"
