#include "device/hid_device_monitor.h"
#include "tests/support/window_harness.h"
#include "ui/system_colors.h"

#include <gtest/gtest.h>

namespace velmora::test {
namespace {

const MatchedHIDDevice instrument{.productId = 63999, .vendorId = 1240, .name = "Velmora"};

// The lamp, the status, the reading, and whether Connect and Disconnect are enabled.
auto panel(const MainWindow& w) {
    return std::tuple(*w.view_deviceStatus.backgroundColor(), w.lbl_deviceStatus.text(),
                      w.usb_device_reading.text(), w.btn_connected.isEnabled(),
                      w.btn_disconnected.isEnabled());
}
auto disconnected(const char* placeholder) {
    return std::tuple(systemColors::red, std::string("Disconnected"), std::string(placeholder),
                      true, false);
}

TEST(DevicePanel, FollowsTheInstrumentConnectingAndUnplugged) {
    EXPECT_EQ(panel(WindowHarness({.decimalSeparator = ","}).window), disconnected("1,000"));
    WindowHarness h;
    MainWindow& w = h.window;
    EXPECT_EQ(panel(w), disconnected("1.000"));
    w.usb_device_reading.setText("1.540");
    h.notificationCenter.post(HIDDeviceConnected{instrument});
    h.runQueued();
    EXPECT_EQ(panel(w), std::tuple(systemColors::systemGreen, std::string("Connected"),
                                   std::string("1.540"), false, true));

    h.notificationCenter.post(HIDDeviceDisconnected{});
    h.runQueued();
    EXPECT_EQ(panel(w), disconnected("1.000"));
}

// The HID monitor posts under the session's names with payloads of its own: a device record and
// raw bytes, which the panel does not take for the session's; its removal it does.
TEST(DevicePanel, TheMonitorsConnectedChangesNothingButItsRemovalDisconnects) {
    WindowHarness h;
    h.notificationCenter.post(HIDMonitorDeviceConnected{{.id = "/dev/hidraw0", .vendorId = 1240}});
    h.runQueued();
    EXPECT_FALSE(h.state().isUSBStatus);
    EXPECT_EQ(h.window.lbl_deviceStatus.text(), "Disconnected");

    h.notificationCenter.post(HIDDeviceConnected{instrument});
    h.notificationCenter.post(HIDDeviceDisconnected{"/dev/hidraw0"});
    EXPECT_FALSE(h.state().isUSBStatus);
    h.runQueued();
    EXPECT_EQ(panel(h.window), disconnected("1.000"));
}

TEST(DevicePanel, ReadingsShowInTheUsersNotationWhateverTheState) {
    WindowHarness h({.decimalSeparator = ","});
    h.notificationCenter.post(HIDDeviceDataReceived{"1.540"});
    EXPECT_EQ(h.window.usb_device_reading.text(), "1,540"); // at once, though disconnected
    h.notificationCenter.post(HIDDeviceDataReceived{"not a number"});
    EXPECT_EQ(h.window.usb_device_reading.text(), "");
    h.notificationCenter.post(HIDMonitorDataReceived{{0x04, 0x06}});
    EXPECT_EQ(h.window.usb_device_reading.text(), ""); // the monitor's raw bytes: ignored
}

} // namespace
} // namespace velmora::test
