// The output is in the encoding of the locale: proven with locales that the test makes for itself.

#include "localeoutput.h"
#include "program.h"
#include "temporaryhome.h"
#include "wholefile.h"

#include <QScopeGuard>
#include <QTest>

#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString program = QStringLiteral(PALVESTRIN_PRINT);

/// newlocale() of the C library forgets the folders that it reads in LOCPATH, so the sanitizers' build must
/// not look for leaks here. Other builds do not know the variable.
const QString withoutLeakCheck = u"ASAN_OPTIONS=detect_leaks=0"_s;

/// A job whose one line holds `text`.
QByteArray jobWith(const QString &text)
{
    return uR"(<?xml version="1.0" encoding="UTF-8"?><job><method name="printFullOrderReceipt"/>)"
           uR"(<notPaid price="%1"/></job>)"_s.arg(text)
               .toUtf8();
}

QByteArray paperWith(const QByteArray &bytes)
{
    return "\nj\n\"\"@\n\"    Amount not paid: " + bytes + "\"@\nJ\n";
}

} // namespace

class EncodingTest : public QObject
{
    Q_OBJECT

private:
    const TemporaryHome home;
    const QString locales = home.filePath(u"locales"_s);

    void makeLocale(const QString &source, const QString &charmap, const QString &modifier = {})
    {
        QVERIFY(QDir().mkpath(locales));
        const QString folder = locales + u'/' + source + u'.' + charmap + modifier;
        QProcess localedef;
        localedef.start(u"localedef"_s, {u"-i"_s, source, u"-f"_s, charmap, folder});
        QVERIFY(localedef.waitForFinished());
        QVERIFY2(QFile::exists(folder + u"/LC_CTYPE"_s),
                 "localedef made no locale: is the package locales there?");
    }
    QByteArray read(const QString &name)
    {
        QFile file(home.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(not there)");
    }
    ProgramRun print(const QByteArray &job, const QString &out, const QStringList &environment)
    {
        QFile file(home.filePath(u"job.xml"_s));
        if (!file.open(QIODevice::WriteOnly) || file.write(job) != job.size())
            qFatal("cannot write the job");
        file.close();
        return runProgram(program, {u"job.xml"_s, out},
                          QStringList{u"HOME="_s + home.path(), u"LOCPATH="_s + locales, withoutLeakCheck} +
                              environment,
                          home.path());
    }

private Q_SLOTS:
    void initTestCase()
    {
        makeLocale(u"it_IT"_s, u"ISO-8859-15"_s);
        makeLocale(u"it_IT"_s, u"UTF-8"_s);
        makeLocale(u"ja_JP"_s, u"EUC-JP"_s);
        makeLocale(u"fr_FR"_s, u"ISO-8859-15"_s);
        makeLocale(u"de_DE"_s, u"UTF-8"_s);
        makeLocale(u"it_IT"_s, u"ISO-8859-15"_s, u"@euro"_s);
    }

    void init() { home.configure("palvestrin: { };"); }

    void encodings_data()
    {
        QTest::addColumn<QString>("variable");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QByteArray>("bytes");
        const QString text = u"caffè 5 € œ"_s;
        const QByteArray latin9("caff\xe8 5 \xa4 \xbd");
        QTest::newRow("latin-9") << u"LC_ALL=it_IT.ISO-8859-15"_s << text << latin9;
        QTest::newRow("latin-9 by LC_CTYPE") << u"LC_CTYPE=it_IT.ISO-8859-15"_s << text << latin9;
        QTest::newRow("latin-9 by LANG") << u"LANG=it_IT.ISO-8859-15"_s << text << latin9;
        QTest::newRow("utf-8") << u"LC_ALL=it_IT.UTF-8"_s << text << text.toUtf8();
        QTest::newRow("posix") << u"LC_ALL=POSIX"_s << text << text.toUtf8();
        QTest::newRow("c") << u"LC_ALL=C"_s << text << text.toUtf8();
        QTest::newRow("none") << u"UNRELATED=1"_s << text << text.toUtf8();
        QTest::newRow("not installed") << u"LC_ALL=fr_FR.ISO-8859-1"_s << text << text.toUtf8();
        QTest::newRow("euc-jp") << u"LC_ALL=ja_JP.EUC-JP"_s << u"寿司"_s << QByteArray("\xbc\xf7\xbb\xca");
        QTest::newRow("missing characters")
            << u"LC_ALL=it_IT.ISO-8859-15"_s << u"寿司 \U0001F355 è"_s << QByteArray("?? ? \xe8");
        QTest::newRow("outside the basic plane")
            << u"LC_ALL=it_IT.UTF-8"_s << u"\U0001F355"_s << QByteArray("\xf0\x9f\x8d\x95");
    }
    void encodings()
    {
        QFETCH(QString, variable);
        QFETCH(QString, text);
        QFETCH(QByteArray, bytes);
        const ProgramRun result = print(jobWith(text), u"out"_s, {variable});
        QCOMPARE(result.exitStatus, 0);
        QCOMPARE(result.standardOutput, QByteArray());
        QCOMPARE(result.standardError, QByteArray());
        QCOMPARE(read(u"out"_s), paperWith(bytes));
    }

    /// A receipt in the language of the house and in the alphabet of its printer.
    void languages_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("item");
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("french, latin-9") << u"fr_FR.ISO-8859-15"_s << u"Œufs à 3 €"_s
                                         << QByteArray("\nj\n"
                                                       "\" Re\xe7u n\xb0 : 7\"@\n"
                                                       "\"========================================\"@\n"
                                                       "\"Qt\xe9 D\xe9signation             Prix Montant\"@\n"
                                                       "\"  2 x \xbc"
                                                       "ufs \xe0 3 \xa4............3,00    6,00\"@\n"
                                                       "\"\"@\n"
                                                       "\"    Reste \xe0 payer : 1,00 \xa4\"@\nJ\n");
        QTest::newRow("german, utf-8")
            << u"de_DE.UTF-8"_s << u"Käsespätzle für 3 €"_s
            << QByteArray("\nj\n"
                          "\" Beleg-Nr.: 7\"@\n"
                          "\"========================================\"@\n"
                          "\"Anz Bezeichnung            Preis  Betrag\"@\n"
                          "\"  2 x K\xc3\xa4sesp\xc3\xa4tzle f\xc3\xbcr 3 ....3,00    6,00\"@\n"
                          "\"\"@\n"
                          "\"    Nicht bezahlt: 1,00 \xe2\x82\xac\"@\nJ\n");
    }
    void languages()
    {
        QFETCH(QString, locale);
        QFETCH(QString, item);
        home.configure("palvestrin: {"
                       " language: { basedir = " CATALOGUE_FOLDER "; file = /; };"
                       " receiptdoc: { quantityFieldWidth = 3; priceFieldWidth = 8; totalPriceFieldWidth = 8;"
                       "   paperWidth = 40; };"
                       "};");
        const QString job = uR"(<job><method name="printFullOrderReceipt"/><receipt serialnumber="7"/>)"
                            uR"(<receipe number="2" name="%1" price="3,00" totalPrice="6,00"/>)"
                            uR"(<notPaid price="1,00 €"/></job>)"_s.arg(item);
        const ProgramRun result = print(job.toUtf8(), u"out"_s, {u"LC_ALL="_s + locale});
        QCOMPARE(result.standardOutput + result.standardError, QByteArray());
        QTEST(read(u"out"_s), "bytes");
    }

    /// The label of a receipt's number, and an e with an accent.
    void oneLocaleDecidesTheWordsAndTheBytes_data()
    {
        QTest::addColumn<QStringList>("environment");
        QTest::addColumn<QByteArray>("line");
        const QByteArray italian = "Ricevuta n.: \xc3\xa8";
        const QByteArray italianInLatin9 = "Ricevuta n.: \xe8";
        const QByteArray english = "Serial Number: \xc3\xa8";
        QTest::newRow("LANGUAGE decides nothing")
            << QStringList{u"LANGUAGE=de:fr"_s, u"LC_ALL=it_IT.UTF-8"_s} << italian;
        QTest::newRow("LANGUAGE alone decides nothing") << QStringList{u"LANGUAGE=it"_s} << english;
        QTest::newRow("LC_MESSAGES decides nothing")
            << QStringList{u"LC_MESSAGES=de_DE.UTF-8"_s, u"LANG=it_IT.UTF-8"_s} << italian;
        QTest::newRow("LC_MESSAGES alone decides nothing")
            << QStringList{u"LC_MESSAGES=it_IT.UTF-8"_s} << english;
        QTest::newRow("LC_ALL before LC_CTYPE")
            << QStringList{u"LC_CTYPE=de_DE.UTF-8"_s, u"LC_ALL=it_IT.ISO-8859-15"_s} << italianInLatin9;
        QTest::newRow("LC_CTYPE before LANG")
            << QStringList{u"LANG=de_DE.UTF-8"_s, u"LC_CTYPE=it_IT.ISO-8859-15"_s} << italianInLatin9;
        QTest::newRow("LC_CTYPE alone") << QStringList{u"LC_CTYPE=it_IT.ISO-8859-15"_s} << italianInLatin9;
        QTest::newRow("LANG alone") << QStringList{u"LANG=it_IT.UTF-8"_s} << italian;
        QTest::newRow("an empty one is none")
            << QStringList{u"LC_ALL="_s, u"LC_CTYPE="_s, u"LANG=it_IT.ISO-8859-15"_s} << italianInLatin9;
        QTest::newRow("with a modifier")
            << QStringList{u"LC_ALL=it_IT.ISO-8859-15@euro"_s} << italianInLatin9;
        QTest::newRow("not installed") << QStringList{u"LC_ALL=it_CH.ISO-8859-1@euro"_s} << italian;
        QTest::newRow("a language without a country") << QStringList{u"LC_ALL=it"_s} << italian;
        QTest::newRow("C before LANG") << QStringList{u"LC_ALL=C"_s, u"LANG=it_IT.UTF-8"_s} << english;
        QTest::newRow("C with an encoding")
            << QStringList{u"LC_CTYPE=C.UTF-8"_s, u"LANG=it_IT.UTF-8"_s} << english;
        QTest::newRow("POSIX") << QStringList{u"LC_ALL=POSIX"_s, u"LANGUAGE=it"_s} << english;
        QTest::newRow("no locale's name") << QStringList{u"LC_ALL=../it_IT.UTF-8"_s} << english;
        QTest::newRow("none") << QStringList{} << english;
    }
    void oneLocaleDecidesTheWordsAndTheBytes()
    {
        QFETCH(const QStringList, environment);
        QFETCH(const QByteArray, line);
        home.configure("palvestrin: { language: { basedir = " CATALOGUE_FOLDER "; file = /; };"
                       " receiptdoc: { paperWidth = 1; }; };");
        const QByteArray job =
            "<job><method name=\"printFullOrderReceipt\"/><receipt serialnumber=\"\xc3\xa8\"/></job>";
        const ProgramRun result = print(job, u"out"_s, environment);
        QCOMPARE(result.failure + QString::fromUtf8(result.standardOutput + result.standardError), QString());
        QCOMPARE(read(u"out"_s), "\nj\n\" " + line + "\"@\n\"=\"@\nJ\n");
    }

    void theLastVariableOfTheStandardDecides()
    {
        print(jobWith(u"è"_s), u"out"_s, {u"LANG=it_IT.UTF-8"_s, u"LC_CTYPE=it_IT.ISO-8859-15"_s});
        QCOMPARE(read(u"out"_s), paperWith("\xe8"));
        print(jobWith(u"è"_s), u"out"_s, {u"LC_CTYPE=it_IT.ISO-8859-15"_s, u"LC_ALL=it_IT.UTF-8"_s});
        QCOMPARE(read(u"out"_s), paperWith("\xc3\xa8"));
    }

    void theDecimalSeparatorIsAPointInEveryLocale()
    {
        const QByteArray job =
            R"(<job><method name="printFullOrderFiscal"/><receipe name="T" price="12,345"/></job>)";
        print(job, u"out"_s, {u"LC_ALL=it_IT.ISO-8859-15"_s});
        QCOMPARE(read(u"out"_s), QByteArray("\n\"T\"*1234.5HR\r\n"));
    }

    void fileNamesAreBytesInEveryLocale_data()
    {
        QTest::addColumn<QString>("locale");
        for (const QString &locale : {u"it_IT.ISO-8859-15"_s, u"it_IT.UTF-8"_s, u"C"_s})
            QTest::addRow("%s", qPrintable(locale)) << locale;
    }
    void fileNamesAreBytesInEveryLocale()
    {
        QFETCH(QString, locale);
        // QProcess hands over UTF-8, so a shell types the name.
        const QString script =
            uR"--(exec "$PROGRAM" "$(printf 'conto-\350.xml')" "$(printf 'stampa-\350')")--"_s;
        const QByteArray folder = home.path().toUtf8() + "/";
        const auto removal = qScopeGuard([&folder] { // the toolkit cannot name these files
            for (const char *name : {"conto-\xe8.xml", "stampa-\xe8"})
                unlink((folder + name).constData());
        });
        writeFile(home.filePath(u"plain.xml"_s), jobWith(u"e"_s));
        QVERIFY(rename((folder + "plain.xml").constData(), (folder + "conto-\xe8.xml").constData()) == 0);
        const ProgramRun result =
            runProgram(u"/bin/sh"_s, {u"-c"_s, script},
                       {u"HOME="_s + home.path(), u"LOCPATH="_s + locales, withoutLeakCheck,
                        u"PROGRAM="_s + program, u"LC_ALL="_s + locale},
                       home.path());
        QCOMPARE(result.standardOutput + result.standardError, QByteArray());
        QVERIFY(rename((folder + "stampa-\xe8").constData(), (folder + "stampa").constData()) == 0);
        QCOMPARE(contentOf(home.filePath(u"stampa"_s)), paperWith("e"));
    }

    void appending()
    {
        const QString path = home.filePath(u"appended"_s);
        for (const bool append : {false, true, true}) {
            LocaleOutput output(path.toUtf8(), append);
            output << u"line\n"_s;
            QVERIFY(output.close());
        }
        QCOMPARE(read(u"appended"_s), QByteArray("line\nline\nline\n"));
        LocaleOutput(path.toUtf8(), false).close();
        QCOMPARE(read(u"appended"_s), QByteArray());
    }

    void aFullDiskIsNoticed()
    {
        LocaleOutput output("/dev/full", false);
        QVERIFY(output.isOpen());
        output << u"line\n"_s; // only buffered
        QVERIFY(!output.close());
        QCOMPARE(output.errorString(), u"No space left on device"_s);
    }
};

QTEST_GUILESS_MAIN(EncodingTest)
#include "encoding_test.moc"
