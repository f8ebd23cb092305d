#pragma once

// Scripted snapshots of the serial ports: each call gives the next one, the last one again once
// the script is done. A hook runs at every call, after the snapshot is taken, numbered from 1.

#include "device/serial_port_source.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace velmora::test {

// A USB serial adapter's port, with made-up but plausible details.
SerialDevice usbSerialPort(std::string path, std::int64_t vendorId, std::int64_t productId);
// A port with no USB hardware behind it.
SerialDevice plainPort(std::string path);

class FakeSerialPortSource final : public SerialPortSource {
public:
    explicit FakeSerialPortSource(std::vector<std::vector<SerialDevice>> snapshots = {},
                                  std::function<void(std::size_t call)> onCall = {});

    std::vector<SerialDevice> availablePorts() override;
    std::size_t calls() const { return calls_; }

private:
    std::vector<std::vector<SerialDevice>> snapshots_;
    std::function<void(std::size_t)> onCall_;
    std::size_t calls_ = 0;
};

} // namespace velmora::test
