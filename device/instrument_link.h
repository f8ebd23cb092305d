#pragma once

// What the window's Connect and Disconnect buttons need of the instrument session, so the window
// depends on this and not on the HID layer beneath it.

namespace velmora {

class InstrumentLink {
public:
    virtual ~InstrumentLink() = default;
    virtual void connectDataToDevice() = 0;
    virtual void disconnectDataToDevice() = 0;
};

} // namespace velmora
