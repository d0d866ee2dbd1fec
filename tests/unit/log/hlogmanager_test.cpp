#include "configuredhome.h"
#include "hlogmanager.h"
#include "logger.h"
#include "logtext.h"
#include "threads.h"

#include <QTest>

#include <atomic>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The files that this process holds open under that path.
int openFiles(const QString &path)
{
    int count = 0;
    const QDir descriptors(u"/proc/self/fd"_s);
    for (const QString &name : descriptors.entryList(QDir::Files | QDir::System)) {
        if (QFile::symLinkTarget(descriptors.filePath(name)) == path)
            ++count;
    }
    return count;
}

} // namespace

class HLogManagerTest : public QObject
{
    Q_OBJECT

private:
    const ConfiguredHome home{};

private Q_SLOTS:
    void init() { home.configureLog("INFO", "APPEND"); }

    void anEmptyManagerHasNoLoggers()
    {
        HLogManager manager;
        QVERIFY(!manager.getLog(u"x"_s));
        QVERIFY(!manager.getLog(QString()));
        QVERIFY(!manager.getLog(QString())); // the entry that the first question left is empty
        QVERIFY(!manager.getLog(u"default"_s));
    }

    void aLoggerIsFoundByItsName()
    {
        HLogManager manager;
        manager.set(u"argument"_s, u"kitchen"_s);
        QVERIFY(manager.getLog(u"kitchen"_s));
        QVERIFY(!manager.getLog(u"argument"_s));
        QVERIFY(!manager.getLog(u"Kitchen"_s));
        QVERIFY(!manager.getLog(QString()));
    }

    void noNameMeansDefault()
    {
        HLogManager manager;
        QVERIFY(!manager.getLog(QString()));
        manager.set(u"argument"_s, QString());
        Logger *logger = manager.getLog(QString());
        QVERIFY(logger);
        QCOMPARE(manager.getLog(u"default"_s), logger);
    }

    void aReplacedLoggerLivesOn()
    {
        const int before = openFiles(home.logPath());
        {
            HLogManager manager;
            manager.set(QString(), u"kitchen"_s);
            Logger *first = manager.getLog(u"kitchen"_s);
            manager.set(QString(), u"kitchen"_s);
            Logger *second = manager.getLog(u"kitchen"_s);
            QVERIFY(second != first);
            first->info(u"first"_s);
            second->info(u"second"_s);
            QCOMPARE(openFiles(home.logPath()), before + 2);
        }
        QCOMPARE(openFiles(home.logPath()), before + 1);
        QCOMPARE(logText(home.logPath()), u"[time] INFO: first\n[time] INFO: second\n"_s);
    }

    void threadsMayShareAManager()
    {
        constexpr int threads = 4;
        constexpr int names = 500;
        home.configureLog("INFO", ""); // so many loggers had better open no file
        HLogManager manager;
        std::atomic<int> missing = 0;
        runAtOnce(threads, [&](int thread) {
            for (int i = 0; i < names; ++i) {
                const QString name = u"%1 of thread %2"_s.arg(i).arg(thread);
                manager.set(QString(), name);
                manager.set(QString(), u"shared"_s);
                manager.getLog(QString());
                missing += !manager.getLog(name) + !manager.getLog(u"shared"_s);
            }
        });
        QCOMPARE(missing.load(), 0);
        for (int i = 0; i < threads * names; ++i)
            QVERIFY(manager.getLog(u"%1 of thread %2"_s.arg(i / threads).arg(i % threads)));
        QVERIFY(!manager.getLog(QString()));
    }

    void theManagerDeletesItsLoggers()
    {
        const int before = openFiles(home.logPath());
        {
            HLogManager manager;
            manager.set(QString(), QString());
            manager.set(QString(), u"kitchen"_s);
            QCOMPARE(openFiles(home.logPath()), before + 2);
        }
        QCOMPARE(openFiles(home.logPath()), before);
    }
};

QTEST_GUILESS_MAIN(HLogManagerTest)
#include "hlogmanager_test.moc"
