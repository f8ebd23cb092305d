#include "tests/support/manual_run_loop.h"

#include <gtest/gtest.h>

namespace velmora::test {
namespace {

using namespace std::chrono_literals;

// The virtual clock is what every timing test stands on, so it is checked itself.
TEST(ManualRunLoop, RepeatingTimerFiresOncePerIntervalUntilCancelled) {
    ManualRunLoop loop;
    int ticks = 0;
    const auto id = loop.scheduleRepeating(100ms, [&] { ++ticks; });
    loop.advance(99ms);
    EXPECT_EQ(ticks, 0);
    loop.advance(1ms);
    EXPECT_EQ(ticks, 1);
    loop.advance(600s);
    EXPECT_EQ(ticks, 6001);
    loop.cancel(id);
    loop.advance(1s);
    EXPECT_EQ(ticks, 6001);
}

TEST(ManualRunLoop, PostedTasksRunInOrderIncludingThoseTheyPost) {
    ManualRunLoop loop;
    std::string order;
    loop.post([&] {
        order += 'a';
        loop.post([&] { order += 'c'; });
    });
    loop.post([&] { order += 'b'; });
    EXPECT_EQ(order, "");
    EXPECT_EQ(loop.runPending(), 3u);
    EXPECT_EQ(order, "abc");
}

TEST(ManualRunLoop, ATimerMayCancelItselfAndWorkItPostsRunsBeforeTheNextTick) {
    ManualRunLoop loop;
    std::string order;
    RunLoop::TimerId id = 0;
    id = loop.scheduleRepeating(100ms, [&] {
        order += 't';
        loop.post([&] { order += 'p'; });
        if (order.size() >= 3) {
            loop.cancel(id);
        }
    });
    loop.advance(1s);
    EXPECT_EQ(order, "tptp");
    EXPECT_EQ(loop.activeTimers(), 0u);
}

} // namespace
} // namespace velmora::test
