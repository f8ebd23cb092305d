#include "search/deviation_text.h"

#include "foundation/text.h"

#include <charconv>
#include <cmath>

namespace velmora {
namespace {

struct Label {
    const char* name;
    int decimals;
};

constexpr std::array<Label, propertyCount> labels = {{
    {"R.I.", 3},
    {"Biref.", 3},
    {"S.G.", 2},
    {"Hardness", 1},
    {"Colour", 0},
}};

constexpr auto npos = std::string::npos;

} // namespace

std::string fixedText(double value, int decimals, std::string_view decimalSeparator) {
    // to_chars, not printf: the process's C locale may have been set to the user's.
    char buffer[64];
    const auto end =
        std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed, decimals);
    return text::replaceAll(std::string_view(buffer, end.ptr - buffer), ".", decimalSeparator);
}

std::string deviationText(const RankedStone& stone, bool overTheLimit, bool listFits,
                          std::string_view decimalSeparator) {
    std::string out;
    for (std::size_t p = 0; p < propertyCount; ++p) {
        const auto& d = stone.deviations[p];
        if (!d) {
            continue;
        }
        const bool isColor = static_cast<Property>(p) == Property::Color;
        const std::string amount = fixedText(std::abs(d->off), labels[p].decimals, ".");
        // Closer than the last decimal shown is as good as inside.
        const bool fits = isColor ? d->off == 0 : amount.find_first_not_of("0.") == npos;
        if (fits && !listFits) {
            continue;
        }
        std::string part = labels[p].name;
        if (fits) {
            part += " fits";
        } else if (isColor) {
            part += " differs";
        } else {
            part += ' ' + text::replaceAll(amount, ".", decimalSeparator) +
                    (d->off < 0 ? " below" : " above");
            if (overTheLimit && static_cast<Property>(p) == Property::RI) {
                part += " the limit";
            }
        }
        out += (out.empty() ? "" : "; ") + part;
    }
    return out;
}

} // namespace velmora
