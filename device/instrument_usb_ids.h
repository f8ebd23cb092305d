#pragma once

// The instrument's USB identifiers, the one place they are written: the session, the watchers and
// the command line look for this pair, and the build reads it from here into the udev rule and the
// software-centre record it installs.

#include <cstdint>

namespace velmora {

inline constexpr std::uint16_t instrumentVendorId = 0x04D8;
inline constexpr std::uint16_t instrumentProductId = 0xF9FF;

} // namespace velmora
