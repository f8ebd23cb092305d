#pragma once

// How far a ranked stone's ranges lie from the readings, in a few words a gemmologist reads at a
// glance: "R.I. 0.004 above; S.G. fits".

#include "search/ranking.h"

#include <string>
#include <string_view>

namespace velmora {

// The properties that lie outside the stone's range; with listFits (near matches, when nothing
// fits within tolerance) also those that fit. Empty when every property given fits. Numbers in
// the user's decimal separator.
std::string deviationText(const RankedStone& stone, bool overTheLimit, bool listFits,
                          std::string_view decimalSeparator);

// A number with the given decimals, "." replaced by the separator; never in exponent form.
std::string fixedText(double value, int decimals, std::string_view decimalSeparator);

} // namespace velmora
