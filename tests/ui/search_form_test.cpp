#include "tests/support/reference_rows.h"
#include "tests/support/window_harness.h"

#include <gtest/gtest.h>

namespace velmora::test {
namespace {

using namespace std::string_literals;
using Rows = std::vector<std::pair<std::string, std::string>>;
using Texts = std::vector<std::string>;

const std::vector<std::string> reference = {
    stoneRow("1", "Quartz", "1.544 - 1.553", "2.65-2.66", "7", "Pink"),
    stoneRow("2", "Amethyst", "1.544-1.553", "2.6-2.7", "7", "Purple"),
    stoneRow("3", "Beryl", "1.57-1.60", "2.6-2.9", "7.5-8", "Green"),
};

// The dictionary tab, worked by hand.
struct Dictionary : WindowHarness {
    Dictionary() : WindowHarness({.rows = reference}) { click(window.bvtn_dictionary); }
    void enter(Button& box, TextField& entry, const std::string& text) {
        click(box);
        type(entry, text);
        leave();
    }
};

// Every box off and unavailable; every entry empty and disabled; no colours.
void expectCleared(const MainWindow& w) {
    for (const Button* box :
         {&w.check_RI, &w.check_sg, &w.check_hardness, &w.check_color, &w.check_Name}) {
        EXPECT_TRUE(!box->isEnabled() && box->state() == ButtonState::Off);
    }
    for (const TextField* entry :
         {&w.txt_leftRIReading, &w.txt_leftSG, &w.txt_leftHardness, &w.txt_left_name}) {
        EXPECT_TRUE(!entry->isEnabled() && entry->text().empty()) << entry->text();
    }
    EXPECT_TRUE(!w.btn_color.isEnabled() && w.btn_color.numberOfItems() == 0);
}

// The order of the checks is the search's own; the window empties the entry it names.
TEST(Search, AnInvalidNumberEmptiesOnlyItsEntryAndLeavesTheListAsItWas) {
    Dictionary h;
    h.enter(h.window.check_RI, h.window.txt_leftRIReading, "1.6");
    h.enter(h.window.check_sg, h.window.txt_leftSG, ".");
    h.click(h.window.btn_search);
    EXPECT_EQ(h.alerts(), Texts{"Please insert number only!"});
    EXPECT_EQ(h.window.txt_leftSG.text() + "|" + h.window.txt_leftRIReading.text(), "|1.6");
    EXPECT_EQ(h.window.lbl_stonesCount.text(), std::to_string(reference.size()));
}

TEST(Search, NothingFoundShowsTheEmptyListBeforeTheAlert) {
    Dictionary h;
    h.enter(h.window.check_hardness, h.window.txt_leftHardness, "10");
    std::string countDuringAlert;
    h.alertPresenter.whileShown = [&] {
        countDuringAlert = h.window.lbl_stonesCount.text();
    };
    h.click(h.window.btn_search);
    EXPECT_EQ(countDuringAlert, "0");
    EXPECT_EQ(h.alertPresenter.texts(&RecordedAlert::message), Texts{"Result"});
    EXPECT_EQ(h.alerts(), Texts{"Not Found in Record"});
    EXPECT_EQ(std::pair(h.window.tableView.numberOfRows(), h.window.txt_RI.text()),
              std::pair(0, ""s));
}

TEST(Enter, TakesTheLiveReadingLocksRiOnAndSearchesWithTheOtherCriteria) {
    WindowHarness h({.rows = reference, .decimalSeparator = ","});
    MainWindow& w = h.window;
    w.usb_device_reading.setText("1,550");
    h.click(w.btn_enter);
    EXPECT_EQ(w.txt_leftRIReading.text(), "1,550");
    EXPECT_TRUE(w.check_RI.state() == ButtonState::On && !w.check_RI.isEnabled());
    EXPECT_EQ(h.tableRows(), (Rows{{"2", "Amethyst"}, {"1", "Quartz"}}));
    EXPECT_TRUE(h.alerts().empty());
}

TEST(ResetAndClearAll, ResetKeepsTheResultsAndTheColourWhereClearAllEmptiesThem) {
    WindowHarness h({.rows = reference});
    MainWindow& w = h.window;
    w.usb_device_reading.setText("1.544");
    h.click(w.btn_enter);
    h.click(w.check_color);
    h.pick(w.btn_color, "Blue");
    h.click(w.btn_reset);
    expectCleared(w);
    EXPECT_EQ(h.state().selectedColor, "Blue");
    EXPECT_EQ(std::pair(h.tableRows().size(), w.lbl_stonesCount.text()), std::pair(2ul, "2"s));
    h.click(w.btn_clearAll);
    expectCleared(w);
    EXPECT_EQ(std::pair(w.tableView.numberOfRows(), w.lbl_stonesCount.text()), std::pair(0, "0"s));
}

} // namespace
} // namespace velmora::test
