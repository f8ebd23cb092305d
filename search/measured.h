#pragma once

// A value the user measured or typed, with how finely it was given.

#include <string_view>

namespace velmora {

struct Measured {
    double value = 0;
    // Half a unit of the last digit given (0.005 for "1.54"); a value typed with two decimals
    // cannot be held to the instrument's third. Zero when unknown.
    double precision = 0;
};

// Half a unit of the last digit of a number written with "." as decimal point: 0.005 for "1.54",
// 0.5 for "7".
double precisionOf(std::string_view cNumber);

} // namespace velmora
