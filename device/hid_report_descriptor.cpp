#include "device/hid_report_descriptor.h"

#include <algorithm>
#include <limits>
#include <map>
#include <vector>

namespace velmora {

namespace {

// Item types and tags of the HID class definition, section 6.2.2.
constexpr unsigned mainItem = 0;
constexpr unsigned globalItem = 1;
constexpr unsigned inputTag = 0x8;
constexpr unsigned reportSizeTag = 0x7;
constexpr unsigned reportIdTag = 0x8;
constexpr unsigned reportCountTag = 0x9;
constexpr unsigned pushTag = 0xA;
constexpr unsigned popTag = 0xB;
constexpr std::uint8_t longItemPrefix = 0xFE;

struct GlobalState {
    std::uint64_t reportSize = 0;
    std::uint64_t reportCount = 0;
    std::uint32_t reportId = 0;
};

constexpr std::uint64_t saturated = std::numeric_limits<std::uint64_t>::max();

// a + b * c, or saturated when that does not fit 64 bits.
std::uint64_t addProduct(std::uint64_t a, std::uint64_t b, std::uint64_t c) {
    if (b != 0 && c > saturated / b) {
        return saturated;
    }
    const std::uint64_t product = b * c;
    return product > saturated - a ? saturated : a + product;
}

std::uint32_t littleEndian(std::span<const std::uint8_t> data) {
    std::uint32_t value = 0;
    for (std::size_t k = data.size(); k-- > 0;) {
        value = (value << 8) | data[k];
    }
    return value;
}

} // namespace

std::optional<std::int64_t> maxInputReportSize(std::span<const std::uint8_t> descriptor) {
    GlobalState state;
    std::vector<GlobalState> pushed;
    std::map<std::uint32_t, std::uint64_t> inputBits; // by report identifier
    bool numbered = false;
    std::size_t at = 0;
    while (at < descriptor.size()) {
        const std::uint8_t prefix = descriptor[at];
        if (prefix == longItemPrefix) {
            if (at + 1 >= descriptor.size()) {
                return std::nullopt;
            }
            at += 3 + descriptor[at + 1];
            continue;
        }
        const std::size_t size = (prefix & 0x3) == 3 ? 4 : prefix & 0x3;
        if (at + 1 + size > descriptor.size()) {
            return std::nullopt;
        }
        const std::uint32_t data = littleEndian(descriptor.subspan(at + 1, size));
        const unsigned type = (prefix >> 2) & 0x3;
        const unsigned tag = prefix >> 4;
        if (type == mainItem && tag == inputTag) {
            auto& bits = inputBits[state.reportId];
            bits = addProduct(bits, state.reportSize, state.reportCount);
        } else if (type == globalItem) {
            switch (tag) {
            case reportSizeTag:
                state.reportSize = data;
                break;
            case reportCountTag:
                state.reportCount = data;
                break;
            case reportIdTag:
                state.reportId = data;
                numbered = true;
                break;
            case pushTag:
                pushed.push_back(state);
                break;
            case popTag:
                if (!pushed.empty()) {
                    state = pushed.back();
                    pushed.pop_back();
                }
                break;
            default:
                break;
            }
        }
        at += 1 + size;
    }
    if (at > descriptor.size()) {
        return std::nullopt;
    }
    std::uint64_t longest = 0;
    for (const auto& [id, bits] : inputBits) {
        if (bits == saturated) {
            return std::numeric_limits<std::int64_t>::max();
        }
        longest = std::max(longest, bits / 8 + (bits % 8 != 0));
    }
    return static_cast<std::int64_t>(longest == 0 ? 0 : longest + (numbered ? 1 : 0));
}

} // namespace velmora
