#pragma once

// The desktop's named colours that the window paints with, in the light appearance the
// application always uses.

#include "foundation/rgba.h"

namespace velmora::systemColors {

inline constexpr Rgba white = Rgba::gray(1.0);
inline constexpr Rgba clear = Rgba::gray(0.0, 0.0);
// The plain red, as opposed to the softer system red of borders.
inline constexpr Rgba red = Rgba::rgb(1.0, 0.0, 0.0);
inline constexpr Rgba systemRed = Rgba::rgb255(255, 59, 48);
inline constexpr Rgba systemGreen = Rgba::rgb255(52, 199, 89);
inline constexpr Rgba systemGray = Rgba::rgb255(142, 142, 147);
inline constexpr Rgba systemOrange = Rgba::rgb255(255, 149, 0);

} // namespace velmora::systemColors
