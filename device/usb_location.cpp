#include "device/usb_location.h"

#include <algorithm>

namespace velmora {

std::optional<std::uint64_t> usbLocationId(std::uint8_t bus,
                                           std::span<const std::uint8_t> portPath) {
    constexpr std::size_t maxDepth = 7;
    if (portPath.size() > maxDepth || std::ranges::find(portPath, 0) != portPath.end()) {
        return std::nullopt;
    }
    std::uint64_t id = bus;
    for (std::size_t tier = 0; tier < maxDepth; ++tier) {
        id = (id << 8) | (tier < portPath.size() ? portPath[tier] : 0);
    }
    return id;
}

} // namespace velmora
