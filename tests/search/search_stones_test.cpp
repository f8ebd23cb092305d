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

std::string names(const StoneList& list) {
    std::string out;
    for (const auto& s : list) {
        out += s.StoneName + ";";
    }
    return out;
}

const SearchAlert numberOnly{"", "Please insert number only!"};

struct Case {
    const char* what;
    SearchForm form;
    DecimalSeparators separators;
    std::optional<std::string> stones; // nothing: the listed stones stay
    std::optional<SearchAlert> alert;
    std::optional<NumericEntry> emptied;
};

TEST(SearchStones, EveryPresenceBeforeAnyNumberAndTheFirstFailureStopsTheSearch) {
    const DecimalSeparators point;
    const Case cases[] = {
        {"no criterion", {}, point, "Quartz;Amethyst;Beryl;", {}, {}},
        {"two empty entries",
         {.isRIState = true, .isSGState = true},
         point,
         {},
         SearchAlert{"", "Please enter R.I. value!"},
         {}},
        {"an invalid number before an empty entry",
         {.isRIState = true, .isHardnessState = true, .riText = "1.5.4"},
         point,
         {},
         SearchAlert{"", "Please enter Hardness value!"},
         {}},
        {"no name",
         {.isNameState = true, .isColorState = true},
         point,
         {},
         SearchAlert{"", "Please enter name of stone!"},
         {}},
        {"an invalid S.G. after a valid R.I.",
         {.isRIState = true, .isSGState = true, .riText = "1.6", .sgText = "."},
         point,
         {},
         numberOnly,
         NumericEntry::SG},
        {"the other notation's separator",
         {.isRIState = true, .riText = "1,544"},
         point,
         {},
         numberOnly,
         NumericEntry::RI},
        {"an invalid hardness",
         {.isHardnessState = true, .hardnessText = "7.5.1"},
         point,
         {},
         numberOnly,
         NumericEntry::Hardness},
        {"the user's own separator",
         {.isRIState = true, .riText = "1,544"},
         {",", ","},
         "Quartz;Amethyst;",
         {},
         {}},
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
         point,
         "Quartz;",
         {},
         {}},
        {"nothing fits",
         {.isHardnessState = true, .hardnessText = "10"},
         point,
         "",
         SearchAlert{"Result", "Not Found in Record"},
         {}},
    };
    for (const auto& c : cases) {
        const SearchOutcome outcome = searchStones(table, c.form, c.separators);
        EXPECT_EQ(outcome.stones ? std::optional(names(*outcome.stones)) : std::nullopt, c.stones)
            << c.what;
        EXPECT_EQ(outcome.alert, c.alert) << c.what;
        EXPECT_EQ(outcome.entryToEmpty, c.emptied) << c.what;
    }
}

} // namespace
} // namespace velmora::test
