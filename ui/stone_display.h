#pragma once

// How a stone's stored texts are shown. The reference file writes "^" where it means a comma
// and "." as decimal point; the user sees commas and their own decimal separator.

#include <string>
#include <string_view>

namespace velmora {

// Every "^" as ",".
std::string withCommas(std::string_view stored);

// A stored number or range in the user's notation: "^" as ",", then "." as the separator.
std::string inUserNotation(std::string_view stored, std::string_view decimalSeparator);

// The stone family, or "-" when there is none.
std::string familyText(std::string_view stored);

// The number cell of the table: the StoneID as a whole number, truncated toward zero. A
// StoneID that is no number, or that has no whole-number form (infinite, not a number, beyond
// 64 bits), shows the 1-based row number instead.
std::string stoneNumberText(std::string_view stoneID, int row);

} // namespace velmora
