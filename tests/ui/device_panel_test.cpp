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

namespace velmora::test {
namespace {

const Dictionary instrument{{"ProductID", 63999}, {"VendorID", 1240}, {"name", "Velmora"}};

TEST(DevicePanelNotifications, ConnectedSetsTheFlagAtOnceAndThePanelAfterTheEvent) {
    WindowHarness h;
    h.notificationCenter.post("HIDDeviceConnected", Dictionary{{"device", instrument}});
    EXPECT_TRUE(h.state().isUSBStatus);
    EXPECT_EQ(h.window.lbl_deviceStatus.text(), "Disconnected");
    h.runQueued();
    EXPECT_EQ(h.window.lbl_deviceStatus.text(), "Connected");

    h.notificationCenter.post("HIDDeviceDisconnected", Dictionary{{"device", Dictionary{}}});
    EXPECT_FALSE(h.state().isUSBStatus);
    h.runQueued();
    expectDisconnected(h.window, "1.000");
}

TEST(DevicePanelNotifications, AConnectedWithoutADeviceDictionaryChangesNothing) {
    WindowHarness h;
    for (const Value& object : {Value(), Value("device"), Value(Dictionary{{"device", "x"}}),
                                Value(Dictionary{{"other", instrument}})}) {
        h.notificationCenter.post("HIDDeviceConnected", object);
        h.runQueued();
        EXPECT_FALSE(h.state().isUSBStatus) << object.describe();
        EXPECT_EQ(h.window.lbl_deviceStatus.text(), "Disconnected");
    }
}

TEST(DevicePanelNotifications, ReadingsShowInTheUsersNotationWhateverTheState) {
    WindowHarness h({.decimalSeparator = ","});
    h.notificationCenter.post("HIDDeviceDataReceived", Dictionary{{"data", "1.540"}});
    EXPECT_EQ(h.window.usb_device_reading.text(), "1,540"); // at once, though disconnected
    h.notificationCenter.post("HIDDeviceDataReceived", Dictionary{{"data", "not a number"}});
    EXPECT_EQ(h.window.usb_device_reading.text(), "");
    h.notificationCenter.post("HIDDeviceDataReceived", Dictionary{{"data", 1540}});
    h.notificationCenter.post("HIDDeviceDataReceived", Value("1.540"));
    EXPECT_EQ(h.window.usb_device_reading.text(), ""); // not a text in a dictionary: ignored
}

// A link that answers as the session does: Connect posts HIDDeviceConnected before returning.
class AnsweringLink final : public InstrumentLink {
public:
    explicit AnsweringLink(NotificationCenter& center) : center_(center) {}
    void connectDataToDevice() override {
        center_.post("HIDDeviceConnected", Dictionary{{"device", instrument}});
    }
    void disconnectDataToDevice() override {
        center_.post("HIDDeviceDisconnected", Dictionary{{"device", Dictionary{}}});
    }

private:
    NotificationCenter& center_;
};

TEST(DevicePanelButtons, ConnectAndDisconnectWriteTheModeAndResetTheFormOnlyInTheReadingTab) {
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
    EXPECT_EQ(h.standardOutput.str(), "0\n0\n1\n");
}

TEST(DevicePanelButtons, TheResetAfterConnectComesAfterTheConnectedState) {
    WindowHarness h;
    AnsweringLink link(h.notificationCenter);
    MainWindow window;
    ViewController controller(window, {h.runLoop, h.notificationCenter, h.alertPresenter, h.locale,
                                       std::nullopt, h.standardOutput, h.screens, link});
    controller.viewDidLoad();
    h.runQueued();
    std::vector<std::string> order;
    window.lbl_deviceStatus.setObserver(
        [&](Property) { order.push_back(window.lbl_deviceStatus.text()); });
    window.check_sg.setEnabled(true);
    window.check_sg.setObserver([&](Property) { order.push_back("reset"); });
    window.btn_connected.performClick();
    EXPECT_TRUE(controller.state().isUSBStatus); // before anything queued has run
    EXPECT_TRUE(order.empty());
    h.runQueued();
    ASSERT_FALSE(order.empty());
    EXPECT_EQ(order.front(), "Connected");
    EXPECT_EQ(order.back(), "reset");
}

} // namespace
} // namespace velmora::test
