#include "tests/support/window_harness.h"
#include "ui/system_colors.h"

#include <gtest/gtest.h>

namespace velmora::test {
namespace {

void expectDisconnected(const MainWindow& w, const std::string& placeholder) {
    EXPECT_EQ(w.view_deviceStatus.backgroundColor(), systemColors::red);
    EXPECT_EQ(w.lbl_deviceStatus.text(), "Disconnected");
    EXPECT_EQ(w.usb_device_reading.text(), placeholder);
    EXPECT_TRUE(w.btn_connected.isEnabled());
    EXPECT_FALSE(w.btn_disconnected.isEnabled());
}

TEST(DevicePanel, StartsDisconnectedWithAPlaceholderInTheUsersNotation) {
    expectDisconnected(WindowHarness().window, "1.000");
    expectDisconnected(WindowHarness({.decimalSeparator = ","}).window, "1,000");
}

TEST(DevicePanel, TheConnectedStateKeepsTheReadingAndIsUndoneByDisconnected) {
    WindowHarness h;
    MainWindow& w = h.window;
    w.usb_device_reading.setText("1.540");
    h.controller.queueDevicePanelState(DevicePanelState::Connected);
    EXPECT_EQ(w.lbl_deviceStatus.text(), "Disconnected"); // queued, not yet applied
    h.runQueued();
    EXPECT_EQ(w.view_deviceStatus.backgroundColor(), systemColors::systemGreen);
    EXPECT_EQ(w.lbl_deviceStatus.text(), "Connected");
    EXPECT_EQ(w.usb_device_reading.text(), "1.540");
    EXPECT_FALSE(w.btn_connected.isEnabled());
    EXPECT_TRUE(w.btn_disconnected.isEnabled());
    h.controller.applyDevicePanelState(DevicePanelState::Disconnected);
    expectDisconnected(w, "1.000");
    EXPECT_EQ(w.view_deviceStatus.cornerRadius(), 5.0);
}

} // namespace
} // namespace velmora::test
