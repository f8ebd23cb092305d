// The shipped reference table as a gemmologist meets it: every stone can be found from its own
// readings, and the classic separations come out as the textbooks have them.

#include "data/reference_loader.h"
#include "foundation/bundle.h"
#include "foundation/c_number.h"
#include "search/property_search.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>
#include <sstream>

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

std::set<std::string> namesFound(double ri, double sg) {
    std::set<std::string> names;
    for (const auto& stone : findStones(referenceSet(), {.ri = ri, .sg = sg})) {
        names.insert(stone.StoneName);
    }
    return names;
}

std::set<std::string> familiesFound(double ri, double sg) {
    std::set<std::string> families;
    for (const auto& stone : findStones(referenceSet(), {.ri = ri, .sg = sg})) {
        families.insert(stone.StoneFamily);
    }
    return families;
}

// Every stone of the named family in the table.
std::set<std::string> family(const std::string& name) {
    std::set<std::string> names;
    for (const auto& stone : referenceSet()) {
        if (stone.StoneFamily == name) {
            names.insert(stone.StoneName);
        }
    }
    return names;
}

bool includes(const std::set<std::string>& found, const std::set<std::string>& expected) {
    return std::includes(found.begin(), found.end(), expected.begin(), expected.end());
}

TEST(ReferenceIdentification, EveryStoneIsFoundFromTheMiddleOfItsOwnRanges) {
    ASSERT_GE(referenceSet().size(), 300u);
    for (const auto& stone : referenceSet()) {
        EXPECT_TRUE(namesFound(middle(stone.Ri), middle(stone.SgRange)).count(stone.StoneName))
            << stone.StoneName << " is not found at R.I. " << middle(stone.Ri) << ", S.G. "
            << middle(stone.SgRange);
    }
}

TEST(ReferenceIdentification, TheClassicSeparations) {
    // Quartz against beryl, corundum, spinel against garnet, beryl.
    EXPECT_TRUE(includes(namesFound(1.544, 2.65), family("Quartz")));
    EXPECT_FALSE(familiesFound(1.544, 2.65).count("Beryl"));
    EXPECT_TRUE(includes(namesFound(1.762, 4.00), family("Corundum")));
    EXPECT_TRUE(includes(namesFound(1.718, 3.60), family("Spinel")));
    for (const auto& f : familiesFound(1.718, 3.60)) {
        EXPECT_EQ(f.find("Garnet"), std::string::npos) << f;
    }
    EXPECT_TRUE(includes(namesFound(1.577, 2.72),
                         {"Aquamarine", "Emerald", "Goshenite", "Heliodor", "Morganite"}));
}

struct Separation {
    double ri;
    double sg;
    std::set<std::string> expected;
    std::set<std::string> ruledOut;
};

TEST(ReferenceIdentification, SeparationsAGemmologistReliesOn) {
    const std::vector<Separation> cases = {
        // Diamond against its imitations: moissanite and cubic zirconia part on S.G. and R.I.
        {2.418,
         3.52,
         {"Diamond"},
         {"Cubic zirconia", "Synthetic moissanite", "Strontium titanate"}},
        {2.16, 5.80, {"Cubic zirconia"}, {"Diamond", "YAG"}},
        {1.833, 4.55, {"YAG"}, {"Diamond", "Cubic zirconia", "GGG"}},
        // Jadeite and nephrite on a spot reading.
        {1.66, 3.33, {"Jadeite"}, {"Nephrite"}},
        {1.61, 2.95, {"Nephrite"}, {"Jadeite"}},
        // Peridot, tourmaline and topaz sit close on the scale.
        {1.66, 3.34, {"Peridot"}, {"Rubellite"}},
        {1.63, 3.06, {"Rubellite", "Indicolite"}, {"Peridot", "Topaz (blue)"}},
        {1.615, 3.54, {"Topaz (blue)", "Topaz (colourless)"}, {"Rubellite"}},
        // Chrysoberyl against sapphire, grossular against spinel.
        {1.745, 3.73, {"Chrysoberyl", "Alexandrite"}, {"Sapphire (yellow)"}},
        {1.74, 3.61, {"Grossular", "Tsavorite"}, {"Spinel (red)"}},
        // The three states of zircon.
        {1.95, 4.70, {"Zircon (high)"}, {"Zircon (low)"}},
        {1.81, 4.00, {"Zircon (low)"}, {"Zircon (high)"}},
        // Opal and amber float low on both scales.
        {1.45, 2.10, {"White opal", "Black opal"}, {"Amber"}},
        {1.54, 1.08, {"Amber"}, {"White opal"}},
    };
    for (const auto& c : cases) {
        const auto found = namesFound(c.ri, c.sg);
        for (const auto& name : c.expected) {
            EXPECT_TRUE(found.count(name))
                << name << " missing at R.I. " << c.ri << ", S.G. " << c.sg;
        }
        for (const auto& name : c.ruledOut) {
            EXPECT_FALSE(found.count(name))
                << name << " listed at R.I. " << c.ri << ", S.G. " << c.sg;
        }
    }
}

} // namespace
} // namespace velmora
