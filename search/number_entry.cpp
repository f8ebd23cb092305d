#include "search/number_entry.h"

#include <unicode/utf8.h>

namespace velmora {
namespace {

bool holds(std::string_view text, UChar32 wanted) {
    const auto length = static_cast<int32_t>(text.size());
    for (int32_t i = 0; i < length;) {
        UChar32 scalar = 0;
        U8_NEXT(text.data(), i, length, scalar);
        if (scalar == wanted) {
            return true;
        }
    }
    return false;
}

} // namespace

bool isNumberOnly(std::string_view text, std::string_view separator) {
    const auto length = static_cast<int32_t>(text.size());
    for (int32_t i = 0; i < length;) {
        UChar32 scalar = 0;
        U8_NEXT(text.data(), i, length, scalar);
        const bool digit = scalar >= '0' && scalar <= '9';
        // A byte that is not UTF-8 reads as a negative scalar, which no separator holds.
        if (!digit && (scalar < 0 || !holds(separator, scalar))) {
            return false;
        }
    }
    return true;
}

std::string foreignSeparator(std::string_view separator) {
    return separator == "." ? "," : ".";
}

} // namespace velmora
