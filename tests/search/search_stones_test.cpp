#include "search/search_stones.h"

#include <gtest/gtest.h>

namespace velmora::test {
namespace {

// What the stones found are, and the alert of nothing found, the command line's and the window's
// tests show; these are the entries that stop the search.
TEST(SearchStones, EveryPresenceBeforeAnyNumberAndTheFirstFailureStopsTheSearch) {
    const std::string numberOnly = "Please insert number only! | empties ";
    const std::tuple<const char*, SearchForm, std::string> cases[] = {
        {"two empty entries", {.isRIState = true, .isSGState = true}, "Please enter R.I. value!"},
        {"an invalid number before an empty entry",
         {.isRIState = true, .isHardnessState = true, .riText = "1.5.4"},
         "Please enter Hardness value!"},
        {"no name", {.isNameState = true, .isColorState = true}, "Please enter name of stone!"},
        {"an invalid S.G. after a valid R.I.",
         {.isRIState = true, .isSGState = true, .riText = "1.6", .sgText = "."},
         numberOnly + "S.G."},
        {"the other notation's separator",
         {.isRIState = true, .riText = "1,544"},
         numberOnly + "R.I."},
        {"an invalid hardness",
         {.isHardnessState = true, .hardnessText = "7.5.1"},
         numberOnly + "hardness"},
    };
    const StoneList table(std::vector<Stones>(3));
    for (const auto& [what, form, stopped] : cases) {
        const SearchOutcome outcome = searchStones(table, form, {});
        EXPECT_FALSE(outcome.stones) << what; // the listed stones stay
        ASSERT_TRUE(outcome.alert) << what;
        std::string said = outcome.alert->message + outcome.alert->informative;
        if (outcome.entryToEmpty) {
            const char* entries[] = {"R.I.", "S.G.", "hardness"};
            said += std::string(" | empties ") + entries[static_cast<int>(*outcome.entryToEmpty)];
        }
        EXPECT_EQ(said, stopped) << what;
    }
}

} // namespace
} // namespace velmora::test
