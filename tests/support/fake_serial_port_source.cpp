#include "tests/support/fake_serial_port_source.h"

#include <algorithm>

namespace velmora::test {

SerialDevice usbSerialPort(std::string path, std::int64_t vendorId, std::int64_t productId) {
    return {std::move(path), "USB Serial", "Maker", "SN" + std::to_string(productId),
            vendorId,        productId};
}

SerialDevice plainPort(std::string path) {
    SerialDevice port;
    port.path = std::move(path);
    return port;
}

FakeSerialPortSource::FakeSerialPortSource(std::vector<std::vector<SerialDevice>> snapshots,
                                           std::function<void(std::size_t)> onCall)
    : snapshots_(std::move(snapshots)), onCall_(std::move(onCall)) {}

std::vector<SerialDevice> FakeSerialPortSource::availablePorts() {
    ++calls_;
    std::vector<SerialDevice> snapshot;
    if (!snapshots_.empty()) {
        snapshot = snapshots_[std::min(calls_, snapshots_.size()) - 1];
    }
    if (onCall_) {
        onCall_(calls_);
    }
    return snapshot;
}

} // namespace velmora::test
