#include "device/reading.h"
#include "foundation/c_number.h"
#include "ui/system_colors.h"
#include "ui/view_controller.h"

namespace velmora {

void ViewController::queueDevicePanelState(DevicePanelState state) {
    environment_.runLoop.post([this, state] { applyDevicePanelState(state); });
}

void ViewController::applyDevicePanelState(DevicePanelState state) {
    const bool connected = state == DevicePanelState::Connected;
    view_deviceStatus.setBackgroundColor(connected ? systemColors::systemGreen : systemColors::red);
    lbl_deviceStatus.setText(connected ? "Connected" : "Disconnected");
    if (!connected) {
        // Until the first reading arrives, a placeholder in the user's own notation.
        usb_device_reading.setText("1" + decimalSeparator + "000");
    }
    btn_connected.setEnabled(!connected);
    btn_disconnected.setEnabled(connected);
}

void ViewController::observeInstrument() {
    NotificationCenter& center = environment_.notificationCenter;
    observations_.push_back(center.addObserver<HIDDeviceConnected>(
        [this](const HIDDeviceConnected& n) { usbConnectedWithNotification(n); }));
    observations_.push_back(center.addObserver<HIDDeviceDisconnected>(
        [this](const HIDDeviceDisconnected& n) { usbDisconnectedWithNotification(n); }));
    observations_.push_back(center.addObserver<HIDDeviceDataReceived>(
        [this](const HIDDeviceDataReceived& n) { hidReadDataWithNotification(n); }));
}

void ViewController::usbConnectedWithNotification(const HIDDeviceConnected&) {
    // The flag changes now, the panel after the current event: the rest of a Connect action
    // already sees the instrument as connected.
    queueDevicePanelState(DevicePanelState::Connected);
    isUSBStatus = true;
}

void ViewController::usbDisconnectedWithNotification(const HIDDeviceDisconnected&) {
    queueDevicePanelState(DevicePanelState::Disconnected);
    isUSBStatus = false;
}

void ViewController::hidReadDataWithNotification(const HIDDeviceDataReceived& notification) {
    usb_device_reading.setText(formatReadingForDisplay(notification.data, environment_.locale));
    measureReading(parseCNumber(notification.data));
}

void ViewController::btn_connect_tap(Button&) {
    environment_.instrumentLink.connectDataToDevice();
    writeModeAndQueueReset();
}

void ViewController::btn_disConnect_tap(Button&) {
    environment_.instrumentLink.disconnectDataToDevice();
    btn_connected.setEnabled(true);
    writeModeAndQueueReset();
}

void ViewController::writeModeAndQueueReset() {
    environment_.standardOutput << mode << std::endl;
    // In the reading tab a new session starts from an empty form; the dictionary keeps its search.
    if (mode != 1) {
        environment_.runLoop.post([this] { resetSearchForm(); });
    }
}

} // namespace velmora
