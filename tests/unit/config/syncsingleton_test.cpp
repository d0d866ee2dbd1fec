#include "syncsingleton.h"
#include "threads.h"

#include <QTest>

#include <atomic>
#include <thread>
#include <vector>

namespace {

std::atomic<int> constructions = 0;

struct Counted
{
    int value = 0;
    Counted()
    {
        ++constructions;
        std::this_thread::sleep_for(std::chrono::milliseconds(20)); // give the others time to collide
        value = 42;
    }
};

struct Named
{
    int length() const { return 5; }
};

struct Slow
{
    int value = 0;
    Slow()
    {
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
        value = 42;
    }
};

} // namespace

class SyncSingletonTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void manyThreadsConstructOnce()
    {
        constexpr int count = 64;
        std::vector<Counted *> seen(count);
        std::vector<int> values(count);
        runAtOnce(count, [&](int i) {
            seen[i] = SyncSingleton<Counted>::instance();
            values[i] = seen[i]->value;
        });
        QCOMPARE(constructions.load(), 1);
        QCOMPARE(seen, std::vector<Counted *>(count, SyncSingleton<Counted>::instance()));
        QCOMPARE(values, std::vector<int>(count, 42));
    }

    /// The pattern of callers that do without `instance()`.
    void callersReadThePointerThemselves()
    {
        QVERIFY(!SyncSingleton<Named>::instance_pointer);
        if (SyncSingleton<Named>::instance_pointer == nullptr)
            SyncSingleton<Named>::createInstance();
        QCOMPARE(SyncSingleton<Named>::instance_pointer->length(), 5);
        const Named *named = SyncSingleton<Named>::instance_pointer;
        QCOMPARE(SyncSingleton<Named>::instance(), named);
    }

    void threadsThatReadThePointerFindTheFinishedObject()
    {
        constexpr int count = 8;
        std::vector<int> values(count);
        runAtOnce(count, [&](int i) {
            if (!SyncSingleton<Slow>::instance_pointer)
                SyncSingleton<Slow>::createInstance();
            values[i] = SyncSingleton<Slow>::instance_pointer->value;
        });
        QCOMPARE(values, std::vector<int>(count, 42));
    }

    void creatingAgainChangesNothing()
    {
        Counted *before = SyncSingleton<Counted>::instance();
        SyncSingleton<Counted>::createInstance();
        QCOMPARE(SyncSingleton<Counted>::instance(), before);
        QCOMPARE(constructions.load(), 1);
    }
};

QTEST_GUILESS_MAIN(SyncSingletonTest)
#include "syncsingleton_test.moc"
