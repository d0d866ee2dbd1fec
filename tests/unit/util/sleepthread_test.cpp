#include "sleepthread.h"

#include <QElapsedTimer>
#include <QTest>

class SleepThreadTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void leavingTheScopeTakesTheTime()
    {
        QElapsedTimer timer;
        timer.start();
        {
            const SleepThread sleeping(150);
        }
        QCOMPARE_GE(timer.elapsed(), 150);
    }

    void theWaitIsOnAThreadOfItsOwn()
    {
        const SleepThread sleeping(500);
        QVERIFY(sleeping.isRunning()); // while its maker goes on
    }
};

QTEST_GUILESS_MAIN(SleepThreadTest)
#include "sleepthread_test.moc"
