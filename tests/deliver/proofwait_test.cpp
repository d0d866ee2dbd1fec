// How long a proof is waited for.

#include "proofwait.h"

#include <QTest>

using namespace std::chrono_literals;

class ProofWaitTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aPrinterThatWaitsForAPersonMayTakeItsTime()
    {
        ProofWait wait(Clock::now(), 1h);
        QVERIFY(wait.isOver());
        wait.extend();
        QVERIFY(!wait.isOver());
    }

    /// A long ticket has more time than a trouble behind it.
    void aTroubleShortensNoWait()
    {
        ProofWait wait(Clock::now() + 1h, 0s);
        wait.extend();
        QVERIFY(!wait.isOver());
    }
};

QTEST_APPLESS_MAIN(ProofWaitTest)
#include "proofwait_test.moc"
