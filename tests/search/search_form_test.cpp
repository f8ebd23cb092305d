#include "tests/support/reference_rows.h"
#include "tests/support/window_harness.h"

#include <gtest/gtest.h>

namespace velmora::test {
namespace {

using Texts = std::vector<std::string>;
using Rows = std::vector<std::pair<std::string, std::string>>;

const std::vector<std::string> reference = {
    stoneRow("1", "Quartz", "1.544-1.553", "2.65-2.66", "7", "Pink"),
    stoneRow("2", "Amethyst", "1.544-1.553", "2.6-2.7", "7", "Purple"),
    stoneRow("3", "Beryl", "1.57-1.60", "2.6-2.9", "7.5-8", "Green"),
};

void expectUnavailable(const MainWindow& w) {
    for (const Button* box :
         {&w.check_RI, &w.check_sg, &w.check_hardness, &w.check_color, &w.check_Name}) {
        EXPECT_FALSE(box->isEnabled());
        EXPECT_EQ(box->state(), ButtonState::Off);
    }
    for (const TextField* entry :
         {&w.txt_leftRIReading, &w.txt_leftSG, &w.txt_leftHardness, &w.txt_left_name}) {
        EXPECT_FALSE(entry->isEnabled());
        EXPECT_EQ(entry->text(), "");
    }
    EXPECT_FALSE(w.btn_color.isEnabled());
    EXPECT_EQ(w.btn_color.numberOfItems(), 0);
    EXPECT_TRUE(w.btn_stonesList.isEnabled());
}

bool anyCriterionOn(const ViewControllerState& s) {
    return s.isRIState || s.isSGState || s.isHardnessState || s.isNameState || s.isColorState;
}

TEST(CheckBoxes, SwitchAnEntryOnEmptyAndOffEmptied) {
    WindowHarness h({.rows = reference});
    MainWindow& w = h.window;
    h.click(w.bvtn_dictionary);
    h.click(w.check_sg);
    EXPECT_TRUE(w.txt_leftSG.isEnabled());
    EXPECT_TRUE(h.state().isSGState);
    h.type(w.txt_leftSG, "2.65");
    h.click(w.check_sg);
    EXPECT_FALSE(w.txt_leftSG.isEnabled());
    EXPECT_EQ(w.txt_leftSG.text(), "");
    EXPECT_FALSE(h.state().isSGState);
    h.click(w.check_sg);
    EXPECT_EQ(w.txt_leftSG.text(), "");
}

TEST(CheckBoxes, ATagOutsideTheFiveDoesNothing) {
    WindowHarness h({.rows = reference});
    h.click(h.window.bvtn_dictionary);
    for (int tag : {5, -1}) {
        h.window.check_sg.setTag(tag);
        h.click(h.window.check_sg);
        EXPECT_FALSE(anyCriterionOn(h.state()));
        EXPECT_FALSE(h.window.txt_leftSG.isEnabled());
    }
}

TEST(Enter, TakesTheLiveReadingLocksRiOnAndSearches) {
    WindowHarness h({.rows = reference, .decimalSeparator = ","});
    MainWindow& w = h.window;
    w.usb_device_reading.setText("1,550");
    h.click(w.btn_enter);
    EXPECT_EQ(w.txt_leftRIReading.text(), "1,550");
    EXPECT_TRUE(h.state().isRIState);
    EXPECT_EQ(w.check_RI.state(), ButtonState::On);
    EXPECT_FALSE(w.check_RI.isEnabled());
    EXPECT_TRUE(w.check_sg.isEnabled() && w.check_Name.isEnabled());
    EXPECT_TRUE(w.btn_search.isEnabled());
    EXPECT_EQ(h.tableRows(), (Rows{{"2", "Amethyst"}, {"1", "Quartz"}}));
    EXPECT_TRUE(h.alerts().empty());

    // Narrowed by another criterion, then Enter again with a new reading.
    h.click(w.check_color);
    h.pick(w.btn_color, "Pink");
    w.usb_device_reading.setText("1,545");
    h.click(w.btn_enter);
    EXPECT_EQ(w.txt_leftRIReading.text(), "1,545");
    EXPECT_EQ(h.tableRows(), (Rows{{"1", "Quartz"}}));
}

TEST(Reset, MakesEveryCriterionUnavailableButKeepsTheResultsAndTheColour) {
    WindowHarness h({.rows = reference});
    MainWindow& w = h.window;
    w.usb_device_reading.setText("1.544");
    h.click(w.btn_enter);
    h.click(w.check_color);
    h.pick(w.btn_color, "Blue");
    h.click(w.btn_reset);
    expectUnavailable(w);
    EXPECT_EQ(w.view_color.backgroundColor(), Rgba::gray(0, 0));
    EXPECT_FALSE(anyCriterionOn(h.state()));
    EXPECT_EQ(h.state().selectedColor, "Blue");
    EXPECT_EQ(h.tableRows().size(), 2u);
    EXPECT_EQ(w.lbl_stonesCount.text(), "2");
    h.click(w.btn_reset);
    expectUnavailable(w);
}

TEST(ClearAll, InTheReadingTabEmptiesTheResults) {
    WindowHarness h({.rows = reference});
    MainWindow& w = h.window;
    w.usb_device_reading.setText("1.544");
    h.click(w.btn_enter);
    h.click(w.btn_clearAll);
    expectUnavailable(w); // the reading tab's own reset, after Clear all's
    EXPECT_EQ(w.tableView.numberOfRows(), 0);
    EXPECT_EQ(w.lbl_stonesCount.text(), "0");
    EXPECT_FALSE(anyCriterionOn(h.state()));
}

TEST(ClearAll, InTheDictionaryRepeatsTheSearchAndLeavesTheBoxesAvailable) {
    WindowHarness h({.rows = reference});
    MainWindow& w = h.window;
    h.click(w.bvtn_dictionary);
    h.click(w.check_Name);
    h.type(w.txt_left_name, "quartz");
    h.click(w.btn_search);
    ASSERT_EQ(h.tableRows().size(), 1u);
    h.click(w.btn_clearAll);
    EXPECT_EQ(h.tableRows().size(), 3u);
    EXPECT_EQ(w.txt_left_name.text(), "");
    EXPECT_FALSE(w.txt_left_name.isEnabled());
    for (const Button* box :
         {&w.check_RI, &w.check_sg, &w.check_hardness, &w.check_color, &w.check_Name}) {
        EXPECT_TRUE(box->isEnabled());
        EXPECT_EQ(box->state(), ButtonState::Off);
    }
}

} // namespace
} // namespace velmora::test
