#include "capturedoutput.h"
#include "configuredhome.h"
#include "hlibrary.h"

#include <QElapsedTimer>
#include <QRegularExpression>
#include <QTest>

#include <csignal>
#include <limits>
#include <sys/time.h>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Makes a folder of the test's own the current one while it lives.
class CurrentFolder
{
public:
    CurrentFolder() : saved(QDir::currentPath()) { QDir::setCurrent(folder.path()); }
    ~CurrentFolder() { QDir::setCurrent(saved); }
    CurrentFolder(const CurrentFolder &) = delete;
    CurrentFolder &operator=(const CurrentFolder &) = delete;

private:
    QTemporaryDir folder;
    QString saved;
};

} // namespace

class HLibraryTest : public QObject
{
    Q_OBJECT

private:
    const ConfiguredHome home{};

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u".*"_s)); }

    void fixedAnswers()
    {
        QCOMPARE(HLibrary::appData(), u""_s);
        QCOMPARE(HLibrary::programFiles(), u""_s);
        QCOMPARE(HLibrary::toWindowsFormat(u"/a\\b/Caffè"_s), u"/a\\b/Caffè"_s);
        QCOMPARE(HLibrary::fromUtf8(u"Caffè € Ã¨"_s), u"Caffè € Ã¨"_s);
        QCOMPARE(HLibrary::psql(), u"psql"_s);
        QCOMPARE(HLibrary::dropdb(), u"dropdb"_s);
        QCOMPARE(HLibrary::pg_dump(), u"pg_dump"_s);
        QCOMPARE(HLibrary::pg_restore(), u"pg_restore"_s);
    }

    void dataPathIsTheHome() { QCOMPARE(HLibrary::dataPath(), home.path()); }

    void pathWithBinaryFile()
    {
        home.configure("palvestrin: { bin: { path = /usr/lib/shop; }; };");
        QCOMPARE(HLibrary::pathWithBinaryFile(u"printer"_s), u"/usr/lib/shop/printer"_s);
        home.configure("palvestrin: { a = b; };");
        QCOMPARE(HLibrary::pathWithBinaryFile(u"printer"_s), u"/printer"_s);
    }

    void databaseSettings()
    {
        home.configure(
            "palvestrin: { db: { dbname = shop; username = me; password = \"a b\"; hostname = h; }; };");
        QCOMPARE(HLibrary::dbname(), u"shop"_s);
        QCOMPARE(HLibrary::username(), u"me"_s);
        QCOMPARE(HLibrary::password(), u"a b"_s);
        QCOMPARE(HLibrary::hostname(), u"h"_s);
        home.configure("palvestrin: { a = b; };");
        QCOMPARE(HLibrary::dbname() + HLibrary::username() + HLibrary::password() + HLibrary::hostname(),
                 u""_s);
    }

    void getCoreFile()
    {
        const CurrentFolder folder;
        QCOMPARE(HLibrary::getCoreFile(), u""_s);
        HLibrary::touch(u"score"_s);
        HLibrary::touch(u"CORE.1"_s); // the system writes small letters
        QCOMPARE(HLibrary::getCoreFile(), u""_s);
        HLibrary::touch(u"core.7"_s);
        QCOMPARE(HLibrary::getCoreFile(), u"core.7"_s);
        HLibrary::touch(u"core.123"_s);
        QCOMPARE(HLibrary::getCoreFile(), u"core.123"_s); // by name, not by number
        HLibrary::touch(u"core"_s);
        QCOMPARE(HLibrary::getCoreFile(), u"core"_s);
    }

    void touchMakesAnEmptyFile()
    {
        const QString path = home.filePath(u"touched"_s);
        HLibrary::touch(path);
        QVERIFY(QFile::exists(path));
        QCOMPARE(QFileInfo(path).size(), 0);
    }

    void touchEmptiesAFile()
    {
        const QString path = home.filePath(u"full"_s);
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("content");
        file.close();
        HLibrary::touch(path);
        QCOMPARE(QFileInfo(path).size(), 0);
    }

    void touchFailsInSilence()
    {
        const CapturedOutput output;
        HLibrary::touch(home.filePath(u"no/such/folder"_s));
        HLibrary::touch(home.path());
        HLibrary::touch(QString());
        QCOMPARE(output.bytes(), QByteArray());
    }

    void getNewRandIsSeededWithTheSecond()
    {
        // The clock may turn over between the two readings, so the answer may belong to either second.
        const auto before = static_cast<unsigned int>(time(nullptr));
        const QString answer = HLibrary::getNewRand();
        const auto after = static_cast<unsigned int>(time(nullptr));
        QStringList possible;
        for (unsigned int second = before; second <= after; ++second) {
            srand(second);
            possible << QString::number(rand());
        }
        QVERIFY2(possible.contains(answer), qPrintable(answer));
    }

    void hsleep()
    {
        QElapsedTimer timer;
        timer.start();
        QCOMPARE(HLibrary::hsleep(0), 0U);
        QCOMPARE(HLibrary::hsleep(1), 0U);
        QCOMPARE_GE(timer.elapsed(), 1000);
    }

    void hsleepTellsWhatASignalLeft()
    {
        const auto saved = signal(SIGALRM, [](int) {});
        alarm(1);
        const unsigned int left = HLibrary::hsleep(60);
        signal(SIGALRM, saved);
        QCOMPARE_GE(left, 50U);
        QCOMPARE_LE(left, 59U);
    }

    void copyNumber_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("expected");
        QTest::addColumn<QByteArray>("message");
        const QByteArray none;
        QTest::newRow("order") << u"order"_s << u"1"_s << none;
        QTest::newRow("prefiscal") << u"prefiscal"_s << u"2"_s << none;
        QTest::newRow("fiscal") << u"fiscal"_s << u"3"_s << none;
        QTest::newRow("receipt") << u"receipt"_s << u"4"_s << none;
        QTest::newRow("any case") << u"Receipt"_s << u"4"_s << none;
        QTest::newRow("invoice") << u"INVOICE"_s << u"5 or so"_s << none; // text, whatever it says
        QTest::newRow("delivery") << u"delivery"_s << u"6"_s << none;
        QTest::newRow("report, not set") << u"report"_s << u""_s << none;
        QTest::newRow("sold") << u"Sold"_s << u"2"_s
                              << QByteArray("Error into HLibrary::copyNumber::documentPath: sold\n");
        QTest::newRow("nothing") << u""_s << u"2"_s
                                 << QByteArray("Error into HLibrary::copyNumber::documentPath: \n");
        QTest::newRow("a section") << u"orderdoc"_s << u"2"_s
                                   << QByteArray("Error into HLibrary::copyNumber::documentPath: orderdoc\n");
        QTest::newRow("a blank") << u" order"_s << u"2"_s
                                 << QByteArray("Error into HLibrary::copyNumber::documentPath:  order\n");
    }
    void copyNumber()
    {
        QFETCH(const QString, kind);
        home.configure("palvestrin: { doc: { copyNumber = 1; }; prefiscaldoc: { copyNumber = 2; };"
                       " fiscaldoc: { copyNumber = 3; }; receiptdoc: { copyNumber = 4; };"
                       " invoicedoc: { copyNumber = 5 or so; }; deliverydoc: { copyNumber = 6; };"
                       " reportdoc: { a = b; }; solddoc: { copyNumber = 8; }; };");
        const CapturedOutput output;
        QTEST(HLibrary::copyNumber(kind), "expected");
        QTEST(output.bytes(), "message");
    }

    void truncateDecimal_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<QString>("expected");
        QTest::newRow("2.5") << 2.5 << u"2.50"_s;
        QTest::newRow("3") << 3.0 << u"3.00"_s;
        QTest::newRow("12.345") << 12.345 << u"12.35"_s;
        QTest::newRow("2.555") << 2.555 << u"2.56"_s;
        QTest::newRow("0.004") << 0.004 << u"0.00"_s;
        QTest::newRow("0.005") << 0.005 << u"0.01"_s;
        QTest::newRow("19.999") << 19.999 << u"20.00"_s;
        QTest::newRow("-2.556") << -2.556 << u"-2.55"_s;
        QTest::newRow("1.005 is just below") << 1.005 << u"1.00"_s;
        QTest::newRow("0") << 0.0 << u"0.00"_s;
        QTest::newRow("-0.004") << -0.004 << u"0.00"_s;
        QTest::newRow("-0.01") << -0.01 << u"-0.01"_s;
        QTest::newRow("0.0149") << 0.0149 << u"0.01"_s;
        QTest::newRow("100000.1") << 100000.1 << u"100000.10"_s;
        QTest::newRow("1234567.89") << 1234567.89 << u"1234567.89"_s; // 15 digits: no exponent, no tail
        QTest::newRow("2147483.64") << 2147483.64 << u"2147483.64"_s;
        QTest::newRow("-2147483.64") << -2147483.64 << u"-2147483.64"_s;
    }
    void truncateDecimal()
    {
        QFETCH(const double, value);
        QTEST(HLibrary::truncateDecimal(value), "expected");
    }

    /// The text means nothing, but it is a text with two decimals, and nothing is undefined on the way.
    void amountsThatAreTooLarge_data()
    {
        QTest::addColumn<double>("value");
        QTest::newRow("just too large") << 2147483.648;
        QTest::newRow("just too small") << -2147483.649;
        QTest::newRow("large") << 1e300;
        QTest::newRow("small") << -1e300;
        QTest::newRow("largest") << std::numeric_limits<double>::max();
        QTest::newRow("infinite") << std::numeric_limits<double>::infinity();
        QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN();
    }
    void amountsThatAreTooLarge()
    {
        QFETCH(const double, value);
        const QString text = HLibrary::truncateDecimal(value);
        QVERIFY2(QRegularExpression(uR"(^-?\d+\.\d\d$)"_s).match(text).hasMatch(), qPrintable(text));
    }

    void everyHundredthIsItself()
    {
        for (int cents = 0; cents < 100'000; ++cents) {
            const QString expected = u"%1.%2"_s.arg(cents / 100).arg(cents % 100, 2, 10, QChar(u'0'));
            // Half a thousandth more, so that the binary form does not fall below the thousandth.
            QCOMPARE(HLibrary::truncateDecimal(cents / 100.0 + 0.0005), expected);
        }
    }
};

QTEST_GUILESS_MAIN(HLibraryTest)
#include "hlibrary_test.moc"
