// The shipped reference table as a gemmologist meets it: every stone can be found from its own
// readings.

#include "data/reference_loader.h"
#include "foundation/bundle.h"
#include "foundation/c_number.h"
#include "search/property_search.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <ranges>
#include <sstream>
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

} // namespace
} // namespace velmora
