#pragma once

#include <barrier>
#include <functional>
#include <thread>
#include <vector>

/// Runs `work` in `count` threads that start together, and waits for them; each is told its number.
inline void runAtOnce(int count, const std::function<void(int)> &work)
{
    std::barrier start(count);
    std::vector<std::thread> threads;
    threads.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        threads.emplace_back([&, i] {
            start.arrive_and_wait();
            work(i);
        });
    }
    for (std::thread &thread : threads)
        thread.join();
}
