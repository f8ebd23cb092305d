#include "device/usb_device_monitor.h"
#include "tests/support/fake_usb_watcher.h"
#include "tests/support/notification_recorder.h"

#include <gtest/gtest.h>
#include <sstream>

namespace velmora::test {
namespace {

constexpr USBMonitorData instrument{0x04D8, 0xF9FF};

struct UsbMonitorRun {
    FakeUsbWatcher watcher;
    NotificationCenter center;
    NotificationRecorder recorder{center, {USBDeviceConnected, USBDeviceDisconnected}};
    std::ostringstream out;

    // Starts the monitor and lets the whole script play out.
    void start(std::vector<USBMonitorData> vp = {instrument}) {
        USBDeviceMonitor monitor(std::move(vp), watcher, out, center);
        watcher.stop();
        monitor.start();
    }

    std::vector<USBDevice> connected() {
        std::vector<USBDevice> devices;
        for (const auto& n : recorder.notifications()) {
            if (n.name == USBDeviceConnected) {
                devices.push_back(std::any_cast<USBDevice>(*n.object["device"]->asRecord()));
            }
        }
        return devices;
    }
};

std::uint64_t disconnectedId(const Notification& n) {
    return std::any_cast<std::uint64_t>(*n.object["id"]->asRecord());
}

TEST(USBDeviceMonitor, InitialDrainReportsTheMatchingDevicesAlreadyPresent) {
    UsbMonitorRun run;
    run.watcher.plug({.location = 0x0301000000000000, .name = "Velmora"});
    run.watcher.plug({.location = 0x0302000000000000, .productId = 0x0001});
    run.watcher.plug(
        {.location = 0x0303000000000000, .vendorId = 0x1234, .productId = 0x0042, .name = "Other"});
    run.start({instrument, {0x1234, 0x0042}});

    const auto devices = run.connected();
    ASSERT_EQ(devices.size(), 2u);
    EXPECT_EQ(devices[0].id, 0x0301000000000000u);
    EXPECT_EQ(devices[0].vendorId, 0x04D8);
    EXPECT_EQ(devices[0].productId, 0xF9FF);
    EXPECT_EQ(devices[0].name, "Velmora");
    EXPECT_NE(devices[0].deviceInterfacePtrPtr, nullptr);
    EXPECT_NE(devices[0].plugInInterfacePtrPtr, nullptr);
    EXPECT_EQ(devices[1].id, 0x0303000000000000u);
    EXPECT_EQ(devices[1].name, "Other");
    EXPECT_EQ(run.out.str(), "");
}

TEST(USBDeviceMonitor, RemovalAndAttachAfterStartArePostedAsTheyHappenWithTheSameId) {
    UsbMonitorRun run;
    run.watcher.plug({.location = 0x0101000000000000});
    run.watcher.later([&] {
        run.watcher.unplug(0x0101000000000000);
        run.watcher.plug({.location = 0x0102030000000000});
    });
    run.start();

    const auto notifications = run.recorder.notifications();
    EXPECT_EQ(
        run.recorder.names(),
        (std::vector<std::string>{USBDeviceConnected, USBDeviceDisconnected, USBDeviceConnected}));
    ASSERT_EQ(notifications.size(), 3u);
    EXPECT_EQ(disconnectedId(notifications[1]), run.connected()[0].id);
    EXPECT_EQ(run.connected()[1].id, 0x0102030000000000u);
}

struct AttachCase {
    const char* what;
    FakeUsbDevice device;
    const char* printed;
    bool posted;
};

TEST(USBDeviceMonitor, EachFailingStepPrintsItsLineAndSkipsOrCarriesOn) {
    const AttachCase cases[] = {
        {"id unreadable", {.idReadable = false}, "Error getting device id\n", true},
        {"name unreadable", {.name = std::nullopt}, "Error getting device name\n", true},
        {"plug-in request failed", {.plugInCode = -536870212}, "", false},
        {"plug-in missing", {.plugInMissing = true}, "Unable to get Plug-In Interface\n", false},
        {"device interface request failed", {.deviceInterfaceCode = -1}, "", false},
        {"device interface missing",
         {.deviceInterfaceMissing = true},
         "Unable to get Device Interface\n",
         false},
        {"open refused", {.openResult = {-3, false}}, "Could not open device (error: -3)\n", false},
        {"held exclusively elsewhere", {.openResult = {-6, true}}, "", true},
        {"identifiers unreadable", {.idsReadable = false}, "", false},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        UsbMonitorRun run;
        FakeUsbDevice device = c.device;
        device.location = 0x0205000000000000;
        run.watcher.plug(device);
        run.start();
        EXPECT_EQ(run.out.str(), c.printed);
        ASSERT_EQ(run.connected().size(), c.posted ? 1u : 0u);
        if (c.posted) {
            EXPECT_EQ(run.connected()[0].id, c.device.idReadable ? 0x0205000000000000u : 0u);
            EXPECT_EQ(run.connected()[0].name, c.device.name.value_or(""));
        }
    }
}

TEST(USBDeviceMonitor, NamesAreCutTo127BytesButNeverInsideACharacter) {
    UsbMonitorRun run;
    run.watcher.plug({.location = 1, .name = std::string(200, 'a')});
    run.watcher.plug({.location = 2, .name = std::string(126, 'b') + "\xC3\xA9"}); // é
    run.watcher.plug({.location = 3, .name = std::string(127, 'c')});
    run.start();

    const auto devices = run.connected();
    ASSERT_EQ(devices.size(), 3u);
    EXPECT_EQ(devices[0].name, std::string(127, 'a'));
    EXPECT_EQ(devices[1].name, std::string(126, 'b'));
    EXPECT_EQ(devices[2].name, std::string(127, 'c'));
}

TEST(USBDeviceMonitor, RemovalTellsAFailedReleaseAndAnUnreadableId) {
    UsbMonitorRun run;
    run.watcher.plug({.location = 7, .releaseCode = -536870165});
    run.watcher.plug({.location = 8, .idReadable = false});
    run.watcher.later([&] {
        run.watcher.unplug(7);
        run.watcher.unplug(8);
    });
    run.start();

    EXPECT_EQ(run.out.str(), "Error getting device id\n" // attach of 8
                             "Couldn’t release raw device object (error: -536870165)\n"
                             "Error getting device id\n"); // removal of 8
    const auto notifications = run.recorder.notifications();
    ASSERT_EQ(notifications.size(), 3u);
    EXPECT_EQ(notifications[2].name, USBDeviceDisconnected);
    EXPECT_EQ(disconnectedId(notifications[2]), 0u);
}

} // namespace
} // namespace velmora::test
