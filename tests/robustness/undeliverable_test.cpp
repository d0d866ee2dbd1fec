// Jobs that cannot be read and tickets that cannot be written: what the ordering application is told. The
// renderer is the real program.

#include "rendererprocess.h"
#include "temporaryhome.h"

#include <QScopeGuard>
#include <QTest>

#include <fcntl.h>
#include <linux/capability.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace {

const QByteArray cannotOpen = "PrintManager::printAbstractOrder(...): Unable To Open File\n";

/// What one element of the sold list prints.
const QByteArray row = "\" x ............................. \"@\n";
const QByteArray smallJob = "<job><method name=\"printSold\"/><receipe amount=\" \"/></job>";
const QByteArray smallTicket = "\nj\n" + row + "J\n";
const QByteArray unknownMethod = "<job><method name=\"nonsense\"/></job>";

QByteArray longJob(int rows)
{
    return "<job><method name=\"printSold\"/>" + QByteArray("<receipe amount=\" \"/>").repeated(rows) +
           "</job>";
}

QByteArray longTicket(int rows)
{
    return "\nj\n" + row.repeated(rows) + "J\n";
}

/// Root may write every file, unless it starts without this right. Other users cannot give it up, and have
/// none.
void writeNoForeignFiles()
{
    prctl(PR_CAPBSET_DROP, CAP_DAC_OVERRIDE);
}

} // namespace

class UndeliverableTest : public QObject
{
    Q_OBJECT

private:
    const TemporaryHome home;

    QString inputPath() const { return home.filePath(u"job.xml"_s); }
    QString outputPath() const { return home.filePath(u"output"_s); }

    void write(const QString &path, const QByteArray &content) const
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        QCOMPARE(file.write(content), content.size());
    }

    static QByteArray read(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no such file");
    }

    static QByteArray complaint(const QString &path, const QByteArray &reason)
    {
        return "palvestrin-print: " + path.toUtf8() + ": not written completely: " + reason + '\n';
    }

    /// The contract of every run, whatever happens to it.
    static void compare(const Ending &ending, const QByteArray &standardOutput,
                        const QByteArray &standardError)
    {
        QVERIFY(!ending.wasTooSlow);
        QVERIFY(ending.hasExited);
        QCOMPARE(ending.exitStatus, 0);
        QCOMPARE(ending.standardOutput, standardOutput);
        QCOMPARE(ending.standardError, standardError);
    }

private Q_SLOTS:
    void initTestCase() { home.configure("palvestrin: { solddoc: { }; };"); }

    void init()
    {
        write(inputPath(), smallJob);
        QFile::remove(outputPath());
    }

    void nothingWrong()
    {
        compare(render(inputPath(), outputPath()), "", "");
        QCOMPARE(read(outputPath()), smallTicket);
    }

    void unreadableJobs_data()
    {
        QTest::addColumn<QString>("path");
        QTest::newRow("missing") << home.filePath(u"missing"_s);
        QTest::newRow("a directory") << home.path();
        QTest::newRow("in no directory") << home.filePath(u"missing/job"_s);
        QTest::newRow("in a file") << inputPath() + u"/job"_s;
        QTest::newRow("a name too long") << home.filePath(QString(5000, u'x'));
        QTest::newRow("no name") << QString();
        QTest::newRow("a device with nothing") << u"/dev/null"_s;
    }

    void unreadableJobs()
    {
        QFETCH(QString, path);
        write(outputPath(), "the last ticket");
        compare(render(path, outputPath()), "", "");
        QCOMPARE(read(outputPath()), QByteArray());
    }

    void unreadableForThisUser()
    {
        QVERIFY(QFile::setPermissions(inputPath(), {}));
        const Ending ending = render(inputPath(), outputPath(), [] {
            prctl(PR_CAPBSET_DROP, CAP_DAC_READ_SEARCH);
            writeNoForeignFiles();
        });
        QVERIFY(QFile::remove(inputPath()));
        compare(ending, "", "");
        QCOMPARE(read(outputPath()), QByteArray());
    }

    void theJobIsItsOwnOutput()
    {
        // The output is emptied before the job is read, so there is nothing left to read.
        compare(render(inputPath(), inputPath()), "", "");
        QCOMPARE(read(inputPath()), QByteArray());
    }

    void unwritableTickets_data()
    {
        QTest::addColumn<QString>("path");
        QTest::newRow("a directory") << home.path();
        QTest::newRow("in no directory") << home.filePath(u"missing/output"_s);
        QTest::newRow("in a file") << inputPath() + u"/output"_s;
        QTest::newRow("no name") << QString();
    }

    void unwritableTickets()
    {
        QFETCH(QString, path);
        compare(render(inputPath(), path), cannotOpen, "");
        QCOMPARE(read(inputPath()), smallJob);
    }

    void readOnlyTicket()
    {
        write(outputPath(), "the last ticket");
        QVERIFY(QFile::setPermissions(outputPath(), QFile::ReadOwner));
        compare(render(inputPath(), outputPath(), writeNoForeignFiles), cannotOpen, "");
        QCOMPARE(read(outputPath()), QByteArray("the last ticket"));
    }

    void readOnlyDirectory()
    {
        const QString directory = home.filePath(u"read-only"_s);
        QVERIFY(QDir().mkdir(directory));
        QVERIFY(QFile::setPermissions(directory, QFile::ReadOwner | QFile::ExeOwner));
        const Ending ending = render(inputPath(), directory + u"/output"_s, writeNoForeignFiles);
        QVERIFY(QDir().rmdir(directory));
        compare(ending, cannotOpen, "");
    }

    void nothingToReadAndNowhereToWrite()
    {
        compare(render(home.filePath(u"missing"_s), home.path()), cannotOpen, "");
    }

    void fullDevice_data()
    {
        QTest::addColumn<int>("rows");
        QTest::newRow("only the last write fails") << 1;
        QTest::newRow("a write in the middle fails") << 100'000;
    }

    void fullDevice()
    {
        QFETCH(int, rows);
        write(inputPath(), longJob(rows));
        compare(render(inputPath(), u"/dev/full"_s), "",
                complaint(u"/dev/full"_s, "No space left on device"));
    }

    void fileSizeLimit_data()
    {
        QTest::addColumn<int>("limit");
        const int whole = int(longTicket(1000).size());
        QTest::newRow("nothing fits") << 0;
        QTest::newRow("the first bytes fit") << 1;
        QTest::newRow("one buffer fits") << 16'384;
        QTest::newRow("all but the last byte fits") << whole - 1;
    }

    void fileSizeLimit()
    {
        QFETCH(int, limit);
        write(inputPath(), longJob(1000));
        // Where coverage is measured, the limit must not cut the files that hold it.
        qputenv("GCOV_PREFIX", QFile::encodeName(home.filePath(u"coverage"_s)));
        const auto measureAgain = qScopeGuard([] { qunsetenv("GCOV_PREFIX"); });
        const Ending ending = render(inputPath(), outputPath(), [limit] {
            const rlimit bytes = {rlim_t(limit), rlim_t(limit)};
            setrlimit(RLIMIT_FSIZE, &bytes);
        });
        // As a beginning of the right bytes, without a gap.
        QCOMPARE(read(outputPath()), longTicket(1000).left(limit));
        compare(ending, "", complaint(outputPath(), "File too large"));
    }

    void theReaderOfThePipeGoesAway()
    {
        write(inputPath(), longJob(100'000));
        QCOMPARE(mkfifo(QFile::encodeName(outputPath()).constData(), 0600), 0);
        const int pipe = open(QFile::encodeName(outputPath()).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
        QVERIFY(pipe >= 0);
        RendererProcess renderer(inputPath(), outputPath());
        QByteArray first(100, Qt::Uninitialized);
        qsizetype size = 0;
        QVERIFY(QTest::qWaitFor([&] { return (size = ::read(pipe, first.data(), first.size())) > 0; }));
        close(pipe);
        compare(renderer.wait(100), "", complaint(outputPath(), "Broken pipe"));
        QCOMPARE(first.left(size), longTicket(100).left(size));
    }

    void closedStreams_data()
    {
        QTest::addColumn<QList<int>>("streams");
        QTest::newRow("output") << QList<int>{STDOUT_FILENO};
        QTest::newRow("input and output") << QList<int>{STDIN_FILENO, STDOUT_FILENO};
        QTest::newRow("error") << QList<int>{STDERR_FILENO};
        QTest::newRow("all three") << QList<int>{STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO};
    }

    /// A message that has nowhere to go does not go into the ticket.
    void closedStreams()
    {
        QFETCH(QList<int>, streams);
        write(inputPath(), smallJob.chopped(6) + "<method name=\"nonsense\"/></job>");
        const bool hasOutput = !streams.contains(STDOUT_FILENO);
        const Ending ending = render(inputPath(), outputPath(), [&streams] {
            for (const int stream : streams)
                close(stream);
        });
        compare(ending, hasOutput ? "File Format Not Supported\n" : "", "");
        QCOMPARE(read(outputPath()), smallTicket.chopped(2));
    }

    void fullStandardOutput()
    {
        write(inputPath(), unknownMethod);
        const Ending ending = render(inputPath(), outputPath(),
                                     [] { dup2(open("/dev/full", O_WRONLY | O_CLOEXEC), STDOUT_FILENO); });
        compare(ending, "", "");
        QCOMPARE(read(outputPath()), QByteArray());
    }

    void standardOutputNobodyReads()
    {
        write(inputPath(), unknownMethod);
        const Ending ending = render(inputPath(), outputPath(), [] {
            int ends[2];
            if (pipe(ends) == 0) {
                dup2(ends[1], STDOUT_FILENO);
                close(ends[0]);
                close(ends[1]);
            }
        });
        compare(ending, "", "");
    }

    void noConfiguration()
    {
        QVERIFY(QFile::remove(home.configurationPath()));
        const Ending ending = render(inputPath(), outputPath());
        home.configure("palvestrin: { solddoc: { }; };");
        compare(ending,
                "Error in the method FileReader::open( " + home.configurationPath().toUtf8() +
                    " ): File Not Found\n",
                "");
        QCOMPARE(read(outputPath()), smallTicket);
    }

    void configurationIsADirectory()
    {
        QVERIFY(QFile::remove(home.configurationPath()));
        QVERIFY(QDir().mkdir(home.configurationPath()));
        const Ending ending = render(inputPath(), outputPath());
        QVERIFY(QDir().rmdir(home.configurationPath()));
        home.configure("palvestrin: { solddoc: { }; };");
        compare(ending, "", "");
        QCOMPARE(read(outputPath()), smallTicket);
    }
};

QTEST_GUILESS_MAIN(UndeliverableTest)
#include "undeliverable_test.moc"
