#include "search/number_entry.h"
#include "search/property_search.h"

#include <gtest/gtest.h>

namespace velmora::test {
namespace {

TEST(RangeTest, SpacesAroundTheHyphenAreDroppedAndBothBoundsCount) {
    EXPECT_TRUE(matchesRange("1.544 - 1.553", 1.544));
    EXPECT_TRUE(matchesRange("1.544 - 1.553", 1.553));
    EXPECT_FALSE(matchesRange("1.544 - 1.553", 1.5531));
    EXPECT_FALSE(matchesRange("1.544 - 1.553", 1.5439));
    // Spaces inside a number go too; other white space stays and spoils the bound, which is 0.
    EXPECT_TRUE(matchesRange("1. 5-1.6", 1.5));
    EXPECT_TRUE(matchesRange("1.5\t-1.6", 1.0));
}

TEST(RangeTest, FewerThanTwoPiecesNeverMatch) {
    EXPECT_FALSE(matchesRange("1.54", 1.54));
    EXPECT_FALSE(matchesRange("", 0));
    EXPECT_FALSE(matchesRange("-1.54-", 1.54));
    EXPECT_FALSE(matchesRange("1.54 -- ", 1.54));
    // An en dash is no cut: the text is one piece.
    EXPECT_FALSE(matchesRange("1.54\u20131.56", 1.55));
}

TEST(RangeTest, OnlyTheFirstTwoPiecesAreTheBounds) {
    EXPECT_TRUE(matchesRange("1.76-1.77-1.78", 1.77));
    EXPECT_FALSE(matchesRange("1.76-1.77-1.78", 1.775));
    // Doubled and leading hyphens make no empty piece.
    EXPECT_TRUE(matchesRange("--1.5--1.6--", 1.55));
}

TEST(RangeTest, AnUnreadableBoundCountsAsZero) {
    EXPECT_FALSE(matchesRange("1.54-x", 1.55));
    EXPECT_TRUE(matchesRange("x-1.6", 1.0));
    EXPECT_TRUE(matchesRange("a-b", 0.0));
    EXPECT_FALSE(matchesRange("1.55-1.54", 1.545)); // reversed
}

TEST(RangeTest, BoundsAreReadInTheCNotation) {
    EXPECT_TRUE(matchesRange("1e0-2", 1.5));
    EXPECT_TRUE(matchesRange("+1-2", 1.5));
    EXPECT_TRUE(matchesRange("0x1p0-2", 1.0));
    EXPECT_TRUE(matchesRange(".5-5.", 5.0));
    // The comma is no decimal mark here, nor is a second point: the low bound is 0.
    EXPECT_TRUE(matchesRange("1,5-2", 0.5));
    EXPECT_TRUE(matchesRange("1.5.4-2", 0.5));
    EXPECT_TRUE(matchesRange("1-inf", 1e300));
}

Stones stone(std::string name, std::string ri = "", std::string color3 = "") {
    Stones s;
    s.StoneName = std::move(name);
    s.Ri = std::move(ri);
    s.Color3 = std::move(color3);
    return s;
}

std::vector<std::string> names(const StoneList& list) {
    std::vector<std::string> out;
    for (const auto& s : list) {
        out.push_back(s.StoneName);
    }
    return out;
}

TEST(FindStones, NoCriterionGivesTheTableItself) {
    const StoneList table(std::vector<Stones>{stone("A"), stone("B")});
    const StoneList found = findStones(table, {});
    EXPECT_EQ(found.begin(), table.begin()); // shared, not copied
}

TEST(FindStones, ColourIgnoresCaseButNotSpellingNorSpaces) {
    const StoneList table(std::vector<Stones>{stone("A", "", "grey"), stone("B", "", "Gray"),
                                              stone("C", "", "Grey "), stone("D", "", "GREY")});
    EXPECT_EQ(names(findStones(table, {.color = "Grey"})), (std::vector<std::string>{"A", "D"}));
    // An empty colour cell is equal only to an empty choice.
    EXPECT_EQ(names(findStones(table, {.color = ""})).size(), 4u);
}

TEST(FindStones, NameIsAContiguousPartIgnoringCase) {
    const StoneList table(std::vector<Stones>{stone("Ruby"), stone("Star Ruby"), stone("Rubellite"),
                                              stone("\xC3\x89meraude")});
    EXPECT_EQ(names(findStones(table, {.name = "RUBY"})),
              (std::vector<std::string>{"Ruby", "Star Ruby"}));
    EXPECT_EQ(names(findStones(table, {.name = "ub"})).size(), 3u);
    EXPECT_TRUE(names(findStones(table, {.name = "ruby "})).empty());
    // Lower-cased beyond ASCII, and compared by canonical equivalence ("e" + combining acute).
    EXPECT_EQ(names(findStones(table, {.name = "e\xCC\x81mer"})).size(), 1u);
}

TEST(FindStones, CriteriaCombineAndKeepTheTableOrderAndRepeats) {
    const StoneList table(std::vector<Stones>{
        stone("Quartz", "1.544-1.553", "Pink"), stone("Beryl", "1.57-1.58", "Pink"),
        stone("Quartz", "1.544-1.553", "Pink"), stone("Quartzite", "1.544-1.553", "Green")});
    const auto found = findStones(table, {.ri = 1.55, .color = "pink", .name = "quartz"});
    EXPECT_EQ(names(found), (std::vector<std::string>{"Quartz", "Quartz"}));
}

TEST(NumberEntry, OnlyDigitsAndTheSeparatorsCharacters) {
    EXPECT_TRUE(isNumberOnly("", "."));
    EXPECT_TRUE(isNumberOnly("1.2.3", "."));
    EXPECT_TRUE(isNumberOnly(".", "."));
    EXPECT_FALSE(isNumberOnly("1,5", "."));
    EXPECT_TRUE(isNumberOnly("1,5", ","));
    for (const char* bad : {"-1", "1 ", "1e2", "a", "\xD9\xA1", "\xFF"}) {
        EXPECT_FALSE(isNumberOnly(bad, ".")) << bad;
    }
    // A separator of several characters permits each of them, in any order.
    EXPECT_TRUE(isNumberOnly("1\xD9\xAB"
                             "5",
                             "\xD9\xAB"));
    EXPECT_FALSE(isNumberOnly("1\xD9\xAC"
                              "5",
                              "\xD9\xAB"));
    EXPECT_EQ(foreignSeparator("."), ",");
    EXPECT_EQ(foreignSeparator(","), ".");
    EXPECT_EQ(foreignSeparator("\xD9\xAB"), ".");
}

} // namespace
} // namespace velmora::test
