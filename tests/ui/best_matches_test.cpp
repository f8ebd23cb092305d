#include "tests/support/reference_rows.h"
#include "tests/support/window_harness.h"

#include <gtest/gtest.h>

namespace velmora::test {
namespace {

using Texts = std::vector<std::string>;

const std::vector<std::string> reference = {
    gemRow("50", "Ruby", "1.762-1.770", "3.97-4.05", "9", "0.008", "Corundum", "Red"),
    gemRow("51", "Pink sapphire", "1.762-1.770", "3.95-4.03", "9", "0.008", "Corundum", "Red"),
    gemRow("60", "Almandine", "1.775-1.830", "3.93-4.30", "9", "none", "Garnet", "Red"),
    gemRow("70", "Spinel", "1.712-1.736", "3.58-3.61", "9", "none", "Spinel", "Red"),
    gemRow("1", "Rock crystal", "1.544-1.553", "2.64-2.66", "9", "0.009", "Quartz", "Red"),
};

struct Bench : WindowHarness {
    Bench() : WindowHarness({.rows = reference}) { click(window.bvtn_dictionary); }
    Texts candidates() { return columnTexts(window.tbl_bestMatches, 1); }
    std::string note() const { return window.lbl_bestMatchesNote.text(); }
    void rubyReadings() {
        click(window.check_RI);
        type(window.txt_leftRIReading, "1.762");
        type(window.txt_leftRIHigh, "1.770");
    }
};

TEST(BestMatches, RankOnSearchAndAnewAsTheirOwnEntriesChange) {
    Bench b;
    EXPECT_EQ(b.note(), "Enter a reading to rank the stones by fit.");
    EXPECT_TRUE(b.candidates().empty());

    b.click(b.window.check_RI);
    b.type(b.window.txt_leftRIReading, "1.718");
    EXPECT_TRUE(b.candidates().empty()); // the strict form's entries wait for Search
    b.click(b.window.btn_search);
    EXPECT_EQ(b.candidates().front(), "Spinel");

    Bench ruby;
    ruby.rubyReadings();
    // What a row says is the ranking's own. Once something fits, the stones that do not are left
    // out: Almandine's range starts 0.013 above the low reading, and a spread of 0.008 is no
    // singly refractive stone's.
    EXPECT_EQ(ruby.candidates(), Texts{"Corundum"});
    EXPECT_TRUE(b.alerts().empty() && ruby.alerts().empty());
}

TEST(BestMatches, ABadEntryShowsANoteAndNeverAnAlert) {
    Bench b;
    b.rubyReadings();
    b.type(b.window.txt_leftRIHigh, "x");
    EXPECT_EQ(b.note(), "High R.I. \"1.770x\" is not a number.");
    EXPECT_TRUE(b.candidates().empty());
    b.leave();
    EXPECT_EQ(b.window.txt_leftRIHigh.text(), "1.770x"); // kept for the user to mend
    EXPECT_EQ(b.alerts(), Texts{});
}

TEST(BestMatches, TheStrictSearchKeepsItsAlertsAndItsList) {
    Bench b;
    b.rubyReadings();
    b.click(b.window.check_sg);
    const std::string shown = b.window.txt_RI.text();
    b.click(b.window.btn_search);
    EXPECT_EQ(b.alerts(), Texts{"Please enter S.G. value!"});
    // The ranking leaves the empty S.G. out; the listed stones stay as they were.
    EXPECT_EQ(b.candidates().front(), "Corundum");
    EXPECT_EQ(std::pair(b.window.tableView.numberOfRows(), b.window.txt_RI.text()),
              std::pair(5, shown));
}

// What the weights give, and what is wrong with them, is the weighing's own; the window's part is
// the S.G. entry filled, the note, and the weights going with S.G.
TEST(BestMatches, WeighingFillsTheSgEntryOrNotesTheImpossibleWeights) {
    Bench b;
    EXPECT_FALSE(b.window.txt_weightAir.isEnabled()); // with S.G. off
    b.click(b.window.check_sg);
    b.type(b.window.txt_weightAir, "1.800");
    b.type(b.window.txt_weightWater, "1.350");
    EXPECT_EQ(b.window.txt_leftSG.text(), "4.0");
    EXPECT_EQ(b.candidates().front(), "Corundum");

    Bench c;
    c.click(c.window.check_sg);
    c.type(c.window.txt_weightAir, "1");
    c.type(c.window.txt_weightWater, "1.350");
    EXPECT_EQ(c.note(), "The weight in water must be below the weight in air: water buoys the "
                        "stone up.");
    EXPECT_TRUE(b.alerts().empty() && c.alerts().empty());
}

} // namespace
} // namespace velmora::test
