#include "escposbytes.h"
#include "madelocale.h"
#include "program.h"
#include "temporaryhome.h"
#include "wholefile.h"

#include <QDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

/// `palvestrin render` as people use it.
class RenderCommandTest : public QObject
{
    Q_OBJECT

private:
    const TemporaryHome home;
    const QString examples = QStringLiteral(PALVESTRIN_SOURCE_DIR "/examples");

    ProgramRun palvestrin(const QStringList &words) const
    {
        return runProgram(QStringLiteral(PALVESTRIN_PROGRAM), words, bareEnvironment(home.path()),
                          home.path());
    }
    QByteArray output() const { return contentOf(home.filePath(u"out"_s)); }
    void writeJob(const QByteArray &job) const { writeFile(home.filePath(u"job.xml"_s), job); }

private Q_SLOTS:
    void init() { home.configure("palvestrin: { doc: { paperWidth = 12; quantityFieldWidth = 2; }; };"); }

    void theLinePrintersBytesAreThoseOfTheRenderer()
    {
        const QDir jobs(examples + u"/jobs"_s);
        home.configure(contentOf(examples + u"/home/.palvestrin/conf/palvestrin.conf"_s));
        for (const QString &name : jobs.entryList({u"*.xml"_s})) {
            const QStringList files = {jobs.filePath(name), u"out"_s};
            QCOMPARE(
                runProgram(QStringLiteral(PALVESTRIN_PRINT), files, bareEnvironment(home.path()), home.path())
                    .failure,
                QString());
            const QByteArray expected = output();
            const ProgramRun run = palvestrin({u"render"_s, files[0], u"-o"_s, files[1]});
            QCOMPARE(run.failure, QString());
            QCOMPARE(run.standardOutput + run.standardError, QByteArray());
            QCOMPARE(output(), expected);
        }
    }

    void aReceiptPrinter()
    {
        writeJob("<job><method name=\"printPartialOrder\"/><receipe number=\"1\" name=\"\xC5\x81oso\xC5\x9B "
                 "\xE2\x82\xAC\"/>"
                 "</job>");
        const ProgramRun run = palvestrin({u"render"_s, u"job.xml"_s, u"--device"_s, u"escpos"_s,
                                           u"--profile"_s, u"generic"_s, u"-o"_s, u"out"_s});
        QCOMPARE(run.failure, QString());
        QCOMPARE(run.standardOutput, QByteArray());
        QCOMPARE(run.standardError,
                 QByteArray("job.xml: note: printed as \"?\", for the profile generic has no such "
                            "letters: \xC5\x81 (U+0141, 1 times)\n"));
        QCOMPARE(
            output(),
            escpos("1B40 1C2E 1B7400 1B5200 1B40 1C2E 1B7400 1B5200 ' 1 ' 3F 'osos ' 1B7413 D5 0A 1B6405"));
    }

    void lostLettersAreLogged()
    {
        home.configure("palvestrin: { logger: { level = WARNING; type = APPEND; basedir = " +
                       home.path().toUtf8() + "; filename = test.log; }; };");
        writeJob("<job><method name=\"printPartialOrder\"/><receipe name=\"\xC5\x82\"/></job>");
        palvestrin({u"render"_s, u"job.xml"_s, u"--device"_s, u"escpos"_s, u"--profile"_s, u"generic"_s,
                    u"-o"_s, u"out"_s});
        const QByteArray log = contentOf(home.filePath(u"test.log"_s));
        QVERIFY2(
            log.contains("WARNING: job.xml: printed as \"?\", for the profile generic has no such letters"),
            log);
    }

    void anotherConfiguration()
    {
        writeJob("<job><method name=\"printPartialOrder\"/><orderinfo/></job>");
        writeFile(home.filePath(u"other.conf"_s), "palvestrin: { doc: { paperWidth = 5; }; };");
        QCOMPARE(palvestrin({u"render"_s, u"job.xml"_s, u"--config"_s, u"other.conf"_s, u"-o"_s, u"out"_s})
                     .failure,
                 QString());
        QCOMPARE(output(), QByteArray("\nj\n\"=====\"@\nJ\n"));
    }

    void anotherLocale()
    {
        const QString locales = home.filePath(u"locales"_s);
        makeLocale(locales, u"it_IT"_s, u"ISO-8859-15"_s);
        home.configure("palvestrin: { language: { basedir = \"" TRANSLATIONS_FOLDER "\"; file = /; }; };");
        writeJob("<job><method name=\"printFullOrderReceipt\"/><notPaid price=\"\xE2\x82\xAC 1\"/></job>");
        const auto render = [&](const QStringList &words) {
            const ProgramRun run = runProgram(
                QStringLiteral(PALVESTRIN_PROGRAM),
                QStringList{u"render"_s, u"job.xml"_s, u"-o"_s, u"out"_s} + words,
                bareEnvironment(home.path()) + QStringList{u"LOCPATH="_s + locales, withoutLeakCheck},
                home.path());
            return run.failure.isEmpty() ? output() : run.failure.toUtf8();
        };
        const QStringList italian = {u"--locale"_s, u"it_IT.ISO-8859-15"_s};
        QCOMPARE(render({}), QByteArray("\nj\n\"\"@\n\"    Amount not paid: \xE2\x82\xAC 1\"@\nJ\n"));
        QCOMPARE(render(italian), QByteArray("\nj\n\"\"@\n\"    Corrispettivo non pagato: \xA4 1\"@\nJ\n"));
        // A receipt printer has letters of its own.
        const QStringList onGeneric = {u"--device"_s, u"escpos"_s, u"--profile"_s, u"generic"_s};
        QCOMPARE(render(italian + onGeneric),
                 escpos("1B40 1C2E 1B7400 1B5200 1B40 1C2E 1B7400 1B5200"
                        "0A '    Corrispettivo non pagato: ' 1B7413 D5 ' 1' 0A 1B6405"));
    }

    void whatGoesWrong_data()
    {
        QTest::addColumn<QStringList>("words");
        QTest::addColumn<int>("exitStatus");
        QTest::addColumn<QByteArray>("error");
        QTest::newRow("no job") << QStringList{u"none.xml"_s, u"-o"_s, u"out"_s} << 4
                                << QByteArray("none.xml: error: No such file or directory\n");
        QTest::newRow("no configuration")
            << QStringList{u"job.xml"_s, u"-o"_s, u"out"_s, u"--config"_s, u"none.conf"_s} << 4
            << QByteArray("none.conf: error: there is no such file\n");
        QTest::newRow("no folder") << QStringList{u"job.xml"_s, u"-o"_s, u"no/out"_s} << 7
                                   << QByteArray("no/out: error: cannot be opened for writing\n");
        QTest::newRow("a full disk") << QStringList{u"job.xml"_s, u"-o"_s, u"/dev/full"_s} << 7
                                     << QByteArray(
                                            "/dev/full: error: not written completely: No space left on "
                                            "device\n");
        QTest::newRow("no profile") << QStringList{u"job.xml"_s, u"-o"_s,        u"out"_s, u"--device"_s,
                                                   u"escpos"_s,  u"--profile"_s, u"90mm"_s}
                                    << 2
                                    << QByteArray("palvestrin: error: there is no profile \"90mm\"; there "
                                                  "are 80mm, 80mm-42, 58mm, generic\n");
        QTest::newRow("a profile of the line printer")
            << QStringList{u"job.xml"_s, u"-o"_s, u"out"_s, u"--profile"_s, u"80mm"_s} << 2
            << QByteArray("palvestrin: error: the line printer has no profiles; add --device escpos\n");
        QTest::newRow("no locale")
            << QStringList{u"job.xml"_s, u"-o"_s, u"out"_s, u"--locale"_s, u"xx_XX"_s} << 2
            << QByteArray("palvestrin: error: the locale \"xx_XX\" is not installed here; \"locale "
                          "-a\" lists those that are\n");
        QTest::newRow("onto itself")
            << QStringList{u"job.xml"_s, u"-o"_s, u"./job.xml"_s} << 5
            << QByteArray("./job.xml: error: this is one of the files to read; name another\n");
        QTest::newRow("a register's document")
            << QStringList{u"fiscal.xml"_s, u"-o"_s, u"out"_s, u"--device"_s, u"escpos"_s} << 3
            << QByteArray(
                   "fiscal.xml:1:41: error: \"printFullOrderFiscal\" is for a cash register, which speaks a "
                   "language of its own: this printer prints everything else; the job is printed up to "
                   "here\n");
        QTest::newRow("an unknown method") << QStringList{u"unknown.xml"_s, u"-o"_s, u"out"_s} << 3
                                           << QByteArray("unknown.xml:1:25: error: there is no print method "
                                                         "\"menu\"; the job is printed up to here\n");
    }
    void whatGoesWrong()
    {
        QFETCH(QStringList, words);
        QFETCH(int, exitStatus);
        QFETCH(QByteArray, error);
        writeJob("<job><method name=\"printPartialOrder\"/><orderinfo/></job>");
        writeFile(home.filePath(u"fiscal.xml"_s), "<job><method name=\"printFullOrderFiscal\"/></job>");
        writeFile(home.filePath(u"unknown.xml"_s), "<job><method name=\"menu\"/></job>");
        const ProgramRun run = palvestrin(QStringList(u"render"_s) + words);
        QCOMPARE(run.standardError, error);
        QCOMPARE(run.standardOutput, QByteArray());
        QCOMPARE(run.exitStatus, exitStatus);
    }
};

QTEST_GUILESS_MAIN(RenderCommandTest)
#include "rendercommand_test.moc"
