// A replay file's text, as read --simulate=FILE and the window's --simulate=FILE take it.

#include "device/sim/replayed_readings.h"

#include <cassert>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::vector<std::uint16_t> readings;
    std::string error;
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    if (!velmora::sim::parseReadings(text, "replay", readings, error)) {
        // The message quotes a short excerpt of the bad line, never the line itself.
        assert(!error.empty() && error.size() < 400);
        for (const char c : error) {
            assert(static_cast<unsigned char>(c) >= 0x20 && c != 0x7F);
        }
    }
    return 0;
}
