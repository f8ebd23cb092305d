#include "search/search_stones.h"

#include <gtest/gtest.h>

namespace velmora::test {
namespace {

Stones stone(std::string_view name, std::string_view ri, std::string_view sg,
             std::string_view hardness, std::string_view color) {
    Stones s;
    s.StoneName = name;
    s.Ri = ri;
    s.SgRange = sg;
    s.Hardness = hardness;
    s.Color1 = color;
    return s;
}

const StoneList table(std::vector<Stones>{
    stone("Quartz", "1.544 - 1.553", "2.65-2.66", "7-7", "Pink"),
    stone("Amethyst", "1.544-1.553", "2.6-2.7", "7-7", "Purple"),
    stone("Beryl", "1.57-1.60", "2.6-2.9", "7.5-8", "Green"),
});

// The outcome in one line: the stones listed (or "kept"), the alert's two texts, the entry
// emptied.
std::string outcomeOf(const SearchForm& form, const DecimalSeparators& separators = {}) {
    const SearchOutcome outcome = searchStones(table, form, separators);
    std::string out = outcome.stones ? "" : "kept";
    for (const auto& s : outcome.stones.value_or(StoneList())) {
        out += s.StoneName + ";";
    }
    if (outcome.alert) {
        out += " | " + outcome.alert->message + ": " + outcome.alert->informative;
    }
    if (outcome.entryToEmpty) {
        const char* entries[] = {"R.I.", "S.G.", "hardness"};
        out += std::string(" | empties ") + entries[static_cast<int>(*outcome.entryToEmpty)];
    }
    return out;
}

TEST(SearchStones, EveryPresenceBeforeAnyNumberAndTheFirstFailureStopsTheSearch) {
    const std::string numberOnly = "kept | : Please insert number only! | empties ";
    const std::tuple<const char*, SearchForm, std::string> cases[] = {
        {"no criterion", {}, "Quartz;Amethyst;Beryl;"},
        {"two empty entries",
         {.isRIState = true, .isSGState = true},
         "kept | : Please enter R.I. value!"},
        {"an invalid number before an empty entry",
         {.isRIState = true, .isHardnessState = true, .riText = "1.5.4"},
         "kept | : Please enter Hardness value!"},
        {"no name",
         {.isNameState = true, .isColorState = true},
         "kept | : Please enter name of stone!"},
        {"an invalid S.G. after a valid R.I.",
         {.isRIState = true, .isSGState = true, .riText = "1.6", .sgText = "."},
         numberOnly + "S.G."},
        {"the other notation's separator",
         {.isRIState = true, .riText = "1,544"},
         numberOnly + "R.I."},
        {"an invalid hardness",
         {.isHardnessState = true, .hardnessText = "7.5.1"},
         numberOnly + "hardness"},
        {"nothing fits",
         {.isHardnessState = true, .hardnessText = "10"},
         " | Result: Not Found in Record"},
        {"every criterion",
         {.isRIState = true,
          .isSGState = true,
          .isHardnessState = true,
          .isNameState = true,
          .isColorState = true,
          .riText = "1.55",
          .sgText = "2.65",
          .hardnessText = "7",
          .nameText = "UARTZ",
          .selectedColor = "pink"},
         "Quartz;"},
    };
    for (const auto& [what, form, outcome] : cases) {
        EXPECT_EQ(outcomeOf(form), outcome) << what;
    }
    EXPECT_EQ(outcomeOf({.isRIState = true, .riText = "1,544"}, {",", ","}), "Quartz;Amethyst;");
}

} // namespace
} // namespace velmora::test
