#include "tests/support/reference_rows.h"
#include "tests/support/window_harness.h"

#include <gtest/gtest.h>

namespace velmora::test {
namespace {

// What shows beside the results tabs: the Stone caption, its pop-up and the stone's detail.
std::string shownBeside(const MainWindow& w) {
    std::string shown;
    shown += w.lbl_stonesListCaption.isHidden() ? "-" : "caption ";
    shown += w.btn_stonesList.isHidden() ? "-" : "pop-up ";
    shown += w.view_detailPanel.isHidden() ? "-" : "detail";
    return shown;
}

TEST(ResultsTabs, TheStonePopUpShowsOnlyBesideTheListedStonesAndTheDetailNotBesideRecords) {
    constexpr int listed = ViewController::stonesListedPage;
    constexpr int best = ViewController::bestMatchesPage;
    constexpr int records = ViewController::recordsPage;
    const struct {
        const char* name;
        std::vector<int> pages; // picked in turn
        bool byUser;
        std::string shown;
    } cases[] = {
        {"at start", {}, true, "caption pop-up detail"},
        {"best matches", {best}, true, "--detail"},
        {"records", {records}, true, "---"},
        {"records, then best matches", {records, best}, true, "--detail"},
        {"back to the listed stones", {best, records, listed}, true, "caption pop-up detail"},
        {"chosen by the window", {best}, false, "--detail"},
        {"records, back by the window", {records, listed}, false, "caption pop-up detail"},
    };
    for (const auto& c : cases) {
        WindowHarness h({.rows = std::vector{stoneRow("1", "Almandine"), stoneRow("2", "Ruby")}});
        for (const int page : c.pages) {
            if (c.byUser) {
                h.window.resultsTabs.userSelected(page);
            } else {
                h.window.resultsTabs.selectTabViewItemAtIndex(page);
            }
            h.runQueued();
        }
        EXPECT_EQ(shownBeside(h.window), c.shown) << c.name;
    }
}

TEST(ResultsTabs, TheHiddenPopUpFollowsTheListAndShowsItOnReturn) {
    WindowHarness h({.rows = std::vector{stoneRow("1", "Almandine", "1.78-1.83"),
                                         stoneRow("2", "Ruby", "1.762-1.770")}});
    MainWindow& w = h.window;
    h.click(w.bvtn_dictionary);
    w.resultsTabs.userSelected(ViewController::bestMatchesPage);
    h.click(w.check_RI);
    h.type(w.txt_leftRIReading, "1.765");
    h.click(w.btn_search);
    w.resultsTabs.userSelected(ViewController::stonesListedPage);
    EXPECT_EQ(w.btn_stonesList.itemTitles(), std::vector<std::string>{"Ruby"});
    EXPECT_EQ(w.btn_stonesList.titleOfSelectedItem(), "Ruby");
    EXPECT_EQ(w.lbl_stonesCount.text(), "1");
    EXPECT_EQ(shownBeside(w), "caption pop-up detail");
}

} // namespace
} // namespace velmora::test
