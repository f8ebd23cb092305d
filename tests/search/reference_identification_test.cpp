// The shipped reference table as a gemmologist meets it: every stone can be found from its own
// readings, and the classic separations come out as the textbooks have them.

#include "data/reference_loader.h"
#include "foundation/bundle.h"
#include "foundation/c_number.h"
#include "search/property_search.h"
#include "tests/support/split.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <ranges>
#include <sstream>
#include <string_view>
#include <vector>

namespace velmora {
namespace {

const StoneList& referenceSet() {
    static const StoneList set = [] {
        StoneList arr_stones;
        StoneList arr_stonesGlobal;
        std::ostringstream out;
        loadReferenceSet(referenceFilePath(Bundle::main()), out, arr_stones, arr_stonesGlobal);
        return arr_stonesGlobal;
    }();
    return set;
}

double middle(const std::string& range) {
    const auto dash = range.find('-');
    return (*parseCNumber(range.substr(0, dash)) + *parseCNumber(range.substr(dash + 1))) / 2;
}

TEST(ReferenceIdentification, EveryStoneIsFoundFromTheMiddleOfItsOwnRanges) {
    ASSERT_GE(referenceSet().size(), 300u);
    for (const auto& stone : referenceSet()) {
        const double ri = middle(stone.Ri);
        const double sg = middle(stone.SgRange);
        const auto found = findStones(referenceSet(), {.ri = ri, .sg = sg});
        EXPECT_TRUE(
            std::ranges::any_of(found, [&](auto& s) { return s.StoneName == stone.StoneName; }))
            << stone.StoneName << " is not found at R.I. " << ri << ", S.G. " << sg;
    }
}

struct Separation {
    double ri;
    double sg;
    // Names, a "|" between two; "family X" stands for every stone of the family X, or, ruled
    // out, for every stone whose family names X.
    std::string listed;
    std::string ruledOut;
};

TEST(ReferenceIdentification, SeparationsAGemmologistReliesOn) {
    const Separation cases[] = {
        // Quartz against beryl, corundum, natural spinel against garnet and the flame-fusion
        // synthetic (1.728), the beryls.
        {1.544, 2.65, "family Quartz", "family Beryl"},
        {1.762, 4.00, "family Corundum", ""},
        {1.718, 3.60, "Spinel (red)|Spinel (pink)|Spinel (blue)|Flux-grown spinel",
         "family Garnet|Synthetic spinel"},
        // Diamond against its imitations, which part on S.G. and R.I.
        {2.418, 3.52, "Diamond", "Cubic zirconia|Synthetic moissanite|Strontium titanate"},
        {2.16, 5.80, "Cubic zirconia", "Diamond|YAG"},
        // Jadeite and nephrite on a spot reading.
        {1.66, 3.33, "Jadeite", "Nephrite"},
        // Peridot, tourmaline and topaz sit close on the scale.
        {1.66, 3.34, "Peridot", "Rubellite"},
        {1.63, 3.06, "Rubellite|Indicolite", "Peridot|Topaz (blue)"},
        // Chrysoberyl against sapphire, grossular against spinel.
        {1.745, 3.73, "Chrysoberyl|Alexandrite", "Sapphire (yellow)"},
        {1.74, 3.61, "Grossular|Tsavorite", "Spinel (red)"},
        // The states of zircon; opal and amber low on both scales.
        {1.95, 4.70, "Zircon (high)", "Zircon (low)"},
        {1.45, 2.10, "White opal|Black opal", "Amber"},
    };
    for (const auto& c : cases) {
        const auto found = findStones(referenceSet(), {.ri = c.ri, .sg = c.sg});
        // How many stones of among the name stands for: exactly, or by a part of the name.
        const auto count = [](std::string_view name, const StoneList& among, bool exact) {
            const bool family = name.starts_with("family ");
            const auto wanted = family ? name.substr(7) : name;
            return std::ranges::count_if(among, [&](const Stones& s) {
                const std::string_view field = family ? s.StoneFamily : s.StoneName;
                return exact ? field == wanted : field.find(wanted) != std::string_view::npos;
            });
        };
        for (const std::string_view n : test::splitAt(c.listed, '|')) {
            const auto inTable = count(n, referenceSet(), true);
            EXPECT_TRUE(inTable > 0 && count(n, found, true) == inTable)
                << n << " missing at R.I. " << c.ri << ", S.G. " << c.sg;
        }
        for (const std::string_view n : test::splitAt(c.ruledOut, '|')) {
            EXPECT_TRUE(n.empty() || count(n, found, false) == 0)
                << n << " listed at R.I. " << c.ri << ", S.G. " << c.sg;
        }
    }
}

} // namespace
} // namespace velmora
