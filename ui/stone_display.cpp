#include "ui/stone_display.h"

#include "foundation/c_number.h"
#include "foundation/text.h"

#include <cstdint>

namespace velmora {

std::string withCommas(std::string_view stored) {
    return text::replaceAll(stored, "^", ",");
}

std::string inUserNotation(std::string_view stored, std::string_view decimalSeparator) {
    return text::replaceAll(withCommas(stored), ".", decimalSeparator);
}

std::string familyText(std::string_view stored) {
    std::string family = withCommas(stored);
    return family.empty() ? "-" : family;
}

std::string stoneNumberText(std::string_view stoneID, int row) {
    // The int64 range is [-2^63, 2^63): both ends are exact doubles.
    constexpr double lowest = -9223372036854775808.0;
    const auto value = parseCNumber(stoneID);
    if (!value || !(*value >= lowest && *value < -lowest)) {
        return std::to_string(static_cast<std::int64_t>(row) + 1);
    }
    return std::to_string(static_cast<std::int64_t>(*value));
}

} // namespace velmora
