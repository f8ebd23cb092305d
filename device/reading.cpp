#include "device/reading.h"

#include <array>
#include <charconv>
#include <cmath>

namespace velmora {

std::string decodeReading(std::uint8_t low, std::uint8_t high) {
    const unsigned raw = low + 256u * high;
    const unsigned rest = raw % 1000;
    std::string text = std::to_string(raw / 1000);
    text += '.';
    text += static_cast<char>('0' + rest / 100);
    text += static_cast<char>('0' + rest % 100 / 10);
    text += static_cast<char>('0' + rest % 10);
    return text;
}

std::string formatReadingForDisplay(std::string_view readingText, const Locale& locale) {
    double value = 0;
    const char* end = readingText.data() + readingText.size();
    const auto parsed = std::from_chars(readingText.data(), end, value);
    if (parsed.ec != std::errc{} || parsed.ptr != end || !std::isfinite(value)) {
        return {};
    }
    return formatValueForDisplay(value, locale);
}

std::string formatValueForDisplay(double value, const Locale& locale) {
    // Large enough for the largest double in fixed notation.
    std::array<char, 352> digits{};
    const auto printed = std::to_chars(digits.data(), digits.data() + digits.size(), value,
                                       std::chars_format::fixed, 3);
    const std::string_view fixed(digits.data(),
                                 static_cast<std::size_t>(printed.ptr - digits.data()));

    std::string decimal = locale.decimalSeparator();
    if (decimal.empty()) {
        decimal = ".";
    }
    const std::size_t point = fixed.find('.');
    std::string text(fixed.substr(0, point));
    text += decimal;
    text += fixed.substr(point + 1);
    return text;
}

} // namespace velmora
