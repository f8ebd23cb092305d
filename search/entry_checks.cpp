#include "search/entry_checks.h"

namespace velmora {

std::optional<std::string> typedEntryAlert(std::string_view text,
                                           const DecimalSeparators& separators) {
    if (!usesOwnSeparator(text, separators.currentDecimalSeparator)) {
        return "Please use '" + separators.decimalSeparator + "' as decimals!";
    }
    if (!isNumberOnly(text, separators.currentDecimalSeparator)) {
        return notANumberMessage;
    }
    return std::nullopt;
}

std::optional<std::string> finishedEntryAlert(std::string_view text,
                                              const DecimalSeparators& separators) {
    if (text.empty() || !hasOnlyNumberCharacters(text, separators)) {
        return notANumberMessage;
    }
    return std::nullopt;
}

} // namespace velmora
