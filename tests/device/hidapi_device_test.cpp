#include "device/hidapi/hidapi_device.h"
#include "tests/support/fake_hid_handle.h"
#include "tests/support/manual_run_loop.h"

#include <gmock/gmock.h>

namespace velmora::test {
namespace {

using namespace std::chrono_literals;
using ::testing::ElementsAre, ::testing::IsEmpty;

class HidapiDeviceTest : public ::testing::Test {
protected:
    std::unique_ptr<hidapi::HidapiDevice> open() {
        auto device = std::make_unique<hidapi::HidapiDevice>(
            std::make_unique<FakeHidHandle>(script), "Velmora", loop, [this] { ++removals; }, 1ms);
        device->registerInputReportCallback(
            [this](std::span<const std::uint8_t> r) { received.emplace_back(r.begin(), r.end()); });
        return device;
    }

    std::shared_ptr<FakeHidScript> script = std::make_shared<FakeHidScript>();
    ManualRunLoop loop;
    std::vector<Bytes> received;
    int removals = 0;
};

TEST_F(HidapiDeviceTest, WritesOnItsThreadAndHandsReportsThenOneRemovalBackThroughTheLoop) {
    auto device = open();
    const std::uint8_t update[] = {0x31, 0x00, 0, 0, 0, 0, 0, 0};
    device->setOutputReport(0, update);
    ASSERT_TRUE(script->waitForWrites(1));
    script->queue(Bytes{0x04, 0x06, 0, 0, 0, 0, 0, 0});
    script->queue(Bytes{0xED, 0x03});
    script->queue(std::nullopt);
    ASSERT_TRUE(loop.waitForPosts(3));
    EXPECT_THAT(received, IsEmpty());

    loop.runPending();
    EXPECT_THAT(received, ElementsAre(Bytes{0x04, 0x06, 0, 0, 0, 0, 0, 0}, Bytes{0xED, 0x03}));
    EXPECT_EQ(removals, 1);
    // The device is gone: nothing more is written to it, and it is closed once.
    device->setOutputReport(0, update);
    device->stop();
    device->setOutputReport(0, update);
    EXPECT_THAT(script->writes, ElementsAre(Bytes{0, 0x31, 0x00, 0, 0, 0, 0, 0, 0}));
    EXPECT_NE(script->writerThread, std::this_thread::get_id());
    EXPECT_EQ(std::pair(script->closes, script->faults), std::pair(1, 0)); // closed once, in turn
    // Reads are short, so that stopping never holds up the loop's thread for long.
    EXPECT_LE(script->longestReadTimeout, 50ms);
}

// The Disconnect of a running session: the device goes while its worker reads.
TEST_F(HidapiDeviceTest, ACallbackMayDropTheDeviceAndADroppedDeviceDeliversNothingMore) {
    auto device = open();
    int calls = 0;
    device->registerInputReportCallback([&](auto) {
        ++calls;
        device.reset();
    });
    script->queue(Bytes{1});
    script->queue(Bytes{2});
    ASSERT_TRUE(loop.waitForPosts(2));
    loop.runPending();
    EXPECT_EQ(device, nullptr);
    EXPECT_EQ(calls, 1);
    EXPECT_EQ(std::pair(script->closes, script->faults), std::pair(1, 0)); // closed once, in turn
}

} // namespace
} // namespace velmora::test
