#include "cataloguefile.h"
#include "labelscanner.h"

#include <QFile>
#include <QRegularExpression>
#include <QTemporaryFile>
#include <QTest>
#include <QTextCodec>
#include <QTranslator>

using namespace Qt::Literals::StringLiterals;

namespace {

const QStringList locales{u"it_IT"_s, u"de_DE"_s, u"fr_FR"_s, u"es_ES"_s};

struct LabelLimit
{
    QLatin1StringView label;
    qsizetype most;
};

// What fits on paper of 40 columns with a quantity column of 3 or 4 and price and total columns of 8.
constexpr LabelLimit labelLimits[] = {
    // Column titles. A title in a right-hand column leaves a blank on its left; the description of a
    // statement
    // of account has 14 characters, the date 15 with a blank behind it.
    {"Num"_L1, 3},
    {"Description"_L1, 14},
    {"Price"_L1, 7},
    {"Amount"_L1, 7},
    {"Date"_L1, 14},
    {"TAXRATE"_L1, 6},
    {"TAXABLE"_L1, 10},
    {"TAX"_L1, 10},
    {"AMOUNT"_L1, 10},
    {"SERIAL"_L1, 9},
    // Also a column title: the table of cancelled documents is its narrowest place.
    {"TOTAL"_L1, 10},
    // With a leader behind them: in the description of an invoice ...
    {"Taxable"_L1, 18},
    {"TaxRate"_L1, 18},
    {"Tax"_L1, 18},
    // ... and in a report, 15 characters short of the paper.
    {"Number"_L1, 24},
    {"Serials"_L1, 24},
    // Centred on the device's 32 columns.
    {"SUMMARIES"_L1, 31},
    {"PREFISCAL SUMMARY"_L1, 31},
    {"RECEIPTS SUMMARY"_L1, 31},
    {"INVOICES SUMMARY"_L1, 31},
    {"CANCELLED DOC SUMMARY"_L1, 31},
    // In front of an amount of 8 characters.
    {"    Amount not paid: "_L1, 32},
    {"Amount not paid: "_L1, 32},
    {"Cash: "_L1, 32},
    {"Credit Card: "_L1, 32},
    {"Bancomat: "_L1, 32},
    {"Other: "_L1, 32},
    // In front of a document number of 10.
    {"Serial Number: "_L1, 29},
    {"Invoice Number:"_L1, 28},
    {"Delivery Number:"_L1, 28},
    // In front of a date with a time of day, and of a name or a tax number of 18.
    {"BeginDate: "_L1, 24},
    {"EndDate: "_L1, 24},
    {"Date:"_L1, 20},
    {"Time:"_L1, 20},
    {"Table:"_L1, 20},
    {"Waiter:"_L1, 20},
    {"Note:"_L1, 20},
    {"Credit:"_L1, 20},
    {"Telephone:"_L1, 20},
    {"License Number:"_L1, 20},
    {"Fiscal Code:"_L1, 20},
    // A line of its own.
    {"CUSTOMER"_L1, 40},
    // On the screen: the caption of a small window, and the sentence in it.
    {"PaperWindow"_L1, 20},
    {"Insert a new sheet"_L1, 40},
};

// The description of a statement of account, less one for its leader.
constexpr qsizetype mostInAMovementType = 13;

QString sourcePath(const QString &locale)
{
    return QStringLiteral(CATALOGUE_SOURCES "/palvestrin_%1.ts").arg(locale);
}

QSet<QString> movementTypes()
{
    QFile file(QStringLiteral(CATALOGUE_SOURCES "/movement-types.txt"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
    return {lines.begin(), lines.end()};
}

QSet<QString> sourcesOf(const QList<CatalogueEntry> &entries)
{
    QSet<QString> sources;
    for (const CatalogueEntry &entry : entries)
        sources += entry.source;
    return sources;
}

/// The texts of a catalogue in one of its two contexts: "QObject" for the paper, "HLibrary" for the screen.
QSet<QString> sourcesIn(QLatin1StringView context, const QString &locale)
{
    QList<CatalogueEntry> entries = readCatalogue(sourcePath(locale));
    entries.removeIf([&](const CatalogueEntry &entry) { return entry.context != context; });
    return sourcesOf(entries);
}

qsizetype most(const QString &source)
{
    for (const LabelLimit &limit : labelLimits) {
        if (source == limit.label)
            return limit.most;
    }
    return movementTypes().contains(source) ? mostInAMovementType : -1;
}

// The blanks around a text, and the colon in front of the closing ones.
QStringList edges(const QString &text)
{
    static const QRegularExpression form(u"^( *)(?:.*[^ :])? *(:?)( *)$"_s);
    return form.match(text).capturedTexts().mid(1);
}

QString sorted(const QSet<QString> &texts)
{
    QStringList list(texts.begin(), texts.end());
    list.sort();
    return list.join(u'|');
}

void addRowPerLocale()
{
    QTest::addColumn<QString>("locale");
    for (const QString &locale : locales)
        QTest::newRow(qPrintable(locale)) << locale;
}

} // namespace

class CataloguesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theScannerFindsMarkedTexts_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("labels");
        QTest::newRow("call") << uR"(println(QObject::tr("Date:") + date);)"_s << u"Date:"_s;
        QTest::newRow("blanks kept") << uR"(tr("    Amount not paid: "))"_s << u"    Amount not paid: "_s;
        QTest::newRow("two in a line") << uR"(row(tr("Num"), tr("Price")))"_s << u"Num|Price"_s;
        QTest::newRow("line break") << u"tr(\n    \"CANCELLED DOC SUMMARY\")"_s << u"CANCELLED DOC SUMMARY"_s;
        QTest::newRow("table") << uR"({QT_TR_NOOP("Tax"), "tax"})"_s << u"Tax"_s;
        QTest::newRow("table with context") << uR"(QT_TRANSLATE_NOOP("QObject", "Cash: "))"_s << u"Cash: "_s;
        QTest::newRow("call with context")
            << uR"(QCoreApplication::translate("HLibrary", "Insert a new sheet"))"_s
            << u"Insert a new sheet"_s;
        QTest::newRow("no literal") << uR"(tr(type); attr("date"); QLatin1String("name"))"_s << QString();
    }

    void theScannerFindsMarkedTexts()
    {
        QFETCH(QString, text);
        QTEST(sorted(labelsInSource(text)), "labels");
    }

    void theCatalogueReaderTellsUnfinishedEntries()
    {
        QTemporaryFile file;
        QVERIFY(file.open());
        file.write("<?xml version=\"1.0\"?><TS version=\"2.1\"><context><name>QObject</name>"
                   "<message><source> A </source><translatorcomment>c</translatorcomment>"
                   "<translation> B </translation></message>"
                   "<message><source>C</source><translation type=\"unfinished\">D</translation></message>"
                   "</context></TS>");
        file.close();
        const QList<CatalogueEntry> entries = readCatalogue(file.fileName());
        QCOMPARE(entries.size(), 2);
        QCOMPARE(entries[0].context, u"QObject"_s);
        QCOMPARE(entries[0].source, u" A "_s);
        QCOMPARE(entries[0].translation, u" B "_s);
        QVERIFY(entries[0].finished);
        QVERIFY(!entries[1].finished);
    }

    void everyLabelOfTheSourcesHasAnEntryAndEveryEntryALabel_data() { addRowPerLocale(); }

    void everyLabelOfTheSourcesHasAnEntryAndEveryEntryALabel()
    {
        QFETCH(QString, locale);
        const QSet<QString> labels = labelsInFolder(QStringLiteral(RENDER_SOURCES));
        QVERIFY2(labels.size() >= 30, "the scanner no longer finds the labels in " RENDER_SOURCES);
        const QSet<QString> entries = sourcesIn("QObject"_L1, locale);
        QCOMPARE(sorted(labels - entries), QString());
        QCOMPARE(sorted(entries - labels - movementTypes()), QString());
    }

    void theRequestForANewSheetHasItsEntries_data() { addRowPerLocale(); }

    void theRequestForANewSheetHasItsEntries()
    {
        QFETCH(QString, locale);
        QCOMPARE(sorted(labelsInFolder(QStringLiteral(UTIL_SOURCES))), u"Insert a new sheet|PaperWindow"_s);
        QCOMPARE(sorted(sourcesIn("HLibrary"_L1, locale)), u"Insert a new sheet|PaperWindow"_s);
    }

    void everyMovementTypeHasAnEntry_data() { addRowPerLocale(); }

    void everyMovementTypeHasAnEntry()
    {
        QFETCH(QString, locale);
        QVERIFY(!movementTypes().isEmpty());
        QCOMPARE(sorted(movementTypes() - sourcesOf(readCatalogue(sourcePath(locale)))), QString());
    }

    void everyEntryIsFinishedOnceAndWhereTheTranslatorLooks_data() { addRowPerLocale(); }

    void everyEntryIsFinishedOnceAndWhereTheTranslatorLooks()
    {
        QFETCH(QString, locale);
        const QList<CatalogueEntry> entries = readCatalogue(sourcePath(locale));
        QVERIFY(!entries.isEmpty());
        QCOMPARE(sourcesOf(entries).size(), entries.size());
        QCOMPARE(sourcesIn("QObject"_L1, locale) + sourcesIn("HLibrary"_L1, locale), sourcesOf(entries));
        for (const CatalogueEntry &entry : entries)
            QVERIFY2(entry.finished && !entry.translation.isEmpty(), qPrintable(entry.source));
    }

    void theBuiltCatalogueAnswersWithTheEntries_data() { addRowPerLocale(); }

    void theBuiltCatalogueAnswersWithTheEntries()
    {
        QFETCH(QString, locale);
        QTranslator translator;
        QVERIFY(translator.load(QStringLiteral(BUILT_CATALOGUES "/palvestrin_") + locale));
        QCOMPARE(translator.language(), locale);
        for (const CatalogueEntry &entry : readCatalogue(sourcePath(locale)))
            QCOMPARE(
                translator.translate(entry.context.toUtf8().constData(), entry.source.toUtf8().constData()),
                entry.translation);
    }

    void everyTranslationPrintsWhole_data()
    {
        QTest::addColumn<QString>("source");
        QTest::addColumn<QString>("translation");
        for (const QString &locale : locales) {
            for (const CatalogueEntry &entry : readCatalogue(sourcePath(locale)))
                QTest::addRow("%s: %s", qPrintable(locale), qPrintable(entry.source))
                    << entry.source << entry.translation;
        }
    }

    void everyTranslationPrintsWhole()
    {
        QFETCH(QString, source);
        QFETCH(QString, translation);
        const qsizetype limit = most(source);
        QVERIFY2(limit >= 0, "neither in the table of limits nor in movement-types.txt");
        QVERIFY2(
            translation.size() <= limit,
            qPrintable(
                u"\"%1\" has %2 characters, %3 fit"_s.arg(translation).arg(translation.size()).arg(limit)));
        QCOMPARE(edges(translation), edges(source));
        // A western printer's alphabet.
        QVERIFY(QTextCodec::codecForName("ISO-8859-15")->canEncode(translation));
    }

    void noTranslationIsRewrittenByTheDevice()
    {
        // It would put "SOMMA" in the place of "TOTALE" after the columns were laid out.
        for (const QString &locale : locales) {
            for (const CatalogueEntry &entry : readCatalogue(sourcePath(locale)))
                QVERIFY2(!entry.translation.contains("TOTALE"_L1), qPrintable(locale + u' ' + entry.source));
        }
    }
};

QTEST_GUILESS_MAIN(CataloguesTest)
#include "catalogues_test.moc"
