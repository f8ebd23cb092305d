#include "device/hidapi/hid_device_worker.h"
#include "device/hidapi/hidapi_device.h"
#include "tests/support/fake_hid_handle.h"
#include "tests/support/manual_run_loop.h"

#include <condition_variable>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmora::test {
namespace {

using namespace std::chrono_literals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

// The virtual-clock loop, and a way to wait until the worker thread has posted its work.
class WatchedLoop final : public RunLoop {
public:
    void post(Task task) override {
        manual.post(std::move(task));
        const std::lock_guard lock(mutex_);
        ++posted_;
        posts_.notify_all();
    }
    TimerId scheduleRepeating(std::chrono::milliseconds interval, Task task) override {
        return manual.scheduleRepeating(interval, std::move(task));
    }
    void cancel(TimerId id) override { manual.cancel(id); }

    bool waitForPosts(std::size_t count) {
        std::unique_lock lock(mutex_);
        return posts_.wait_for(lock, 5s, [&] { return posted_ >= count; });
    }

    ManualRunLoop manual;

private:
    std::mutex mutex_;
    std::condition_variable posts_;
    std::size_t posted_ = 0;
};

class HidDeviceWorkerTest : public ::testing::Test {
protected:
    std::unique_ptr<hidapi::HidDeviceWorker> startWorker() {
        return std::make_unique<hidapi::HidDeviceWorker>(
            std::make_unique<FakeHidHandle>(script), loop,
            hidapi::HidDeviceWorker::Handlers{[this](std::span<const std::uint8_t> r) {
                                                  received.emplace_back(r.begin(), r.end());
                                              },
                                              [this] {
                                                  ++removals;
                                              }},
            1ms);
    }

    std::shared_ptr<FakeHidScript> script = std::make_shared<FakeHidScript>();
    WatchedLoop loop;
    std::vector<Bytes> received;
    int removals = 0;
};

TEST_F(HidDeviceWorkerTest, WritesOnItsThreadHandsReportsBackThroughTheLoopAndClosesLast) {
    auto worker = startWorker();
    worker->write({0, 0x80, 0x80});
    worker->write({0, 0x31, 0x00});
    script->queueInputReport({0x04, 0x06, 0, 0, 0, 0, 0, 0});
    script->queueInputReport({0xED, 0x03});
    ASSERT_TRUE(script->waitForWrites(2));
    ASSERT_TRUE(loop.waitForPosts(2));
    EXPECT_THAT(received, IsEmpty());

    loop.manual.runPending();
    EXPECT_THAT(received, ElementsAre(Bytes{0x04, 0x06, 0, 0, 0, 0, 0, 0}, Bytes{0xED, 0x03}));
    worker.reset();
    const auto record = script->record();
    EXPECT_THAT(record.writes, ElementsAre(Bytes{0, 0x80, 0x80}, Bytes{0, 0x31, 0x00}));
    EXPECT_NE(record.writerThread, std::this_thread::get_id());
    EXPECT_EQ(record.closes, 1);
    EXPECT_EQ(record.faults, 0);
}

TEST_F(HidDeviceWorkerTest, AFailedReadIsOneRemovalAfterWhichTheDeviceIsLeftAloneUntilClosed) {
    auto worker = startWorker();
    script->queueInputReport({0x04, 0x06});
    script->queueRemoval();
    ASSERT_TRUE(loop.waitForPosts(2));
    worker->write({0, 0x31, 0x00});

    loop.manual.runPending();
    EXPECT_THAT(received, ElementsAre(Bytes{0x04, 0x06}));
    EXPECT_EQ(removals, 1);
    worker.reset();
    const auto record = script->record();
    EXPECT_THAT(record.writes, IsEmpty());
    EXPECT_EQ(record.closes, 1);
    EXPECT_EQ(record.faults, 0);
}

TEST_F(HidDeviceWorkerTest, ADroppedWorkerDeliversNothingOfWhatItHadPosted) {
    auto worker = startWorker();
    script->queueInputReport({0x04, 0x06});
    script->queueRemoval();
    ASSERT_TRUE(loop.waitForPosts(2));
    worker.reset();
    loop.manual.runPending();
    EXPECT_THAT(received, IsEmpty());
    EXPECT_EQ(removals, 0);
}

TEST_F(HidDeviceWorkerTest, AHandlerMayDropTheWorkerThatCallsIt) {
    std::unique_ptr<hidapi::HidDeviceWorker> worker;
    worker = std::make_unique<hidapi::HidDeviceWorker>(
        std::make_unique<FakeHidHandle>(script), loop,
        hidapi::HidDeviceWorker::Handlers{[&](auto) { worker.reset(); },
                                          [] {
                                          }},
        1ms);
    script->queueInputReport({1});
    script->queueInputReport({2});
    ASSERT_TRUE(loop.waitForPosts(1));
    loop.manual.runPending();
    EXPECT_EQ(worker, nullptr);
    EXPECT_EQ(script->record().closes, 1);
    EXPECT_EQ(script->record().faults, 0);
}

TEST(HidapiDevice, WritesNineByteReportsAndPassesInputAndRemovalOnThroughTheLoop) {
    auto script = std::make_shared<FakeHidScript>();
    WatchedLoop loop;
    int removals = 0;
    hidapi::HidapiDevice device(std::make_unique<FakeHidHandle>(script), "Velmora", loop,
                                [&] { ++removals; });
    std::vector<Bytes> received;
    device.registerInputReportCallback(
        [&](std::span<const std::uint8_t> r) { received.emplace_back(r.begin(), r.end()); });

    const std::uint8_t update[] = {0x31, 0x00, 0, 0, 0, 0, 0, 0};
    device.setOutputReport(0, update);
    ASSERT_TRUE(script->waitForWrites(1));
    script->queueInputReport({0x04, 0x06});
    script->queueRemoval();
    ASSERT_TRUE(loop.waitForPosts(2));
    loop.manual.runPending();
    EXPECT_THAT(received, ElementsAre(Bytes{0x04, 0x06}));
    EXPECT_EQ(removals, 1);

    device.stop();
    device.setOutputReport(0, update);
    const auto record = script->record();
    EXPECT_THAT(record.writes, ElementsAre(Bytes{0, 0x31, 0x00, 0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(record.closes, 1);
    // Reads are short, so that stopping never holds up the loop's thread for long.
    EXPECT_LE(record.longestReadTimeout, 50ms);
}

} // namespace
} // namespace velmora::test
