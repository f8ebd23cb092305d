#include "tests/support/reference_rows.h"
#include "tests/support/window_harness.h"

#include <gtest/gtest.h>

namespace velmora::test {
namespace {

using Texts = std::vector<std::string>;
using Rows = std::vector<std::pair<std::string, std::string>>;

const std::vector<std::string> reference = {
    stoneRow("1", "Quartz", "1.544 - 1.553", "2.65-2.66", "7", "Pink"),
    stoneRow("2", "Beryl", "1.57-1.60", "2.6-2.9", "7.5-8", "Green"),
    stoneRow("3", "Single", "1.54", "2.65", "7"),
    stoneRow("4", "Dashed",
             "1.54\xE2\x80\x93"
             "1.56"),
    stoneRow("5", "Reversed", "1.55-1.54"),
    stoneRow("6", "Ruby", "1.762-1.770", "3.9-4.1", "9", "Red"),
};

// The dictionary tab, worked by hand.
struct Dictionary : WindowHarness {
    explicit Dictionary(std::string separator = ".")
        : WindowHarness({.rows = reference, .decimalSeparator = std::move(separator)}) {
        click(window.bvtn_dictionary);
    }
    void enter(Button& box, TextField& entry, const std::string& text) {
        click(box);
        type(entry, text);
        leave();
    }
    void search() { click(window.btn_search); }
};

TEST(Search, WithNoCriterionListsTheWholeTable) {
    Dictionary h;
    h.search();
    EXPECT_EQ(h.tableRows().size(), reference.size());
    EXPECT_EQ(h.window.tableView.selectedRow(), 0);
    EXPECT_TRUE(h.alerts().empty());
}

TEST(Search, TheRiEntryIsMatchedAgainstTheRiRanges) {
    Dictionary h;
    h.enter(h.window.check_RI, h.window.txt_leftRIReading, "1.544");
    h.search();
    EXPECT_EQ(h.tableRows(), (Rows{{"1", "Quartz"}}));
    EXPECT_EQ(h.window.txt_RI.text(), "1.544 - 1.553"); // row 0's detail
    // Neither the single value, nor the en dash, nor the reversed range matched.
}

TEST(Search, ReadsTheEntryWithEitherSeparator) {
    Dictionary comma(",");
    comma.enter(comma.window.check_RI, comma.window.txt_leftRIReading, "1,544");
    comma.search();
    EXPECT_EQ(comma.tableRows(), (Rows{{"1", "Quartz"}}));
    EXPECT_EQ(comma.window.txt_RI.text(), "1,544 - 1,553");

    Dictionary point;
    point.click(point.window.check_RI);
    point.window.txt_leftRIReading.setText("1,544"); // past the entry checks, as Enter sets it
    point.search();
    EXPECT_EQ(point.alerts(), Texts{"Please insert number only!"});
    EXPECT_EQ(point.window.txt_leftRIReading.text(), "");
}

TEST(Search, EveryPresenceIsCheckedBeforeAnyNumberIsRead) {
    Dictionary h;
    h.click(h.window.check_RI);
    h.click(h.window.check_sg);
    h.search();
    EXPECT_EQ(h.alerts(), Texts{"Please enter R.I. value!"});

    Dictionary later;
    later.enter(later.window.check_RI, later.window.txt_leftRIReading, "1.5.4");
    later.click(later.window.check_hardness);
    later.search();
    EXPECT_EQ(later.alerts(), Texts{"Please enter Hardness value!"});
    EXPECT_EQ(later.window.txt_leftRIReading.text(), "1.5.4");

    Dictionary name;
    name.click(name.window.check_Name);
    name.search();
    EXPECT_EQ(name.alerts(), Texts{"Please enter name of stone!"});
}

TEST(Search, AnInvalidNumberEmptiesOnlyItsEntryAndLeavesTheListAsItWas) {
    for (const char* invalid : {"1.5.4", "."}) {
        Dictionary h;
        h.enter(h.window.check_RI, h.window.txt_leftRIReading, "1.6");
        h.enter(h.window.check_sg, h.window.txt_leftSG, invalid);
        h.search();
        EXPECT_EQ(h.alerts(), Texts{"Please insert number only!"}) << invalid;
        EXPECT_EQ(h.window.txt_leftSG.text(), "");
        EXPECT_EQ(h.window.txt_leftRIReading.text(), "1.6");
        EXPECT_EQ(h.tableRows().size(), reference.size());
        EXPECT_EQ(h.state().arr_stones.size(), reference.size());
        EXPECT_EQ(h.window.lbl_stonesCount.text(), std::to_string(reference.size()));
    }
}

TEST(Search, NothingFoundShowsTheEmptyListBeforeTheAlert) {
    Dictionary h;
    h.enter(h.window.check_hardness, h.window.txt_leftHardness, "10");
    std::string countDuringAlert;
    h.alertPresenter.whileShown([&] { countDuringAlert = h.window.lbl_stonesCount.text(); });
    h.search();
    EXPECT_EQ(countDuringAlert, "0");
    EXPECT_EQ(h.alertPresenter.alerts().at(0).message, "Result");
    EXPECT_EQ(h.alerts(), Texts{"Not Found in Record"});
    EXPECT_EQ(h.window.tableView.numberOfRows(), 0);
    EXPECT_EQ(h.window.txt_RI.text(), "");
}

TEST(Search, CriteriaCombineWhateverOrderTheBoxesWereTicked) {
    Dictionary h;
    h.click(h.window.check_Name);
    h.type(h.window.txt_left_name, "r");
    h.enter(h.window.check_hardness, h.window.txt_leftHardness, "7.5");
    h.search();
    EXPECT_EQ(h.tableRows(), (Rows{{"2", "Beryl"}}));
    h.click(h.window.check_color);
    h.pick(h.window.btn_color, "Pink");
    h.search();
    EXPECT_EQ(h.alerts(), Texts{"Not Found in Record"});
}

} // namespace
} // namespace velmora::test
