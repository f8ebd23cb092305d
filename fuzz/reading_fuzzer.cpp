// An input report's bytes decoded, and any text shown in the live reading field.

#include "device/reading.h"
#include "foundation/locale.h"

#include <cassert>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size >= 2) {
        // A decoded reading shows as itself where the decimal separator is a full stop.
        const std::string text = velmora::decodeReading(data[0], data[1]);
        assert(velmora::formatReadingForDisplay(text, velmora::FixedLocale(".")) == text);
    }
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    (void)velmora::formatReadingForDisplay(text, velmora::FixedLocale(","));
    return 0;
}
