#include "capturedoutput.h"
#include "configuredhome.h"
#include "logger.h"
#include "logtext.h"
#include "threads.h"

#include <QDateTime>
#include <QProcess>
#include <QRegularExpression>
#include <QTest>

#include <csignal>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace {

void writeAllLevels(Logger &logger)
{
    logger.debug(u"one"_s);
    logger.info(u"two"_s);
    logger.warning(u"three"_s);
    logger.error(u"four"_s);
    logger.fatal(u"five"_s);
}

/// Lets no file of this process grow beyond a size while it lives, as a full disk does.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes) : oldAction(signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &saved);
        const rlimit lowered = {bytes, saved.rlim_max};
        setrlimit(RLIMIT_FSIZE, &lowered);
    }
    ~FileSizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &saved);
        signal(SIGXFSZ, oldAction);
    }
    FileSizeLimit(const FileSizeLimit &) = delete;
    FileSizeLimit &operator=(const FileSizeLimit &) = delete;

private:
    rlimit saved{};
    sighandler_t oldAction;
};

} // namespace

class LoggerTest : public QObject
{
    Q_OBJECT

private:
    const ConfiguredHome home{};

    QString log() const { return logText(home.logPath()); }

private Q_SLOTS:
    void init()
    {
        QFile::remove(home.logPath());
        QTest::failOnWarning(QRegularExpression(u".*"_s)); // the toolkit is to stay silent throughout
    }

    void levels_data()
    {
        const QString start = u"[time] DEBUG: Start Logger\n"_s;
        const QString one = u"[time] DEBUG: one\n"_s;
        const QString two = u"[time] INFO: two\n"_s;
        const QString three = u"[time] WARNING: three\n"_s;
        const QString four = u"[time] ERROR: four\n"_s;
        const QString five = u"[time] FATAL: five\n"_s;

        QTest::addColumn<QByteArray>("level");
        QTest::addColumn<QString>("expected");
        QTest::newRow("debug") << QByteArray("DEBUG") << start + one + two + three + four + five;
        QTest::newRow("info") << QByteArray("INFO") << two + three + four + five;
        QTest::newRow("warning") << QByteArray("WARNING") << three + four + five;
        QTest::newRow("in lower case") << QByteArray("warning") << three + four + five;
        QTest::newRow("in mixed case") << QByteArray("eRRor") << four + five;
        QTest::newRow("fatal") << QByteArray("FATAL") << five;
        QTest::newRow("none") << QByteArray("") << start + one + two + three + four + five;
        QTest::newRow("unknown") << QByteArray("LOUD") << start + one + two + three + four + five;
    }
    void levels()
    {
        QFETCH(const QByteArray, level);
        home.configureLog(level, "OVERWRITE");
        Logger logger(u"any"_s);
        writeAllLevels(logger);
        QTEST(log(), "expected");
    }

    void theLevelCanChange()
    {
        home.configureLog("FATAL", "OVERWRITE");
        Logger logger(u"any"_s);
        logger.error(u"lost"_s);
        logger.setLevel(u"Info"_s);
        logger.write(Logger::DEBUG, u"lost"_s);
        logger.write(Logger::INFO, u"kept"_s);
        logger.setLevel(u"nonsense"_s);
        logger.write(Logger::DEBUG, u"kept too"_s);
        QCOMPARE(log(), u"[time] INFO: kept\n[time] DEBUG: kept too\n"_s);
    }

    void levelsHaveTheirNumbers()
    {
        QCOMPARE(static_cast<int>(Logger::DEBUG), 0);
        QCOMPARE(static_cast<int>(Logger::INFO), 1);
        QCOMPARE(static_cast<int>(Logger::WARNING), 2);
        QCOMPARE(static_cast<int>(Logger::ERROR), 3);
        QCOMPARE(static_cast<int>(Logger::FATAL), 4);
    }

    void theTimeIsNow()
    {
        home.configureLog("INFO", "OVERWRITE");
        Logger logger(u"any"_s);
        const QDateTime before = QDateTime::currentDateTime();
        logger.info(u"now"_s);
        const QDateTime after = QDateTime::currentDateTime();
        QFile file(home.logPath());
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString line = QString::fromUtf8(file.readAll());
        QVERIFY(line.endsWith(u"] INFO: now\n"_s));
        const QDateTime written = QDateTime::fromString(line.mid(1, 23), u"MM-dd-yyyy HH:mm:ss:zzz"_s);
        QVERIFY2(written >= before && written <= after, qPrintable(line));
    }

    void textBeyondAscii()
    {
        home.configureLog("INFO", "OVERWRITE");
        Logger(u"any"_s).info(u"Caffè € 🍕\nsecond line"_s);
        QCOMPARE(log(), u"[time] INFO: Caffè € 🍕\nsecond line\n"_s);
    }

    void appendKeepsWhatIsThere_data()
    {
        QTest::addColumn<QByteArray>("type");
        QTest::newRow("upper case") << QByteArray("APPEND");
        QTest::newRow("lower case") << QByteArray("append");
    }
    void appendKeepsWhatIsThere()
    {
        QFETCH(const QByteArray, type);
        home.configureLog("INFO", type);
        Logger(u"any"_s).info(u"first"_s); // makes the file
        Logger(u"any"_s).info(u"second"_s);
        QCOMPARE(log(), u"[time] INFO: first\n[time] INFO: second\n"_s);
    }

    /// Two loggers that append do not overwrite each other: the system puts every line at the end.
    void twoAppendToOneFile()
    {
        home.configureLog("INFO", "APPEND");
        Logger one(u"one"_s);
        Logger two(u"two"_s);
        one.info(u"1"_s);
        two.info(u"2"_s);
        one.info(u"3"_s);
        QCOMPARE(log(), u"[time] INFO: 1\n[time] INFO: 2\n[time] INFO: 3\n"_s);
    }

    void overwriteEmptiesTheFile_data()
    {
        QTest::addColumn<QByteArray>("type");
        QTest::newRow("upper case") << QByteArray("OVERWRITE");
        QTest::newRow("mixed case") << QByteArray("Overwrite");
    }
    void overwriteEmptiesTheFile()
    {
        QFETCH(const QByteArray, type);
        home.configureLog("INFO", type);
        Logger(u"any"_s).info(u"first"_s);
        Logger(u"any"_s).info(u"second"_s);
        QCOMPARE(log(), u"[time] INFO: second\n"_s);
    }

    void anotherTypeLeavesTheFileClosed_data()
    {
        QTest::addColumn<QByteArray>("type");
        QTest::newRow("none") << QByteArray("");
        QTest::newRow("unknown") << QByteArray("ROTATE");
    }
    void anotherTypeLeavesTheFileClosed()
    {
        QFETCH(const QByteArray, type);
        home.configureLog("DEBUG", type);
        const CapturedOutput output;
        {
            Logger logger(u"any"_s);
            writeAllLevels(logger);
        }
        QCOMPARE(output.bytes(), QByteArray());
        QVERIFY(!QFile::exists(home.logPath()));
    }

    void theFileCanBeOpenedLater()
    {
        home.configureLog("INFO", "");
        Logger logger(u"any"_s);
        logger.info(u"lost"_s);
        logger.setType(u"Append"_s);
        logger.info(u"kept"_s);
        QCOMPARE(log(), u"[time] INFO: kept\n"_s);
    }

    void anOpenFileCannotBeOpenedAgain()
    {
        home.configureLog("INFO", "OVERWRITE");
        Logger logger(u"any"_s);
        logger.info(u"before"_s);
        const CapturedOutput output;
        logger.setType(u"overwrite"_s);
        QCOMPARE(output.bytes(), "Error in the method Logger::setType(overwrite)\n");
        logger.info(u"after"_s);
        QCOMPARE(log(), u"[time] INFO: before\n[time] INFO: after\n"_s);
    }

    void aFileThatCannotBeOpened_data()
    {
        QTest::addColumn<QByteArray>("logger");
        QTest::addColumn<QByteArray>("type");
        QTest::newRow("no folder and no name") << QByteArray("") << QByteArray("APPEND");
        QTest::newRow("missing folder")
            << QByteArray("basedir = /no/such/folder; filename = f;") << QByteArray("APPEND");
        QTest::newRow("a folder") << "basedir = " + home.path().toUtf8() +
                                         "/..; filename = " + home.path().section(u'/', -1).toUtf8() + ";"
                                  << QByteArray("Overwrite");
        // A folder that even root cannot write to.
        QTest::newRow("unwritable folder")
            << QByteArray("basedir = /proc/self; filename = f;") << QByteArray("overwrite");
    }
    void aFileThatCannotBeOpened()
    {
        QFETCH(const QByteArray, logger);
        QFETCH(const QByteArray, type);
        home.configure("palvestrin: { logger: { type = " + type + "; " + logger + " }; };");
        const CapturedOutput output;
        {
            Logger closed(u"any"_s);
            writeAllLevels(closed);
        }
        QCOMPARE(output.bytes(), "Error in the method Logger::setType(" + type + ")\n");
    }

    void aFullDiskLosesLinesAndNothingElse()
    {
        home.configure("palvestrin: { logger: { basedir = /dev; filename = full; type = OVERWRITE; }; };");
        const CapturedOutput output;
        Logger logger(u"any"_s);
        const QString longLine(100'000, u'x');
        for (int i = 0; i < 100; ++i)
            logger.info(longLine);
        QCOMPARE(output.bytes(), QByteArray());
    }

    void linesAreWrittenAgainWhenThereIsRoomAgain()
    {
        home.configureLog("INFO", "APPEND");
        Logger logger(u"any"_s);
        {
            const FileSizeLimit limit(0);
            logger.info(u"no room"_s);
        }
        logger.info(u"room"_s);
        QVERIFY2(log().endsWith(u"[time] INFO: room\n"_s), qPrintable(log()));
    }

    /// In no particular order, but each of them whole.
    void threadsThatShareALoggerLoseNoLine()
    {
        constexpr int threads = 4;
        constexpr int lines = 500;
        home.configureLog("INFO", "APPEND");
        Logger logger(u"shared"_s);
        runAtOnce(threads, [&](int thread) {
            for (int line = 0; line < lines; ++line)
                logger.info(u"thread %1, line %2"_s.arg(thread).arg(line));
        });

        QStringList expected;
        for (int thread = 0; thread < threads; ++thread) {
            for (int line = 0; line < lines; ++line)
                expected << u"[time] INFO: thread %1, line %2"_s.arg(thread).arg(line);
        }
        expected << QString(); // behind the last line's end
        QStringList written = log().split(u'\n');
        written.sort();
        expected.sort();
        QCOMPARE(written, expected);
    }

    void threadsMayOpenAndSetASharedLogger()
    {
        constexpr int threads = 4;
        home.configureLog("INFO", "");
        Logger logger(u"shared"_s);
        const CapturedOutput output;
        runAtOnce(threads, [&](int) {
            logger.setType(u"APPEND"_s);
            for (int i = 0; i < 100; ++i) {
                logger.setLevel(i % 2 ? u"ERROR"_s : u"INFO"_s);
                logger.error(u"kept"_s);
            }
        });
        QCOMPARE(output.bytes(), QByteArray("Error in the method Logger::setType(APPEND)\n").repeated(3));
        QCOMPARE(log(), u"[time] ERROR: kept\n"_s.repeated(400));
    }

    void anotherProcessSeesTheLine()
    {
        home.configureLog("INFO", "APPEND");
        Logger logger(u"any"_s);
        logger.info(u"seen"_s);
        QProcess reader;
        reader.start(u"grep"_s, {u"-c"_s, u"] INFO: seen$"_s, home.logPath()});
        QVERIFY(reader.waitForFinished());
        QCOMPARE(reader.readAllStandardOutput(), "1\n");
    }

    void theLineOutlivesAKilledWriter()
    {
        home.configureLog("INFO", "APPEND");
        const pid_t writer = fork();
        if (writer == 0) {
            Logger logger(u"any"_s);
            logger.info(u"last words"_s);
            raise(SIGKILL);
        }
        int status = 0;
        QCOMPARE(waitpid(writer, &status, 0), writer);
        QVERIFY(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL);
        QCOMPARE(log(), u"[time] INFO: last words\n"_s);
    }
};

QTEST_GUILESS_MAIN(LoggerTest)
#include "logger_test.moc"
