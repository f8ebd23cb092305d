#include "tests/support/reference_rows.h"
#include "tests/support/window_harness.h"

#include <gtest/gtest.h>

namespace velmora::test {
namespace {

using Rows = std::vector<std::pair<std::string, std::string>>;

const std::vector<std::string> rows = {
    stoneRow("2", "Zircon", "1.92-1.98"),
    stoneRow("1", "Quartz", "1.544-1.553"),
    stoneRow("3", "Beryl", "1.57-1.60"),
};

// The tab, which border shows, and what is listed and shown.
auto tab(const WindowHarness& h) {
    const MainWindow& w = h.window;
    return std::tuple(h.state().mode, w.border_RiReading.isHidden(), w.border_dictionary.isHidden(),
                      w.lbl_stonesCount.text(), w.tableView.numberOfRows(), w.txt_RI.text());
}
void expectReadingTab(const WindowHarness& h) {
    EXPECT_EQ(tab(h), std::tuple(0, false, true, std::string("0"), 0, std::string()));
    EXPECT_FALSE(h.window.btn_search.isEnabled() || h.window.check_sg.isEnabled());
}

TEST(Setup, EndsInTheReadingTabWithTheSetLoadedButNotListed) {
    WindowHarness h({.rows = rows});
    EXPECT_EQ(h.window.lbl_deviceStatus.text(), "Disconnected");
    expectReadingTab(h);
    ASSERT_EQ(h.state().arr_stonesGlobal.size(), 3u);
    EXPECT_EQ(h.state().arr_stonesGlobal.front().StoneName, "Beryl");
    EXPECT_EQ(h.standardOutput.str(), "");
}

TEST(Setup, AMissingReferenceFileIsToldInAnAlertAndTheWindowGoesOn) {
    WindowHarness missing({.rows = std::nullopt});
    missing.click(missing.window.bvtn_dictionary);
    const auto& alerts = missing.alertPresenter.alerts;
    ASSERT_EQ(alerts.size(), 2u);
    EXPECT_NE(alerts[0].message.find("AllStoneNew.csv"), std::string::npos);
    EXPECT_EQ(alerts[1].message, "Result");
    EXPECT_EQ(missing.alerts(),
              (std::vector<std::string>{"Every search will find nothing.", "Not Found in Record"}));
    // No row 0 to show: the detail stays empty.
    EXPECT_EQ(missing.window.txt_RI.text(), "");
    EXPECT_EQ(missing.window.tableView.selectedRow(), TableView::noSelection);
}

// A reference file that is no table is told once the window is up, and the window goes on with an
// empty set. Which files are refused is the file reader's concern.
TEST(Setup, AReferenceFileThatCannotBeReadIsToldInAnAlert) {
    TempDir dir;
    const auto file = dir.write("semicolons.csv", referenceText({"1;Ruby;4.00", "2;Beryl;2.70"}));
    WindowHarness h({.referenceFile = file});
    ASSERT_EQ(h.alertPresenter.alerts.size(), 1u);
    const auto& alert = h.alertPresenter.alerts[0];
    EXPECT_NE(alert.message.find("holds no stone"), std::string::npos) << alert.message;
    EXPECT_NE(alert.message.find("semicolons.csv"), std::string::npos) << alert.message;
    EXPECT_EQ(alert.style, AlertStyle::Warning);
    EXPECT_TRUE(h.state().arr_stonesGlobal.empty());
    expectReadingTab(h);
}

TEST(Tabs, TheDictionaryListsEverythingAndMakesEveryCriterionAvailable) {
    WindowHarness h({.rows = rows});
    MainWindow& w = h.window;
    h.click(w.bvtn_dictionary);
    for (const Button* box :
         {&w.check_RI, &w.check_sg, &w.check_hardness, &w.check_color, &w.check_Name}) {
        EXPECT_TRUE(box->isEnabled() && box->state() == ButtonState::Off);
    }
    EXPECT_EQ(tab(h), std::tuple(1, true, false, std::string("3"), 3, std::string("1.57-1.60")));
    EXPECT_EQ(h.tableRows(), (Rows{{"3", "Beryl"}, {"1", "Quartz"}, {"2", "Zircon"}}));
    EXPECT_EQ(w.tableView.selectedRow(), 0);
    EXPECT_TRUE(h.alerts().empty());
}

TEST(Tabs, BackToReadingEmptiesTheResults) {
    WindowHarness h({.rows = rows});
    h.click(h.window.bvtn_dictionary);
    h.click(h.window.btn_RIReading);
    expectReadingTab(h);
    EXPECT_TRUE(h.state().arr_stones.empty());
}

} // namespace
} // namespace velmora::test
