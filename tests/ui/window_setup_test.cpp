#include "tests/support/reference_rows.h"
#include "tests/support/window_harness.h"
#include "ui/system_colors.h"

#include <gtest/gtest.h>

namespace velmora::test {
namespace {

const std::vector<std::string> rows = {
    stoneRow("2", "Zircon", "1.92-1.98"),
    stoneRow("1", "Quartz", "1.544-1.553"),
    stoneRow("3", "Beryl", "1.57-1.60"),
};

TEST(Construction, StartsEmptyWithTheLocalesSeparator) {
    WindowHarness h({.rows = rows, .decimalSeparator = ",", .loadView = false});
    const auto& s = h.state();
    EXPECT_TRUE(s.arr_stones.empty() && s.arr_stonesGlobal.empty());
    EXPECT_TRUE(s.arr_string.empty() && s.arr_color.empty() && s.selectedColor.empty());
    EXPECT_EQ(s.mode, 0);
    EXPECT_EQ(s.selectedTab, 0);
    EXPECT_FALSE(s.isRIState || s.isSGState || s.isHardnessState || s.isNameState ||
                 s.isColorState || s.isUSBStatus);
    EXPECT_EQ(s.decimalSeparator, ",");
    EXPECT_EQ(WindowHarness({.decimalSeparator = "", .loadView = false}).state().decimalSeparator,
              ".");
}

TEST(Setup, StylesTheWindowWithItsExactColoursWidthsAndTitles) {
    WindowHarness h({.rows = rows});
    const MainWindow& w = h.window;
    EXPECT_EQ(w.title(), "Velmora v2.0.1-M-23");
    EXPECT_TRUE(w.view.wantsLayer());
    EXPECT_EQ(w.view.backgroundColor(), systemColors::white);
    EXPECT_EQ(w.box.backgroundColor(),
              Rgba::rgb(0.07058823529411765, 0.10588235294117647, 0.19607843137254902));
    EXPECT_EQ(w.view_leftPanel.backgroundColor(), Rgba::gray(0.9254901960784314));
    EXPECT_EQ(w.border_RiReading.backgroundColor(), systemColors::white);
    EXPECT_EQ(w.border_dictionary.backgroundColor(), systemColors::white);
    EXPECT_EQ(w.view_reading.backgroundColor(), systemColors::white);
    EXPECT_EQ(w.view_deviceStatus.cornerRadius(), 5.0);
    for (const Button* outlined : {&w.btn_disconnected, &w.btn_clearAll, &w.btn_reset}) {
        EXPECT_EQ(outlined->borderWidth(), 1.0);
        EXPECT_EQ(outlined->borderColor(), systemColors::systemRed);
    }
    for (const TextField* detail :
         {&w.txt_stroneFamily, &w.txt_sg, &w.txt_RI, &w.txt_hardness, &w.txt_bierfence}) {
        EXPECT_FALSE(detail->isEditable());
    }
    EXPECT_FALSE(w.btn_color.isEnabled());
    const std::pair<const Button*, const char*> titles[] = {{&w.check_RI, "R.I."},
                                                            {&w.check_sg, "S.G."},
                                                            {&w.check_hardness, "Hardness"},
                                                            {&w.check_color, "Color"},
                                                            {&w.check_Name, "Name"}};
    for (const auto& [box, title] : titles) {
        EXPECT_EQ(box->attributedTitle(),
                  (AttributedTitle{title, TextAlignment::Left, systemColors::systemGray}));
    }
}

TEST(Setup, EndsInTheReadingTabWithTheReferenceSetLoadedButNotListed) {
    WindowHarness h({.rows = rows});
    const MainWindow& w = h.window;
    EXPECT_EQ(h.state().mode, 0);
    EXPECT_FALSE(w.border_RiReading.isHidden());
    EXPECT_TRUE(w.border_dictionary.isHidden());
    EXPECT_TRUE(w.check_Name_Container.isHidden());
    EXPECT_EQ(w.reading_container_heightConstraint.constant(), 109.0);
    EXPECT_FALSE(w.btn_search.isEnabled());
    EXPECT_TRUE(w.btn_enter.isEnabled() && w.btn_clearAll.isEnabled());
    EXPECT_EQ(w.btn_stonesList.numberOfItems(), 0);
    EXPECT_EQ(w.lbl_stonesCount.text(), "0");
    EXPECT_EQ(w.tableView.numberOfRows(), 0);
    ASSERT_EQ(h.state().arr_stonesGlobal.size(), 3u);
    EXPECT_EQ(h.state().arr_stonesGlobal.front().StoneName, "Beryl");
    EXPECT_EQ(h.state().arr_stones, h.state().arr_stonesGlobal);
    EXPECT_EQ(h.standardOutput.str(), "");
}

TEST(Setup, AMissingOrUnreadableReferenceFileIsToldOnStandardOutputAndTheWindowGoesOn) {
    WindowHarness missing({.rows = std::nullopt});
    EXPECT_NE(missing.standardOutput.str().find("AllStoneNew.csv"), std::string::npos);
    EXPECT_TRUE(missing.state().arr_stonesGlobal.empty());
    missing.click(missing.window.bvtn_dictionary);
    EXPECT_EQ(missing.alertPresenter.alerts().at(0).message, "Result");
    EXPECT_EQ(missing.alerts(), std::vector<std::string>{"Not Found in Record"});
    // No row 0 to show: the detail stays empty.
    EXPECT_EQ(missing.window.txt_RI.text(), "");
    EXPECT_EQ(missing.window.tableView.selectedRow(), TableView::noSelection);
}

TEST(Setup, ThePanelsDisconnectedStateLandsAfterTheRestOfTheSetup) {
    WindowHarness h({.rows = rows, .loadView = false});
    h.controller.viewDidLoad();
    EXPECT_EQ(h.window.lbl_deviceStatus.text(), "");
    EXPECT_FALSE(h.window.view_deviceStatus.backgroundColor());
    h.runQueued();
    EXPECT_EQ(h.window.lbl_deviceStatus.text(), "Disconnected");
}

TEST(Tabs, TheDictionaryListsEverythingAndMakesEveryCriterionAvailableOnceItsQueueRuns) {
    WindowHarness h({.rows = rows});
    MainWindow& w = h.window;
    w.bvtn_dictionary.performClick();
    // The boxes are still as the reset left them until the queued step runs.
    EXPECT_FALSE(w.check_sg.isEnabled());
    h.runQueued();
    for (const Button* box :
         {&w.check_RI, &w.check_sg, &w.check_hardness, &w.check_color, &w.check_Name}) {
        EXPECT_TRUE(box->isEnabled());
        EXPECT_EQ(box->state(), ButtonState::Off);
    }
    EXPECT_EQ(h.state().mode, 1);
    EXPECT_EQ(h.state().selectedTab, 1);
    EXPECT_TRUE(w.border_RiReading.isHidden());
    EXPECT_FALSE(w.border_dictionary.isHidden());
    EXPECT_FALSE(w.check_Name_Container.isHidden());
    EXPECT_EQ(w.reading_container_heightConstraint.constant(), 0.0);
    EXPECT_TRUE(w.btn_search.isEnabled() && w.btn_clearAll.isEnabled());
    EXPECT_EQ(h.tableRows(), (std::vector<std::pair<std::string, std::string>>{
                                 {"3", "Beryl"}, {"1", "Quartz"}, {"2", "Zircon"}}));
    EXPECT_EQ(w.tableView.selectedRow(), 0);
    EXPECT_EQ(w.btn_stonesList.indexOfSelectedItem(), 0);
    EXPECT_EQ(w.txt_RI.text(), "1.57-1.60");
    EXPECT_TRUE(h.alerts().empty());
}

TEST(Tabs, BackToReadingEmptiesTheResultsAndTheSameTabRunsItsWholeSequenceAgain) {
    WindowHarness h({.rows = rows});
    MainWindow& w = h.window;
    h.click(w.bvtn_dictionary);
    h.click(w.check_Name);
    h.type(w.txt_left_name, "qu");
    h.click(w.bvtn_dictionary);
    EXPECT_EQ(w.check_Name.state(), ButtonState::Off);
    EXPECT_EQ(w.txt_left_name.text(), "");
    h.click(w.btn_RIReading);
    EXPECT_EQ(w.tableView.numberOfRows(), 0);
    EXPECT_EQ(w.btn_stonesList.numberOfItems(), 0);
    EXPECT_EQ(w.lbl_stonesCount.text(), "0");
    EXPECT_EQ(w.txt_RI.text(), "");
    EXPECT_TRUE(h.state().arr_stones.empty());
    EXPECT_EQ(w.reading_container_heightConstraint.constant(), 109.0);
    EXPECT_FALSE(w.check_sg.isEnabled());
}

TEST(Tabs, OtherTagsOpenAScreenAndChangeNothing) {
    WindowHarness h({.rows = rows});
    h.click(h.window.bvtn_dictionary);
    h.click(h.window.check_sg);
    h.click(h.window.btn_tutorial);
    h.click(h.window.btn_contactUs);
    h.controller.selectTab(4);
    h.controller.selectTab(-1);
    EXPECT_EQ(h.screens.presented,
              (std::vector<std::string>{"tutorial", "contact", "contact", "contact"}));
    EXPECT_EQ(h.state().mode, 1);
    EXPECT_TRUE(h.state().isSGState);
}

} // namespace
} // namespace velmora::test
