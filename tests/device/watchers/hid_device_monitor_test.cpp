#include "device/device_notifications.h"
#include "device/hid_device_monitor.h"
#include "tests/support/fake_hid_watcher.h"
#include "tests/support/notification_recorder.h"

#include <gtest/gtest.h>

namespace velmora::test {
namespace {

const HIDMonitorData instrument{0x04D8, 0xF9FF, std::nullopt, std::nullopt};

struct HidMonitorRun {
    FakeHidWatcher watcher;
    NotificationCenter center;
    NotificationRecorder recorder{
        center, {HIDDeviceConnected, HIDDeviceDataReceived, HIDDeviceDisconnected}};

    // Starts the monitor and lets the whole script play out.
    void start(std::vector<HIDMonitorData> vp = {instrument}, std::int64_t reportSize = 8) {
        HIDDeviceMonitor monitor(std::move(vp), reportSize, watcher, center);
        watcher.stop();
        monitor.start();
    }

    std::vector<HIDDevice> connected() {
        std::vector<HIDDevice> devices;
        for (const auto& n : recorder.notifications()) {
            if (n.name == HIDDeviceConnected) {
                devices.push_back(std::any_cast<HIDDevice>(*n.object["device"]->asRecord()));
            }
        }
        return devices;
    }

    std::vector<Bytes> received() {
        std::vector<Bytes> reports;
        for (const auto& n : recorder.notifications()) {
            if (n.name == HIDDeviceDataReceived) {
                reports.push_back(*n.object["data"]->asBytes());
            }
        }
        return reports;
    }
};

TEST(HIDDeviceMonitor, InitialDrainReportsTheMatchingDevicesAlreadyPresent) {
    HidMonitorRun run;
    run.watcher.plug({.path = "/dev/hidraw0"});
    run.watcher.plug({.path = "/dev/hidraw1", .vendorId = 0x046D, .productId = 0xC52B});
    run.watcher.plug({.path = "/dev/hidraw2",
                      .vendorId = 0x1234,
                      .productId = 0x0042,
                      .product = "Probe",
                      .maxInputReportSize = 64});
    const HIDMonitorData probe{0x1234, 0x0042, 0xFF00, 0x0001};
    run.start({instrument, probe});

    EXPECT_EQ(run.watcher.criteria().size(), 2u);
    const auto devices = run.connected();
    ASSERT_EQ(devices.size(), 2u);
    EXPECT_EQ(devices[0].id, "/dev/hidraw0");
    EXPECT_EQ(devices[0].vendorId, 0x04D8);
    EXPECT_EQ(devices[0].productId, 0xF9FF);
    EXPECT_EQ(devices[0].reportSize, 8);
    EXPECT_EQ(devices[0].name, "Velmora Refractometer");
    EXPECT_NE(devices[0].device, nullptr);
    EXPECT_EQ(devices[1].id, "/dev/hidraw2");
    EXPECT_EQ(devices[1].reportSize, 64);
    EXPECT_EQ(devices[1].name, "Probe");
}

TEST(HIDDeviceMonitor, RemovalAndAttachAfterStartArePostedAsTheyHappen) {
    HidMonitorRun run;
    run.watcher.plug({.path = "/dev/hidraw0"});
    run.watcher.later([&] {
        run.watcher.unplug("/dev/hidraw0");
        run.watcher.plug({.path = "/dev/hidraw3"});
    });
    run.start();

    const auto notifications = run.recorder.notifications();
    EXPECT_EQ(
        run.recorder.names(),
        (std::vector<std::string>{HIDDeviceConnected, HIDDeviceDisconnected, HIDDeviceConnected}));
    ASSERT_EQ(notifications.size(), 3u);
    EXPECT_EQ(notifications[1].object, Value(Dictionary{{"id", "/dev/hidraw0"}}));
    EXPECT_EQ(run.connected()[1].id, "/dev/hidraw3");
}

TEST(HIDDeviceMonitor, MissingOrMistypedPropertiesGiveEmptyTextsAndZero) {
    HidMonitorRun run;
    run.watcher.plug({.path = "/dev/hidraw0",
                      .product = std::nullopt,
                      .maxInputReportSize = std::nullopt,
                      .locationId = std::int64_t{0x14200000}});
    run.watcher.later([&] { run.watcher.unplug("/dev/hidraw0"); });
    run.start();

    const auto devices = run.connected();
    ASSERT_EQ(devices.size(), 1u);
    EXPECT_EQ(devices[0].id, "");
    EXPECT_EQ(devices[0].name, "");
    EXPECT_EQ(devices[0].reportSize, 0);
    EXPECT_EQ(devices[0].vendorId, 0x04D8);
    EXPECT_EQ(run.recorder.notifications().back().object, Value(Dictionary{{"id", ""}}));
}

TEST(HIDDeviceMonitor, EachInputReportIsPostedAsExactlyItsBytesCutToTheBuffer) {
    HidMonitorRun run;
    run.watcher.plug({.path = "/dev/hidraw0"});
    run.watcher.plug({.path = "/dev/hidraw1", .vendorId = 0x046D});
    run.watcher.later([&] {
        run.watcher.sendInputReport("/dev/hidraw0", {0x04, 0x06});
        run.watcher.sendInputReport("/dev/hidraw0", {});
        run.watcher.sendInputReport("/dev/hidraw0", {1, 2, 3, 4, 5, 6, 7, 8});
        run.watcher.sendInputReport("/dev/hidraw0", {1, 2, 3, 4, 5, 6, 7, 8, 9, 10});
        // Not a matching device: never reported, never read.
        run.watcher.sendInputReport("/dev/hidraw1", {0xEE});
    });
    run.start();

    EXPECT_EQ(
        run.received(),
        (std::vector<Bytes>{{0x04, 0x06}, {}, {1, 2, 3, 4, 5, 6, 7, 8}, {1, 2, 3, 4, 5, 6, 7, 8}}));
}

TEST(HIDDeviceMonitor, NoCriteriaMatchNothingAndACallbackWithoutDeviceIsIgnored) {
    HidMonitorRun run;
    run.watcher.plug({.path = "/dev/hidraw0"});
    run.start({});
    HIDDeviceMonitor monitor({instrument}, 8, run.watcher, run.center);
    monitor.deviceAttached(nullptr);
    monitor.deviceRemoved(nullptr);
    EXPECT_TRUE(run.recorder.notifications().empty());
}

struct MatchCase {
    const char* what;
    HIDMonitorData criterion;
    bool matches;
};

TEST(HIDMonitorData, MatchesOnIdentifiersAndOnlyTheUsagesItGives) {
    const std::vector<MatchCase> cases{
        {"identifiers only", {0x04D8, 0xF9FF, std::nullopt, std::nullopt}, true},
        {"other vendor", {0x04D9, 0xF9FF, std::nullopt, std::nullopt}, false},
        {"other product", {0x04D8, 0xF9FE, std::nullopt, std::nullopt}, false},
        {"usage page and usage", {0x04D8, 0xF9FF, 0xFF00, 0x0001}, true},
        {"usage page alone", {0x04D8, 0xF9FF, 0xFF00, std::nullopt}, true},
        {"other usage page", {0x04D8, 0xF9FF, 0x0001, std::nullopt}, false},
        {"other usage", {0x04D8, 0xF9FF, std::nullopt, 0x0002}, false},
        {"beyond 16 bits", {0x104D8, 0xF9FF, std::nullopt, std::nullopt}, false},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(c.criterion.matches(0x04D8, 0xF9FF, 0xFF00, 0x0001), c.matches) << c.what;
    }
}

} // namespace
} // namespace velmora::test
