#include "configuredhome.h"
#include "escposbytes.h"
#include "escposprinter.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

const Profile &profileNamed(const char *name)
{
    return *findProfile(QString::fromLatin1(name));
}

/// What a document consists of on the printer for 80 mm, without its beginning and its end.
QByteArray rowsOf(const std::function<void(TestEscPosPrinter &)> &document, const char *profile = "80mm")
{
    const QByteArray begin =
        escpos(qstrcmp(profile, "generic") == 0 ? "1B40 1C2E 1B7400 1B5200" : "1B40 1C2E 1B7413 1B5200");
    const QByteArray bytes = printedOn(profileNamed(profile), [&](TestEscPosPrinter &printer) {
        printer.loadValues(u"receipt"_s);
        printer.startSection();
        document(printer);
    });
    if (!bytes.startsWith(begin))
        qFatal("no document begins so");
    return bytes.sliced(begin.size());
}

} // namespace

class EscPosPrinterDriverTest : public QObject
{
    Q_OBJECT

private:
    const ConfiguredHome home{};

private Q_SLOTS:
    void init() { home.configure("palvestrin: { };"); }

    void aWholeJob()
    {
        const QByteArray bytes = printedOn(profileNamed("generic"), [](TestEscPosPrinter &printer) {
            printer.startDocument();
            printer.element(u"method"_s, {{u"name"_s, u"printPartialOrder"_s}});
            printer.element(u"receipe"_s, {{u"number"_s, u"2"_s}, {u"name"_s, u"Pizza"_s}});
            printer.endDocument();
        });
        QCOMPARE(bytes, escpos("1B40 1C2E 1B7400 1B5200"
                               "1B40 1C2E 1B7400 1B5200 '2 Pizza                        ' 0A 1B6405"));
    }

    void everyProfileCutsInItsWay_data()
    {
        QTest::addColumn<QByteArray>("profile");
        QTest::addColumn<QByteArray>("end");
        QTest::newRow("80mm") << QByteArray("80mm") << escpos("1D564200");
        QTest::newRow("80mm-42") << QByteArray("80mm-42") << escpos("1D564200");
        QTest::newRow("58mm") << QByteArray("58mm") << escpos("1B6404 1D5601");
        QTest::newRow("generic") << QByteArray("generic") << escpos("1B6405");
    }
    void everyProfileCutsInItsWay()
    {
        QFETCH(QByteArray, profile);
        QFETCH(QByteArray, end);
        QCOMPARE(rowsOf([](TestEscPosPrinter &printer) { printer.endSection(); }, profile.constData()), end);
    }

    void theCutOfOtherPrinters()
    {
        Profile full = profileNamed("80mm");
        full.cutter = Profile::Cutter::Full;
        const auto cut = [](TestEscPosPrinter &printer) { printer.fullCut(); };
        QCOMPARE(printedOn(full, cut), escpos("1D564100"));
        full.rowsToTearBar = 3;
        QCOMPARE(printedOn(full, cut), escpos("1B6403 1D5600"));
    }

    void aJobBeginsWithRoomForATornPicture()
    {
        const auto job = [](TestEscPosPrinter &printer) {
            printer.startDocument();
            printer.endDocument();
        };
        QCOMPARE(printedOn(profileNamed("58mm"), job), escpos("1B40 1C2E 1B7413 1B5200"));
        home.configure("palvestrin: { escpos: { logo = logo.pbm; }; };");
        QCOMPARE(printedOn(profileNamed("58mm"), job),
                 QByteArray(55, '\0') + escpos("1B40 1C2E 1B7413 1B5200"));
        QCOMPARE(printedOn(profileNamed("generic"), job), escpos("1B40 1C2E 1B7400 1B5200"));
    }

    void sizesAndBoldAreSentOnceAndBeforeTheLetters()
    {
        QCOMPARE(rowsOf([](TestEscPosPrinter &printer) {
                     printer.println(u"normal"_s);
                     printer.setBold();
                     printer.setCenterJustify();
                     printer.setCharSize(); // ends both before a letter was printed in them
                     printer.println(u"normal"_s);
                     printer.setBold();
                     printer.println(u"bold"_s);
                     printer.println(u"bold"_s);
                     printer.println(QString());
                     printer.setCharSize(1);
                     printer.println(u"high"_s);
                     printer.setCharSize(2);
                     printer.setBold();
                     printer.println(u"large"_s);
                     printer.setCharSize(0);
                     printer.println(QString());
                     printer.println(u"normal"_s);
                 }),
                 escpos("'normal' 0A 'normal' 0A 1B4501 'bold' 0A 'bold' 0A 0A 1D2101 1B4500 'high' 0A "
                        "1D2111 1B4501 'large' 0A 0A 1D2100 1B4500 'normal' 0A"));
    }

    void sizesThatDoNotExist()
    {
        QCOMPARE(rowsOf([](TestEscPosPrinter &printer) {
                     printer.setCharSize(7);
                     printer.println(u"a"_s);
                     printer.setCharSize(-1);
                     printer.println(u"b"_s);
                 }),
                 escpos("1D2111 'a' 0A 1D2100 'b' 0A"));
    }

    void aRowMayChangeInTheMiddle()
    {
        QCOMPARE(rowsOf([](TestEscPosPrinter &printer) {
                     printer.print(2, u"a"_s);
                     printer.setBold();
                     printer.println(1, u"b"_s);
                 }),
                 escpos("'  a' 1B4501 ' b' 0A"));
    }

    void centringIsOnTheRowsOfTheDocument()
    {
        home.configure("palvestrin: { receiptdoc: { paperWidth = 10; }; };");
        QCOMPARE(rowsOf([](TestEscPosPrinter &printer) {
                     printer.setCenterJustify();
                     printer.println(u"ab"_s);
                     printer.println(u"abc"_s);
                     printer.println(QString());
                     printer.println(u"0123456789"_s);
                     printer.println(u"0123456789abc"_s);
                     printer.setCharSize(2);
                     printer.setCenterJustify();
                     printer.println(u"a"_s);
                     printer.println(u"abcdef"_s);
                 }),
                 escpos("'    ab' 0A '   abc' 0A 0A '0123456789' 0A '0123456789abc' 0A "
                        "1D2111 '  a' 0A 'abcdef' 0A"));
    }

    void aWidthBeyondAllPaperCentresNothing()
    {
        home.configure("palvestrin: { receiptdoc: { paperWidth = 2147483647; }; };");
        QCOMPARE(rowsOf([](TestEscPosPrinter &printer) {
                     printer.setCenterJustify();
                     printer.println(u"ab"_s);
                 }),
                 escpos("'ab' 0A"));
    }

    void widthsAreThoseOfThePrinter()
    {
        for (const Profile &profile : profiles) {
            printedOn(profile, [&](TestEscPosPrinter &printer) {
                printer.loadValues(u"receipt"_s);
                QCOMPARE(printer.getPaperWidth(), static_cast<unsigned>(profile.columns));
                QCOMPARE(printer.rowWidth(), profile.columns);
                printer.setCharSize(1);
                QCOMPARE(printer.rowWidth(), profile.columns);
                printer.setCharSize(2);
                QCOMPARE(printer.rowWidth(), profile.columns / 2);
            });
        }
    }

    void aLargeRowHasHalfTheColumns()
    {
        home.configure("palvestrin: { receiptdoc: { paperWidth = 24; quantityFieldWidth = 3; }; };");
        QCOMPARE(rowsOf([](TestEscPosPrinter &printer) {
                     printer.setCharSize(2);
                     printer.println(printer.descriptionRow(u"2"_s, u"Margherita"_s, {}, {}, u'.', u"qd"_s));
                     printer.printSeparatorLine();
                 }),
                 escpos("1D2111 '  2 Margh' 'e' 0A '============' 0A"));
    }

    void rowsTooWideForTheUsualFontAreNarrow()
    {
        home.configure("palvestrin: { receiptdoc: { paperWidth = 40; }; };");
        const QByteArray bytes = printedOn(profileNamed("58mm"), [](TestEscPosPrinter &printer) {
            printer.element(u"method"_s, {{u"name"_s, u"printFullOrderReceipt"_s}});
        });
        QCOMPARE(bytes, escpos("1B40 1C2E 1B4D01 1B7413 1B5200"));
        const QByteArray onGeneric = printedOn(profileNamed("generic"), [](TestEscPosPrinter &printer) {
            printer.element(u"method"_s, {{u"name"_s, u"printFullOrderReceipt"_s}});
        });
        QCOMPARE(onGeneric, escpos("1B40 1C2E 1B7400 1B5200"));
    }

    void lettersChangeThePage()
    {
        QCOMPARE(rowsOf([](TestEscPosPrinter &printer) {
                     printer.println(u"caffè 2 €"_s);
                     printer.println(u"zł"_s);
                     printer.println(u"œuf"_s);
                     printer.println(u"plain"_s);
                 }),
                 escpos("'caff' 8A ' 2 ' D5 0A 'z' 1B7412 88 0A 1B7410 9C 'uf' 0A 'plain' 0A"));
        QCOMPARE(rowsOf([](TestEscPosPrinter &printer) { printer.println(u"2 €, zł"_s); }, "generic"),
                 escpos("'2 ' 1B7413 D5 ', z?' 0A"));
    }

    void wideCharactersTakeTwoColumns()
    {
        home.configure("palvestrin: { receiptdoc: { paperWidth = 16; quantityFieldWidth = 2; }; };");
        QCOMPARE(rowsOf([](TestEscPosPrinter &printer) {
                     printer.println(printer.descriptionRow(u"1"_s, u"寿司"_s, {}, {}, u'.', u"qd"_s));
                     printer.println(printer.descriptionRow(u"1"_s, u"Sushi"_s, {}, {}, u'.', u"qd"_s));
                     printer.setCenterJustify();
                     printer.println(u"寿司"_s);
                 }),
                 escpos("' 1 ' 3F3F3F3F '       ' 0A ' 1 Sushi      ' 0A '      ' 3F3F3F3F 0A"));
    }

    void lostCharactersAreReported()
    {
        printedOn(profileNamed("generic"), [](TestEscPosPrinter &printer) {
            printer.loadValues(u"receipt"_s);
            printer.println(u"żółć 2 €"_s);
            printer.println(printer.descriptionRow(u"1"_s, u"ł"_s, {}, {}, u'.', u"qd"_s));
            const QMap<char32_t, qint64> expected = {{U'ł', 2}};
            QCOMPARE(printer.lostCharacters().counts, expected);
        });
    }

    void theDrawerOpensOnceBeforeTheFirstReceipt()
    {
        home.configure("palvestrin: { receiptdoc: { openCashDrawer = true; copyNumber = 2; }; "
                       "doc: { openCashDrawer = true; }; };");
        const QByteArray bytes = printedOn(profileNamed("80mm"), [](TestEscPosPrinter &printer) {
            printer.element(u"method"_s, {{u"name"_s, u"printPartialOrder"_s}});
            printer.element(u"method"_s, {{u"name"_s, u"printAbstractOrderReceipt"_s}});
            printer.element(u"method"_s, {{u"name"_s, u"printFullOrderReceipt"_s}});
            printer.endDocument();
        });
        const QByteArray document = escpos("1B40 1C2E 1B7413 1B5200 1D564200");
        QCOMPARE(bytes, document + escpos("1B70 00 19 FA") + document + document + document + document);
    }

    void theDrawerStaysShutUnlessConfigured()
    {
        const QByteArray bytes = printedOn(profileNamed("80mm"), [](TestEscPosPrinter &printer) {
            printer.element(u"method"_s, {{u"name"_s, u"printFullOrderReceipt"_s}});
        });
        QVERIFY(!bytes.contains(escpos("1B70")));
    }

    void theOtherPinOfTheDrawer()
    {
        Profile profile = profileNamed("80mm");
        const auto pulse = [](TestEscPosPrinter &printer) { printer.generatePulse(); };
        profile.drawer = Profile::Drawer::Pin5;
        QCOMPARE(printedOn(profile, pulse), escpos("1B70 01 19 FA"));
        profile.drawer = Profile::Drawer::None;
        QCOMPARE(printedOn(profile, pulse), QByteArray());
    }

    void copiesRepeatTheDocument()
    {
        home.configure("palvestrin: { receiptdoc: { copyNumber = 3; }; invoicedoc: { copyNumber = x; }; };");
        const QByteArray bytes = printedOn(profileNamed("80mm"), [](TestEscPosPrinter &printer) {
            printer.element(u"method"_s, {{u"name"_s, u"printFullOrderReceipt"_s}});
            printer.println(u"receipt"_s);
            printer.element(u"method"_s, {{u"name"_s, u"printFullOrderInvoice"_s}});
            printer.println(u"invoice"_s);
            printer.endDocument();
            QCOMPARE(printer.troubles(), QStringList());
        });
        const QByteArray receipt = escpos("1B40 1C2E 1B7413 1B5200 'receipt' 0A 1D564200");
        const QByteArray invoice = escpos("1B40 1C2E 1B7413 1B5200 'invoice' 0A 1D564200");
        QCOMPARE(bytes, receipt + receipt + receipt + invoice);
    }

    void noMoreCopiesThanNinetyNine()
    {
        home.configure("palvestrin: { receiptdoc: { copyNumber = 1000000; }; };");
        const QByteArray bytes = printedOn(profileNamed("80mm"), [](TestEscPosPrinter &printer) {
            printer.element(u"method"_s, {{u"name"_s, u"printFullOrderReceipt"_s}});
            printer.endDocument();
        });
        QCOMPARE(bytes.count(escpos("1D564200")), 99);
    }

    void theLastPageIsFilledUp_data()
    {
        QTest::addColumn<QByteArray>("paperRows");
        QTest::addColumn<int>("rows");
        QTest::addColumn<QByteArray>("feed");
        QTest::newRow("none") << QByteArray("0") << 3 << escpos("");
        QTest::newRow("part of a page") << QByteArray("10") << 3 << escpos("1B6407");
        QTest::newRow("a whole page") << QByteArray("3") << 3 << escpos("");
        QTest::newRow("part of the second") << QByteArray("3") << 4 << escpos("1B6402");
        QTest::newRow("a long page") << QByteArray("600") << 1 << escpos("1B64FF 1B64FF 1B6459");
        QTest::newRow("no page") << QByteArray("1001") << 1 << escpos("");
        QTest::newRow("negative") << QByteArray("-4") << 1 << escpos("");
    }
    void theLastPageIsFilledUp()
    {
        QFETCH(QByteArray, paperRows);
        QFETCH(int, rows);
        QFETCH(QByteArray, feed);
        home.configure("palvestrin: { receiptdoc: { paperRows = " + paperRows + "; }; };");
        QCOMPARE(rowsOf([&](TestEscPosPrinter &printer) {
                     for (int row = 0; row < rows; ++row)
                         printer.println(u"a"_s);
                     printer.endSection();
                 }),
                 escpos("'a' 0A").repeated(rows) + feed + escpos("1D564200"));
    }

    void highRowsTakeTwo()
    {
        home.configure("palvestrin: { receiptdoc: { paperRows = 4; }; };");
        QCOMPARE(rowsOf([](TestEscPosPrinter &printer) {
                     printer.setCharSize(1);
                     printer.println(u"a"_s);
                     printer.endSection();
                 }),
                 escpos("1D2101 'a' 0A 1B6402 1D564200"));
    }

    void theLogoOfThePrinter()
    {
        const auto logo = [](TestEscPosPrinter &printer) { printer.element(u"logo"_s); };
        const auto onReceipt = [&](TestEscPosPrinter &printer) {
            printer.currentMethod = u"printFullOrderReceipt"_s;
            logo(printer);
        };
        QCOMPARE(rowsOf(onReceipt), QByteArray()); // not asked for
        home.configure("palvestrin: { receiptdoc: { printLogo = true; }; };");
        QCOMPARE(rowsOf(onReceipt), escpos("1C70 01 00"));
        QCOMPARE(rowsOf(onReceipt, "generic"), QByteArray());
    }

    void aLogoFromAFile()
    {
        const QByteArray logo = "P4\n# a corner\n10 2\n" + escpos("FF40 8000");
        writeFile(home.filePath(u"logo.pbm"_s), logo);
        home.configure("palvestrin: { escpos: { logo = \"" + home.filePath(u"logo.pbm"_s).toUtf8() +
                       "\"; }; receiptdoc: { printLogo = true; }; };");
        QCOMPARE(rowsOf([](TestEscPosPrinter &printer) {
                     printer.printLogo();
                     printer.printLogo();
                     QCOMPARE(printer.troubles().join(u'|'), QString());
                 }),
                 escpos("1D7630 00 0200 0100 FF40 1D7630 00 0200 0100 8000").repeated(2));
        QCOMPARE(rowsOf([](TestEscPosPrinter &printer) { printer.printLogo(); }, "generic"), QByteArray());
    }

    void aLogoThatCannotBeRead()
    {
        home.configure(
            "palvestrin: { escpos: { logo = /no/logo.pbm; }; receiptdoc: { printLogo = true; }; };");
        QCOMPARE(rowsOf([](TestEscPosPrinter &printer) {
                     printer.printLogo();
                     QCOMPARE(printer.troubles(), QStringList(u"the logo \"/no/logo.pbm\" cannot be read: "
                                                              "No such file or directory"_s));
                 }),
                 QByteArray());
    }

    void registerDocumentsAreRefused()
    {
        for (const QString &method : {u"printFullOrderFiscal"_s, u"printAbstractOrderFiscal"_s}) {
            const QByteArray bytes = printedOn(profileNamed("80mm"), [&](TestEscPosPrinter &printer) {
                QVERIFY(printer.element(u"method"_s, {{u"name"_s, u"printFullOrder"_s}}));
                QVERIFY(!printer.element(u"method"_s, {{u"name"_s, method}}));
                QCOMPARE(printer.errorString(),
                         u"\""_s + method +
                             u"\" is for a cash register, which speaks a language of its "
                             "own: this printer prints everything else"_s);
            });
            QCOMPARE(bytes, escpos("1B40 1C2E 1B7413 1B5200"));
        }
    }

    void aDocumentBeginsInTheNormalMode()
    {
        const QByteArray bytes = printedOn(profileNamed("80mm"), [](TestEscPosPrinter &printer) {
            printer.element(u"method"_s, {{u"name"_s, u"printFullOrder"_s}});
            printer.setCharSize(2);
            printer.setBold();
            printer.setCenterJustify();
            printer.println(u"A"_s);
            printer.print(0, u"never ended"_s);
            printer.element(u"method"_s, {{u"name"_s, u"printFullOrder"_s}});
            printer.println(u"B"_s);
        });
        const QByteArray begin = escpos("1B40 1C2E 1B7413 1B5200");
        QCOMPARE(bytes,
                 begin + escpos("1D2111 1B4501 '           A' 0A 1D564200") + begin + escpos("'B' 0A"));
    }

    void anOutputThatCannotBeOpenedIsHarmless()
    {
        TestEscPosPrinter printer(NativeFileName{"/no/folder/out"}, profileNamed("80mm"));
        printer.startDocument();
        printer.element(u"method"_s, {{u"name"_s, u"printFullOrder"_s}});
        printer.println(u"text"_s);
        QVERIFY(printer.endDocument());
    }
};

QTEST_GUILESS_MAIN(EscPosPrinterDriverTest)
#include "escposprinterdriver_test.moc"
