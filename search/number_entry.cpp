#include "search/number_entry.h"

#include "foundation/c_number.h"
#include "foundation/text.h"

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

bool usesOwnSeparator(std::string_view text, std::string_view separator) {
    return text.find(foreignSeparator(separator)) == std::string_view::npos;
}

bool hasOnlyNumberCharacters(std::string_view text, const DecimalSeparators& separators) {
    return isNumberOnly(text, separators.decimalSeparator);
}

std::optional<double> readEntryNumber(std::string_view text, const DecimalSeparators& separators) {
    if (!isNumberOnly(text, separators.currentDecimalSeparator)) {
        return std::nullopt;
    }
    return parseCNumber(text::replaceAll(text, separators.decimalSeparator, "."));
}

} // namespace velmora
