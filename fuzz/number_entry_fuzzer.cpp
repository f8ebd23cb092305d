// Typed text read as an entry's number; the first byte picks the decimal separators.

#include "search/number_entry.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) {
        return 0;
    }
    static const char* const separators[] = {".", ",", "\xD9\xAB", "'"};
    const velmora::DecimalSeparators window{separators[data[0] & 3],
                                            separators[(data[0] >> 2) & 3]};
    const std::string_view text(reinterpret_cast<const char*>(data + 1), size - 1);
    (void)velmora::hasOnlyNumberCharacters(text, window);
    (void)velmora::usesOwnSeparator(text, window.decimalSeparator);
    if (const auto number = velmora::readEntryNumber(text, window)) {
        (void)std::isfinite(*number);
    }
    return 0;
}
