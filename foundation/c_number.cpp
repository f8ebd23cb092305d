#include "foundation/c_number.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <system_error>

namespace velmora {
namespace {

bool isCSpaceOrNul(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\v' || c == '\f' || c == '\r' || c == '\0';
}

bool isDigit(char c, bool hex) {
    return (c >= '0' && c <= '9') || (hex && ((c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F')));
}

// Whether a well-formed number too far from 1 for a double is too large rather than too small:
// the power of the base at its first significant digit plus its exponent is not negative.
bool overflows(std::string_view number, bool hex) {
    const long long digitPower = hex ? 4 : 1;
    long long leading = 0;
    bool afterPoint = false;
    bool significant = false;
    std::size_t i = 0;
    for (; i < number.size() && (isDigit(number[i], hex) || number[i] == '.'); ++i) {
        if (number[i] == '.') {
            afterPoint = true;
        } else if (!significant) {
            if (afterPoint) {
                leading -= digitPower;
            }
            significant = number[i] != '0';
        } else if (!afterPoint) {
            leading += digitPower;
        }
    }
    long long exponent = 0;
    if (i + 1 < number.size()) {
        const bool negative = number[i + 1] == '-';
        i += number[i + 1] == '-' || number[i + 1] == '+' ? 2 : 1;
        for (; i < number.size(); ++i) {
            // Saturated: far beyond any double's exponent, the direction is all that counts.
            exponent = std::min(exponent * 10 + (number[i] - '0'), 1LL << 40);
        }
        exponent = negative ? -exponent : exponent;
    }
    return leading + exponent >= 0;
}

} // namespace

// The C library's strtod in the C locale, spelled with from_chars, which knows no locale and
// reads neither a "+" nor the "0x" of hexadecimal, and leaves a value out of range unset.
std::optional<double> parseCNumber(std::string_view text) {
    if (text.empty() || isCSpaceOrNul(text.front())) {
        return std::nullopt;
    }
    const bool negative = text.front() == '-';
    if (negative || text.front() == '+') {
        text.remove_prefix(1);
    }
    if (text.empty() || text.front() == '+' || text.front() == '-') {
        return std::nullopt;
    }
    const bool hex = text.size() >= 2 && text[0] == '0' && (text[1] == 'x' || text[1] == 'X');
    if (hex) {
        text.remove_prefix(2);
        // "0x" is followed by digits or a point; from_chars alone would take a sign or "inf".
        if (text.empty() || !(isDigit(text.front(), true) || text.front() == '.')) {
            return std::nullopt;
        }
    }
    double value = 0;
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(
        text.data(), end, value, hex ? std::chars_format::hex : std::chars_format::general);
    if (error == std::errc::invalid_argument || stop != end) {
        return std::nullopt;
    }
    if (error == std::errc::result_out_of_range) {
        value = overflows(text, hex) ? HUGE_VAL : 0.0;
    }
    return negative ? -value : value;
}

} // namespace velmora
