#pragma once

// The identifier of a device's place on the bus, which the raw-USB watchers report as the device's
// registry entry identifier: the bus number in the top byte, then the port numbers from the root
// hub down, a byte each, zero after the last. It stays the same for as long as the device sits in
// that port, across re-plugging and restarts, and two devices on the bus never share it.

#include <cstdint>
#include <optional>
#include <span>

namespace velmora {

// None for a path deeper than the seven hub tiers USB allows, or with a port 0 (ports count from
// 1).
std::optional<std::uint64_t> usbLocationId(std::uint8_t bus,
                                           std::span<const std::uint8_t> portPath);

} // namespace velmora
