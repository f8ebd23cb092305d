#include "foundation/c_number.h"

#include <charconv>
#include <cstdlib>
#include <locale.h>
#include <string>

namespace velmora {
namespace {

bool isCSpaceOrNul(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\v' || c == '\f' || c == '\r' || c == '\0';
}

locale_t cLocale() {
    static const locale_t c = newlocale(LC_ALL_MASK, "C", static_cast<locale_t>(nullptr));
    return c;
}

} // namespace

std::optional<double> parseCNumber(std::string_view text) {
    if (text.empty() || isCSpaceOrNul(text.front())) {
        return std::nullopt;
    }
    // The fast path reads what the searches meet a hundred thousand times per run; what it
    // leaves (a leading "+", hexadecimal, values out of range) the C library reads.
    double value = 0;
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    if (error == std::errc() && stop == end) {
        return value;
    }
    const std::string terminated(text);
    char* parsedEnd = nullptr;
    value = strtod_l(terminated.c_str(), &parsedEnd, cLocale());
    // A NUL inside the text ends the C library's reading early, and so makes it no number.
    if (parsedEnd != terminated.c_str() + terminated.size()) {
        return std::nullopt;
    }
    return value;
}

} // namespace velmora
