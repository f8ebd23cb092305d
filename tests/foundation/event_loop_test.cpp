#include "foundation/event_loop.h"

#include <algorithm>
#include <csignal>
#include <gtest/gtest.h>
#include <thread>
#include <vector>

namespace velmora::test {
namespace {

using namespace std::chrono_literals;

TEST(EventLoop, RunsTasksPostedFromOtherThreadsOnItsOwnThreadInOrder) {
    EventLoop loop;
    const auto loopThread = std::this_thread::get_id();
    std::vector<int> fromA;
    std::vector<int> fromB;
    int ran = 0;
    bool allOnLoopThread = true;
    auto poster = [&](std::vector<int>& into) {
        return std::thread([&] {
            for (int i = 0; i < 200; ++i) {
                loop.post([&, i] {
                    allOnLoopThread &= std::this_thread::get_id() == loopThread;
                    into.push_back(i);
                    if (++ran == 400) {
                        loop.stop();
                    }
                });
            }
        });
    };
    auto a = poster(fromA);
    auto b = poster(fromB);
    loop.run();
    a.join();
    b.join();
    EXPECT_TRUE(allOnLoopThread);
    ASSERT_EQ(fromA.size(), 200u);
    ASSERT_EQ(fromB.size(), 200u);
    EXPECT_TRUE(std::is_sorted(fromA.begin(), fromA.end()));
    EXPECT_TRUE(std::is_sorted(fromB.begin(), fromB.end()));
}

TEST(EventLoop, RepeatingTimersFireUntilCancelledAndStopEndsTheRun) {
    EventLoop loop;
    int fast = 0;
    int slow = 0;
    RunLoop::TimerId fastId = 0;
    fastId = loop.scheduleRepeating(1ms, [&] {
        if (++fast == 3) {
            loop.cancel(fastId);
        }
    });
    loop.scheduleRepeating(2ms, [&] {
        if (++slow == 5) {
            loop.stop();
        }
    });
    loop.cancel(9999);
    loop.run();
    EXPECT_EQ(fast, 3);
    EXPECT_EQ(slow, 5);
}

EventLoop* interrupted = nullptr;

TEST(EventLoop, ASignalHandlerMayStopIt) {
    EventLoop loop;
    interrupted = &loop;
    const auto previous = std::signal(SIGUSR1, [](int) { interrupted->stop(); });
    int ticks = 0;
    loop.scheduleRepeating(1ms, [&] {
        if (++ticks == 2) {
            std::raise(SIGUSR1);
        }
    });
    loop.run();
    std::signal(SIGUSR1, previous);
    EXPECT_EQ(ticks, 2);
}

} // namespace
} // namespace velmora::test
