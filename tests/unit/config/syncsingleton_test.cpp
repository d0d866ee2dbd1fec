#include "syncsingleton.h"

#include <QTest>

#include <atomic>
#include <barrier>
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

} // namespace

class SyncSingletonTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void manyThreadsConstructOnce()
    {
        constexpr int count = 64;
        std::barrier start(count);
        std::vector<Counted *> seen(count);
        std::vector<int> values(count);
        std::vector<std::thread> threads;
        threads.reserve(count);
        for (int i = 0; i < count; ++i) {
            threads.emplace_back([&, i] {
                start.arrive_and_wait();
                seen[i] = SyncSingleton<Counted>::instance();
                values[i] = seen[i]->value;
            });
        }
        for (std::thread &thread : threads)
            thread.join();
        QCOMPARE(constructions.load(), 1);
        QCOMPARE(seen, std::vector<Counted *>(count, SyncSingleton<Counted>::instance()));
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
