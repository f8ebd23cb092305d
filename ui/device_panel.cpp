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

} // namespace velmora
