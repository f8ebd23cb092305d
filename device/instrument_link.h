#pragma once

// What the window's Connect and Disconnect buttons need of the instrument session, so the window
// depends on this and not on the HID layer beneath it. The session answers through the
// HIDDevice notifications, not through these calls.

namespace velmora {

class InstrumentLink {
public:
    virtual ~InstrumentLink() = default;
    // Opens the instrument if one is attached; posts HIDDeviceConnected before returning.
    virtual void connectDataToDevice() = 0;
    // Ends the session if there is one; posts HIDDeviceDisconnected before returning.
    virtual void disconnectDataToDevice() = 0;
};

} // namespace velmora
