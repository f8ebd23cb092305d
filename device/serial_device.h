#pragma once

// One serial port and the USB identity of the hardware behind it, when there is one.

#include <cstdint>
#include <optional>
#include <string>

namespace velmora {

struct SerialDevice {
    std::string path; // the call-out device, such as /dev/ttyUSB0
    std::optional<std::string> name = std::nullopt;
    std::optional<std::string> vendorName = std::nullopt;
    std::optional<std::string> serialNumber = std::nullopt;
    std::optional<std::int64_t> vendorId = std::nullopt;
    std::optional<std::int64_t> productId = std::nullopt;

    // A port is known by its path alone: one whose USB details change while its path stays is
    // the same port.
    bool operator==(const SerialDevice& other) const { return path == other.path; }
};

} // namespace velmora
