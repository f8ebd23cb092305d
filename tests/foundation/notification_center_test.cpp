#include "foundation/notification_center.h"

#include <atomic>
#include <gtest/gtest.h>
#include <latch>
#include <string>
#include <thread>
#include <vector>

namespace velmora::test {
namespace {

struct Reading {
    static constexpr std::string_view name = "Reading";
    std::string data;
};
// Another payload under the same name: a different notification all the same.
struct RawReading {
    static constexpr std::string_view name = "Reading";
    std::vector<int> data;
};

TEST(NotificationCenter, DeliversEachPayloadToTheObserversOfItsTypeOnlyInTheirOrder) {
    NotificationCenter center;
    std::vector<std::string> seen;
    const auto first =
        center.addObserver<Reading>([&](const Reading& r) { seen.push_back("1 " + r.data); });
    center.addObserver<Reading>([&](const Reading& r) { seen.push_back("2 " + r.data); });
    center.addObserver<RawReading>(
        [&](const RawReading& r) { seen.push_back("raw " + std::to_string(r.data.size())); });

    center.post(Reading{"1.540"});
    center.post(RawReading{{4, 6}});
    center.removeObserver(first);
    center.removeObserver(first); // a second time: nothing to do
    center.post(Reading{"1.541"});
    EXPECT_EQ(seen, (std::vector<std::string>{"1 1.540", "2 1.540", "raw 2", "2 1.541"}));
}

// The observer, posted to from a device thread, is held inside its call while the main thread
// removes it; the removal may only return once that call has ended, and no call starts after.
TEST(NotificationCenter, RemovalWaitsForACallRunningOnAnotherThread) {
    NotificationCenter center;
    std::latch entered(1);
    std::latch release(1);
    std::atomic<bool> removing = false;
    std::atomic<bool> finished = false;
    std::atomic<int> calls = 0;
    const auto token = center.addObserver<Reading>([&](const Reading&) {
        ++calls;
        entered.count_down();
        release.wait();
        finished = true;
    });
    std::thread device([&] { center.post(Reading{"1.540"}); });
    entered.wait();
    // Lets the observer end only once the removal has begun.
    std::thread releaser([&] {
        removing.wait(false);
        release.count_down();
    });
    removing = true;
    removing.notify_one();
    center.removeObserver(token);
    EXPECT_TRUE(finished);
    center.post(Reading{"1.541"});
    EXPECT_EQ(calls, 1);
    device.join();
    releaser.join();
}

TEST(NotificationCenter, AnObserverMayRemoveItselfAndOthersFromInsideItsCall) {
    NotificationCenter center;
    std::vector<std::string> seen;
    NotificationCenter::Token self = 0;
    NotificationCenter::Token later = 0;
    self = center.addObserver<Reading>([&](const Reading&) {
        seen.emplace_back("self");
        center.removeObserver(self); // on its own thread: must not wait for itself
        center.removeObserver(later);
    });
    later = center.addObserver<Reading>([&](const Reading&) { seen.emplace_back("later"); });
    center.addObserver<Reading>([&](const Reading&) { seen.emplace_back("kept"); });

    center.post(Reading{});
    center.post(Reading{});
    EXPECT_EQ(seen, (std::vector<std::string>{"self", "kept", "kept"}));
}

} // namespace
} // namespace velmora::test
