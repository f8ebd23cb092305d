#pragma once

// Scripted snapshots of the serial ports: each call gives the next one, the last one again once
// the script is done. A hook runs at every call, after the snapshot is taken, numbered from 1.

#include "device/serial_port_source.h"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace velmora::test {

// A USB serial adapter's port, with made-up but plausible details.
inline SerialDevice usbSerialPort(std::string path, std::int64_t vendorId, std::int64_t productId) {
    return {std::move(path), "USB Serial", "Maker", "SN" + std::to_string(productId),
            vendorId,        productId};
}

class FakeSerialPortSource final : public SerialPortSource {
public:
    explicit FakeSerialPortSource(std::vector<std::vector<SerialDevice>> snapshots,
                                  std::function<void(std::size_t call)> onCall = {})
        : snapshots_(std::move(snapshots)), onCall_(std::move(onCall)) {}

    std::vector<SerialDevice> availablePorts() override {
        ++calls_;
        auto snapshot = snapshots_.empty() ? std::vector<SerialDevice>{}
                                           : snapshots_[std::min(calls_, snapshots_.size()) - 1];
        if (onCall_) {
            onCall_(calls_);
        }
        return snapshot;
    }

private:
    std::vector<std::vector<SerialDevice>> snapshots_;
    std::function<void(std::size_t)> onCall_;
    std::size_t calls_ = 0;
};

} // namespace velmora::test
