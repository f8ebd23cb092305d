#pragma once

// Numbers written in the C locale's notation, the same for every user: "." as decimal point, an
// optional sign and exponent, "inf" and "nan", hexadecimal floating point. The reference file
// and the instrument write numbers this way; entries are turned into it before they are read.

#include <optional>
#include <string_view>

namespace velmora {

// The number the whole text spells, or nothing. An empty text, one that begins with white space
// or NUL, and one with anything after the number are not numbers. Out-of-range values give
// infinity or a value rounded towards zero, as the C library does.
std::optional<double> parseCNumber(std::string_view text);

} // namespace velmora
