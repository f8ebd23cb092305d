#pragma once

// The instrument's reading, from the bytes of an input report to the text in the live reading
// field. Bytes 0 and 1 of the report are the R.I. in thousandths, little-endian.

#include "foundation/locale.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace velmora {

// "1.540" for 1540: always a full stop and three fraction digits, whatever the user's locale.
// Any two bytes decode, 0.000 to 65.535.
std::string decodeReading(std::uint8_t low, std::uint8_t high);

// The reading as the user sees it: three fraction digits and the locale's decimal separator. No
// grouping: a reading stops at 65.535. The text is read with a full stop as decimal point and must
// be a number to its end; anything else shows as the empty string.
std::string formatReadingForDisplay(std::string_view readingText, const Locale& locale);

// A finite value worked out from readings (a steady reading, a birefringence), shown as a reading
// is.
std::string formatValueForDisplay(double value, const Locale& locale);

} // namespace velmora
