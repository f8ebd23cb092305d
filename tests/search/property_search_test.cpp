#include "search/property_search.h"

#include <gtest/gtest.h>

namespace velmora::test {
namespace {

// A range text, an entry, and whether it matches.
struct R {
    const char* range;
    double value;
    bool matches;
};

TEST(RangeTest, TheFirstTwoHyphenPiecesWithoutSpacesAreTheBoundsAndAnUnreadableOneIsZero) {
    // Spaces go, even inside a number; a single value never matches; pieces after the second are
    // ignored; an unreadable bound is 0; a reversed range matches nothing.
    for (const auto& c :
         {R{"1.544 - 1.553", 1.553, true}, R{"1.544 - 1.553", 1.5531, false},
          R{"1. 5-1.6", 1.5, true}, R{"1.54", 1.54, false}, R{"1.76-1.77-1.78", 1.775, false},
          R{"x-1.6", 1.0, true}, R{"1.55-1.54", 1.545, false}}) {
        EXPECT_EQ(matchesRange(c.range, c.value), c.matches) << c.range << " for " << c.value;
    }
}

Stones stone(std::string_view name, std::string_view ri = "", std::string_view color3 = "") {
    Stones s;
    s.StoneName = name;
    s.Ri = ri;
    s.Color3 = color3;
    return s;
}

std::string names(const StoneList& list) {
    std::string out;
    for (const auto& s : list) {
        out += s.StoneName + ";";
    }
    return out;
}

TEST(FindStones, ColourIgnoresCaseNameIsAPartIgnoringCaseAndCriteriaCombine) {
    const StoneList colours(std::vector<Stones>{stone("A", "", "grey"), stone("B", "", "Gray"),
                                                stone("C", "", "Grey "), stone("D", "", "GREY")});
    EXPECT_EQ(names(findStones(colours, {.color = "Grey"})), "A;D;");
    const StoneList table(std::vector<Stones>{
        stone("Ruby", "1.762-1.770"), stone("Star Ruby", "1.762-1.770"),
        stone("Rubellite", "1.62-1.64"), stone("\xC3\x89meraude"),
        stone("Quartz", "1.544-1.553", "Pink"), stone("Quartzite", "1.544-1.553", "Green"),
        stone("Quartz", "1.544-1.553", "Pink")});
    EXPECT_EQ(names(findStones(table, {.name = "RUBY"})), "Ruby;Star Ruby;");
    EXPECT_EQ(names(findStones(table, {.name = "ub"})), "Ruby;Star Ruby;Rubellite;");
    EXPECT_EQ(names(findStones(table, {.name = "ruby "})), "");
    // Lower-cased beyond ASCII, and compared by canonical equivalence ("e" + combining acute).
    EXPECT_EQ(names(findStones(table, {.name = "e\xCC\x81mer"})), "\xC3\x89meraude;");
    EXPECT_EQ(names(findStones(table, {.ri = 1.55, .color = "pink", .name = "quartz"})),
              "Quartz;Quartz;");
}

} // namespace
} // namespace velmora::test
