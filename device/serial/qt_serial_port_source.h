#pragma once

// The system's serial ports as QtSerialPort lists them. It needs no Qt application object, so the
// monitor may poll it from a thread of its own.

#include "device/serial_port_source.h"

namespace velmora {

class QtSerialPortSource final : public SerialPortSource {
public:
    std::vector<SerialDevice> availablePorts() override;
};

} // namespace velmora
