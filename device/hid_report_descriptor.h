#pragma once

// What a HID report descriptor says of the device's input reports.

#include <cstdint>
#include <optional>
#include <span>

namespace velmora {

// The length in bytes of the device's longest input report, its report identifier byte included
// when the device numbers its reports; 0 for a device without input reports; the largest
// std::int64_t when its reports add up to more bits than 64 bits count. None for a descriptor
// that ends inside an item.
std::optional<std::int64_t> maxInputReportSize(std::span<const std::uint8_t> descriptor);

} // namespace velmora
