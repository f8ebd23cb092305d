#include "device/hid_device_monitor.h"
#include "device/sim/replayed_readings.h"
#include "device/sim/simulated_instrument.h"
#include "tests/support/fake_hid.h"
#include "tests/support/reference_rows.h"
#include "tests/support/window_harness.h"
#include "ui/system_colors.h"

#include <gtest/gtest.h>

namespace velmora::test {
namespace {

using namespace std::chrono_literals;

const MatchedHIDDevice instrument{.productId = 63999, .vendorId = 1240, .name = "Velmora"};

void expectDisconnected(const MainWindow& w, const std::string& placeholder) {
    EXPECT_EQ(w.view_deviceStatus.backgroundColor(), systemColors::red);
    EXPECT_EQ(w.lbl_deviceStatus.text(), "Disconnected");
    EXPECT_EQ(w.usb_device_reading.text(), placeholder);
    EXPECT_TRUE(w.btn_connected.isEnabled());
    EXPECT_FALSE(w.btn_disconnected.isEnabled());
}

TEST(DevicePanel, FollowsTheSessionFlagAtOnceAndThePanelAfterTheEvent) {
    expectDisconnected(WindowHarness({.decimalSeparator = ","}).window, "1,000");
    WindowHarness h;
    MainWindow& w = h.window;
    expectDisconnected(w, "1.000");
    w.usb_device_reading.setText("1.540");
    h.notificationCenter.post(HIDDeviceConnected{instrument});
    EXPECT_TRUE(h.state().isUSBStatus);
    EXPECT_EQ(w.lbl_deviceStatus.text(), "Disconnected");
    h.runQueued();
    EXPECT_EQ(w.view_deviceStatus.backgroundColor(), systemColors::systemGreen);
    EXPECT_EQ(w.lbl_deviceStatus.text(), "Connected");
    EXPECT_EQ(w.usb_device_reading.text(), "1.540");
    EXPECT_FALSE(w.btn_connected.isEnabled());
    EXPECT_TRUE(w.btn_disconnected.isEnabled());

    h.notificationCenter.post(HIDDeviceDisconnected{});
    EXPECT_FALSE(h.state().isUSBStatus);
    h.runQueued();
    expectDisconnected(w, "1.000");
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
    expectDisconnected(h.window, "1.000");
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

TEST(DevicePanel, ConnectAndDisconnectResetTheFormOnlyInTheReadingTab) {
    WindowHarness h;
    h.click(h.window.btn_connected);
    EXPECT_EQ(h.instrument.connects, 1);
    // Nothing was found, so Disconnect is still disabled in the window; its action as such:
    h.window.btn_connected.setEnabled(false);
    h.controller.btn_disConnect_tap(h.window.btn_disconnected);
    EXPECT_EQ(h.instrument.disconnects, 1);
    EXPECT_TRUE(h.window.btn_connected.isEnabled());

    h.click(h.window.bvtn_dictionary);
    h.click(h.window.check_Name);
    h.type(h.window.txt_left_name, "ruby");
    h.click(h.window.btn_connected);
    EXPECT_EQ(h.window.txt_left_name.text(), "ruby"); // the dictionary keeps its form
}

TEST(DevicePanel, TheResetAfterConnectComesAfterTheConnectedState) {
    FakeHidBus bus;
    WindowHarness h({.instrumentManagers = bus.managerFactory()});
    MainWindow& w = h.window;
    std::vector<std::string> order;
    w.lbl_deviceStatus.setObserver([&](Property) { order.push_back(w.lbl_deviceStatus.text()); });
    w.check_sg.setEnabled(true);
    w.check_sg.setObserver([&](Property) { order.push_back("reset"); });
    w.btn_connected.performClick();
    EXPECT_TRUE(h.state().isUSBStatus); // before anything queued has run
    EXPECT_TRUE(order.empty());
    h.runQueued();
    ASSERT_FALSE(order.empty());
    EXPECT_EQ(order.front(), "Connected");
    EXPECT_EQ(order.back(), "reset");
}

// The whole road on the simulated instrument: Connect, readings arriving, Enter taking the shown
// reading into the R.I. entry, the stones whose range holds it listed, and Disconnect.
TEST(LiveReading, ConnectReadEnterListsTheStonesThatHoldTheReading) {
    WindowHarness h(
        {.rows = std::vector<std::string>{stoneRow("1", "Amethyst", "1.544-1.553"),
                                          stoneRow("2", "Aquamarine", "1.567-1.590"),
                                          stoneRow("3", "Citrine", "1.544 - 1.553"),
                                          stoneRow("4", "Iolite", "1.522-1.578")},
         .instrumentManagers = sim::simulatedInstrumentFactory(
             std::make_shared<sim::ReplayedReadings>(std::vector<std::uint16_t>{1530, 1551}))});
    h.click(h.window.btn_connected);
    EXPECT_EQ(h.window.lbl_deviceStatus.text(), "Connected");
    h.runLoop.advance(100ms);
    EXPECT_EQ(h.window.usb_device_reading.text(), "1.530");
    h.runLoop.advance(100ms);
    EXPECT_EQ(h.window.usb_device_reading.text(), "1.551");

    h.click(h.window.btn_enter);
    EXPECT_EQ(h.window.txt_leftRIReading.text(), "1.551");
    EXPECT_EQ(h.tableRows(), (std::vector<std::pair<std::string, std::string>>{
                                 {"1", "Amethyst"}, {"3", "Citrine"}, {"4", "Iolite"}}));
    EXPECT_EQ(h.window.txt_RI.text(), "1.544-1.553"); // the first stone's detail
    EXPECT_TRUE(h.alerts().empty());

    h.click(h.window.btn_disconnected);
    EXPECT_EQ(h.window.usb_device_reading.text(), "1.000");
    h.runLoop.advance(10s);
    EXPECT_EQ(h.window.usb_device_reading.text(), "1.000");
    EXPECT_EQ(h.runLoop.activeTimers(), 0u);
}

} // namespace
} // namespace velmora::test
