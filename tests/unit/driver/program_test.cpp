// The command line of palvestrin-print, on the real program.

#include "program.h"
#include "temporaryhome.h"

#include <QFileInfo>
#include <QTest>

#include <sys/stat.h>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString program = QStringLiteral(PALVESTRIN_PRINT);

constexpr char configuration[] = "palvestrin: { receiptdoc: { paperWidth = 20; }; };";
constexpr char job[] = R"(<job><method name="printFullOrderReceipt"/><receipt serialnumber="7"/></job>)";
constexpr char paper[] = "\nj\n\" Serial Number: 7\"@\n\"====================\"@\nJ\n";

} // namespace

class ProgramTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<TemporaryHome> home;

    void write(const QString &name, const QByteArray &content)
    {
        QFile file(home->filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(content), content.size());
    }
    QByteArray read(const QString &name)
    {
        QFile file(home->filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(not there)");
    }
    /// In the home directory, without a display or anything else that a desktop has.
    ProgramRun run(const QStringList &arguments, const QStringList &more = {})
    {
        return runProgram(program, arguments,
                          QStringList{u"HOME="_s + home->path(), u"LC_ALL=C.UTF-8"_s} + more, home->path());
    }

private Q_SLOTS:
    void init()
    {
        home = std::make_unique<TemporaryHome>();
        home->configure(configuration);
        write(u"job.xml"_s, job);
    }

    void twoNames()
    {
        const ProgramRun result = run({u"job.xml"_s, u"out"_s});
        QCOMPARE(result.exitStatus, 0);
        QCOMPARE(result.standardOutput, QByteArray());
        QCOMPARE(result.standardError, QByteArray());
        QCOMPARE(read(u"out"_s), QByteArray(paper));
    }

    void aThirdWordIsToleratedAndNotRead()
    {
        const ProgramRun result = run({u"job.xml"_s, u"out"_s, u"/no/such/file"_s});
        QCOMPARE(result.exitStatus, 0);
        QCOMPARE(result.standardOutput + result.standardError, QByteArray());
        QCOMPARE(read(u"out"_s), QByteArray(paper));
    }

    void theUsageLine_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("1 word") << QStringList();
        QTest::newRow("2 words") << QStringList{u"job.xml"_s};
        QTest::newRow("5 words") << QStringList{u"job.xml"_s, u"out"_s, u"a"_s, u"b"_s};
        QTest::newRow("6 words") << QStringList{u"job.xml"_s, u"out"_s, u"-platform"_s, u"minimal"_s, u"b"_s};
    }
    void theUsageLine()
    {
        QFETCH(QStringList, arguments);
        const ProgramRun result = run(arguments);
        QCOMPARE(result.exitStatus, 0);
        QCOMPARE(result.standardOutput, "Usage: " + program.toUtf8() + " input_file output_file\n");
        QCOMPARE(result.standardError, QByteArray());
        QCOMPARE(read(u"out"_s), QByteArray("(not there)"));
    }

    void theUsageLineNamesTheProgramAsTyped()
    {
        QVERIFY(QFile::link(program, home->filePath(u"print it"_s)));
        const ProgramRun result = runProgram(u"./print it"_s, {}, {u"HOME="_s + home->path()}, home->path());
        QCOMPARE(result.standardOutput, QByteArray("Usage: ./print it input_file output_file\n"));
    }

    void aMissingInputEmptiesTheOutput()
    {
        write(u"out"_s, "what was there");
        const ProgramRun result = run({u"absent.xml"_s, u"out"_s});
        QCOMPARE(result.exitStatus, 0);
        QCOMPARE(result.standardOutput + result.standardError, QByteArray());
        QCOMPARE(read(u"out"_s), QByteArray());
    }

    void anOutputThatCannotBeOpened()
    {
        const ProgramRun result = run({u"job.xml"_s, u"no/such/folder/out"_s});
        QCOMPARE(result.exitStatus, 0);
        QCOMPARE(result.standardOutput,
                 QByteArray("PrintManager::printAbstractOrder(...): Unable To Open File\n"));
        QCOMPARE(result.standardError, QByteArray());
    }

    void anUnknownMethodIsStillReportedWithoutAnOutput()
    {
        write(u"job.xml"_s, R"(<job><method name="printMenu"/></job>)");
        const ProgramRun result = run({u"job.xml"_s, u"no/such/folder/out"_s});
        QCOMPARE(result.standardOutput,
                 QByteArray("PrintManager::printAbstractOrder(...): Unable To Open File\n"
                            "File Format Not Supported\n"));
    }

    void withoutAConfiguration()
    {
        QVERIFY(QFile::remove(home->configurationPath()));
        const ProgramRun result = run({u"job.xml"_s, u"out"_s});
        QCOMPARE(result.exitStatus, 0);
        QCOMPARE(result.standardOutput, "Error in the method FileReader::open( " + home->path().toUtf8() +
                                            "/.palvestrin/conf/palvestrin.conf ): File Not Found\n");
        QCOMPARE(result.standardError, QByteArray());
        QCOMPARE(read(u"out"_s), "\nj\n\" Serial Number: 7\"@\n\"" + QByteArray(32, '=') + "\"@\nJ\n");
    }

    void withoutAnyEnvironment()
    {
        const ProgramRun result = runProgram(program, {u"job.xml"_s, u"out"_s}, {}, home->path());
        QCOMPARE(result.exitStatus, 0);
        QCOMPARE(result.standardError, QByteArray());
        QVERIFY(read(u"out"_s).startsWith("\nj\n\" Serial Number: 7\"@\n"));
    }

    void aReadOnlyHome()
    {
        const QByteArray folder = home->path().toUtf8();
        const QString out =
            QDir::temp().filePath(u"palvestrin-%1.out"_s.arg(QCoreApplication::applicationPid()));
        QVERIFY(chmod(folder.constData(), S_IRUSR | S_IXUSR) == 0);
        const ProgramRun result = run({u"job.xml"_s, out});
        QVERIFY(chmod(folder.constData(), S_IRWXU) == 0);
        QFile file(out);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray bytes = file.readAll();
        QVERIFY(file.remove());
        QCOMPARE(bytes, QByteArray(paper));
        QCOMPARE(result.standardOutput + result.standardError, QByteArray());
        QCOMPARE(QDir(home->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                 (QStringList{u".palvestrin"_s, u"job.xml"_s}));
    }

    void nothingButTheOutputIsWritten()
    {
        run({u"job.xml"_s, u"out"_s});
        QCOMPARE(QDir(home->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                 (QStringList{u".palvestrin"_s, u"job.xml"_s, u"out"_s}));
    }
};

QTEST_GUILESS_MAIN(ProgramTest)
#include "program_test.moc"
