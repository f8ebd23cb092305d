#pragma once

// Where the serial monitor takes its snapshots of the system's serial ports.

#include "device/serial_device.h"

#include <vector>

namespace velmora {

class SerialPortSource {
public:
    virtual ~SerialPortSource() = default;
    // Every port the system lists now, in the system's order. A port without a call-out device
    // comes with an empty path.
    virtual std::vector<SerialDevice> availablePorts() = 0;
};

} // namespace velmora
