#include "device/dfu_device.h"
#include "tests/support/fake_usb_watcher.h"
#include "tests/support/notification_recorder.h"

#include <gtest/gtest.h>
#include <sstream>

namespace velmora::test {
namespace {

struct DfuRun {
    FakeUsbWatcher watcher;
    NotificationCenter center;
    NotificationRecorder recorder{center, {DFUDeviceConnected, DFUDeviceDisconnected}};
    std::ostringstream out;
    DFUDevice dfu{watcher, out, center};

    void initUsb() {
        watcher.stop();
        dfu.initUsb();
    }
};

TEST(DFUDevice, OpensTheInstrumentOnlyAndAnnouncesItsComingAndGoing) {
    DfuRun run;
    run.watcher.plug({.location = 1, .name = "Velmora DFU"});
    run.watcher.plug({.location = 2, .vendorId = 0x1234, .name = "Other"});
    run.watcher.later([&] { run.watcher.unplug(1); });
    run.initUsb();

    EXPECT_EQ(run.out.str(), "usb Device Name: Velmora DFU\n"
                             "DFU device has been device connected\n"
                             "DFU device has been disconnected\n");
    EXPECT_EQ(run.recorder.names(),
              (std::vector<std::string>{DFUDeviceConnected, DFUDeviceDisconnected}));
    EXPECT_TRUE(run.recorder.notifications()[0].object.isNone());
    EXPECT_NE(run.dfu.deviceInterfacePtrPtr, nullptr);
    EXPECT_NE(run.dfu.plugInInterfacePtrPtr, nullptr);
}

struct DfuAttachCase {
    const char* what;
    FakeUsbDevice device;
    const char* printed;
};

TEST(DFUDevice, EveryFailureIsToldAndAnnouncesNothing) {
    const DfuAttachCase cases[] = {
        {"held exclusively elsewhere",
         {.openResult = {-6, true}},
         "usb Device Name: Velmora\nCould not open device (error: -6)\n"},
        {"open refused",
         {.openResult = {-3, false}},
         "usb Device Name: Velmora\nCould not open device (error: -3)\n"},
        {"plug-in request failed",
         {.plugInCode = -1},
         "usb Device Name: Velmora\nUnable to get Plug-In Interface\n"},
        {"device interface missing",
         {.deviceInterfaceMissing = true},
         "usb Device Name: Velmora\nUnable to get Device Interface\n"},
        {"device interface request failed",
         {.deviceInterfaceCode = -1},
         "usb Device Name: Velmora\nUnable to get Device Interface\n"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        DfuRun run;
        run.watcher.plug(c.device);
        run.initUsb();
        EXPECT_EQ(run.out.str(), c.printed);
        EXPECT_TRUE(run.recorder.names().empty());
    }
}

TEST(DFUDevice, AnUnreadableNameIsToldAndPrintedEmpty) {
    DfuRun run;
    run.watcher.plug({.name = std::nullopt});
    run.initUsb();
    EXPECT_EQ(run.out.str(), "Error getting device name\n"
                             "usb Device Name: \n"
                             "DFU device has been device connected\n");
}

TEST(DFUDevice, AFailedReleaseOnRemovalIsToldAndAnnouncesNothing) {
    DfuRun run;
    run.watcher.plug({.location = 4, .releaseCode = -5});
    run.watcher.later([&] { run.watcher.unplug(4); });
    run.initUsb();
    EXPECT_EQ(run.out.str(), "usb Device Name: Velmora\n"
                             "DFU device has been device connected\n"
                             "Couldn’t release raw device object (error: -5)\n");
    EXPECT_EQ(run.recorder.names(), std::vector<std::string>{DFUDeviceConnected});
}

} // namespace
} // namespace velmora::test
