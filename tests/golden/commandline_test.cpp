#include "rendererrun.h"
#include "temporaryhome.h"
#include "wholefile.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr char job[] = R"(<job><method name="printSold"/><orderinfo/></job>)";
constexpr char paper[] = "\nj\n\"================================\"@\nJ\n";

} // namespace

class CommandLineTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void otherCountsOfWordsPrintTheUsage_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("no file") << QStringList();
        QTest::newRow("only the input") << QStringList{u"job.xml"_s};
        QTest::newRow("four files") << QStringList{u"job.xml"_s, u"output"_s, u"c"_s, u"d"_s};
    }
    void otherCountsOfWordsPrintTheUsage()
    {
        QFETCH(QStringList, arguments);
        const TemporaryHome home;
        // No configuration either: nobody looks for it, so nobody misses it.
        const RendererRun run = runRenderer(arguments, bareEnvironment(home.path()));
        QCOMPARE(run.failure, QString());
        QCOMPARE(run.standardOutput, "Usage: " + rendererPath().toLocal8Bit() + " input_file output_file\n");
        QCOMPARE(run.standardError, QByteArray());
    }

    void usageTouchesNoFile()
    {
        const TemporaryHome home;
        const QString output = home.filePath(u"output"_s);
        writeFile(output, "old");
        runRenderer({home.filePath(u"job.xml"_s), output, u"c"_s, u"d"_s}, bareEnvironment(home.path()));
        QCOMPARE(contentOf(output), "old");
    }

    void aThirdArgumentIsNotRead()
    {
        const TemporaryHome home;
        home.configure("");
        writeFile(home.filePath(u"job.xml"_s), job);
        const QStringList files = {home.filePath(u"job.xml"_s), home.filePath(u"output"_s)};
        const RendererRun run =
            runRenderer(files + QStringList{u"/no/such/file"_s}, bareEnvironment(home.path()));
        QCOMPARE(run.failure, QString());
        QCOMPARE(run.standardOutput + run.standardError, QByteArray());
        QCOMPARE(contentOf(files.last()), paper);
    }

    void anUnwritableOutputIsReportedAndTheJobReadNevertheless()
    {
        const TemporaryHome home;
        home.configure("");
        writeFile(home.filePath(u"job.xml"_s),
                  R"(<job><method name="printSold"/><orderinfo/><method/></job>)");
        const RendererRun run = runRenderer({home.filePath(u"job.xml"_s), home.filePath(u"no/such/output"_s)},
                                            bareEnvironment(home.path()));
        QCOMPARE(run.failure, QString());
        QCOMPARE(run.standardOutput, "PrintManager::printAbstractOrder(...): Unable To Open File\n"
                                     "File Format Not Supported\n");
        QCOMPARE(run.standardError, QByteArray());
    }
};

QTEST_GUILESS_MAIN(CommandLineTest)
#include "commandline_test.moc"
