#pragma once

// The instrument reads in thousandths, held here in doubles: 1.545 - 1.544 comes out a hair above
// 0.001, and a difference that equals a band or a tolerance must not count as beyond it.

#include <cmath>

namespace velmora {

inline double roundToThousandths(double value) {
    return std::round(value * 1000) / 1000;
}

// Whether two readings differ by more than band.
inline bool differBeyond(double a, double b, double band) {
    return roundToThousandths(std::abs(a - b)) > band + 1e-9;
}

} // namespace velmora
