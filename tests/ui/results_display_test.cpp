#include "tests/support/reference_rows.h"
#include "tests/support/window_harness.h"

#include <gtest/gtest.h>

namespace velmora::test {
namespace {

using Rows = std::vector<std::pair<std::string, std::string>>;

// A stone with every detail cell set.
std::string detailedRow(const std::string& name, const std::string& family) {
    return row({{0, "1"},
                {1, name},
                {5, "2.65 - 2.66"},
                {6, "1.54 - 1.56"},
                {9, "7^8"},
                {14, "0.009"},
                {15, family},
                {19, "a^b.c"},
                {20, "second^"},
                {21, "third.3"}});
}

// The dictionary tab of a window over these rows, its whole table listed.
struct Listed : WindowHarness {
    explicit Listed(std::vector<std::string> rows, std::string separator = ".")
        : WindowHarness({.rows = std::move(rows), .decimalSeparator = std::move(separator)}) {
        click(window.bvtn_dictionary);
    }
};

TEST(StoneDetail, NumbersTakeTheUsersSeparatorAndCommaMarksBecomeCommas) {
    Listed comma({detailedRow("Quartz", "Quartz^ Chalcedony")}, ",");
    const MainWindow& w = comma.window;
    EXPECT_EQ(w.txt_RI.text(), "1,54 - 1,56");
    EXPECT_EQ(w.txt_sg.text(), "2,65 - 2,66");
    EXPECT_EQ(w.txt_hardness.text(), "7,8");
    EXPECT_EQ(w.txt_bierfence.text(), "0,009");
    EXPECT_EQ(w.txt_stroneFamily.text(), "Quartz, Chalcedony");
    // The descriptive texts keep their points.
    EXPECT_EQ(w.txt_commonSource.text(), "a,b.c");
    EXPECT_EQ(w.txt_otherInformation.text(), "second,");
    EXPECT_EQ(w.txt_otherProduct.text(), "third.3");

    Listed point({detailedRow("Quartz", "")});
    EXPECT_EQ(point.window.txt_RI.text(), "1.54 - 1.56");
    EXPECT_EQ(point.window.txt_hardness.text(), "7,8");
    EXPECT_EQ(point.window.txt_stroneFamily.text(), "-");
    EXPECT_EQ(Listed({detailedRow("Quartz", "^")}).window.txt_stroneFamily.text(), ",");
}

TEST(NumberCell, ShowsTheStoneIdAsAWholeNumberOrElseTheRowNumber) {
    // Names in load order, so row i holds the i-th id below.
    const std::vector<std::string> ids = {"12",
                                          "7.9",
                                          "-2.5",
                                          " 3",
                                          "3a",
                                          "1e2",
                                          "inf",
                                          "nan",
                                          "1e19",
                                          "",
                                          "+4",
                                          "0x10",
                                          "-0.9",
                                          "3\t",
                                          "-9223372036854775808",
                                          "9223372036854775807"};
    std::vector<std::string> rows;
    for (std::size_t i = 0; i < ids.size(); ++i) {
        rows.push_back(stoneRow(ids[i], "Stone " + std::string(1, static_cast<char>('a' + i))));
    }
    Listed h(rows);
    std::vector<std::string> shown;
    for (const auto& [number, name] : h.tableRows()) {
        shown.push_back(number);
    }
    // 2^63 - 1 reads as the double 2^63, one past the last 64-bit integer.
    EXPECT_EQ(shown,
              (std::vector<std::string>{"12", "7", "-2", "4", "5", "100", "7", "8", "9", "10", "4",
                                        "16", "0", "14", "-9223372036854775808", "16"}));
}

TEST(Results, TheCountPopUpAndTableFollowTheList) {
    Listed h({stoneRow("1", "Beryl", "1.57-1.60"), stoneRow("2", "Quartz", "1.544-1.553")});
    MainWindow& w = h.window;
    EXPECT_EQ(w.lbl_stonesCount.text(), "2");
    EXPECT_EQ(h.state().arr_string, (std::vector<std::string>{"Beryl", "Quartz"}));
    EXPECT_EQ(h.popUpTitles(), h.state().arr_string);
    h.click(w.check_RI);
    h.type(w.txt_leftRIReading, "1.55");
    h.click(w.btn_search);
    EXPECT_EQ(w.lbl_stonesCount.text(), "1");
    EXPECT_EQ(h.popUpTitles(), std::vector<std::string>{"Quartz"});
    EXPECT_EQ(h.tableRows(), (Rows{{"2", "Quartz"}}));
    EXPECT_EQ(w.tableView.heightOfRow(0), 21.0);
}

TEST(Results, TableAndPopUpPickEachOtherAndARepeatedNameLeadsToItsFirstStone) {
    Listed h({row({{0, "1"}, {1, "A"}}), row({{0, "2"}, {1, "B"}}), row({{0, "3"}, {1, "C"}}),
              row({{0, "4"}, {1, "C"}, {6, "second C"}}), row({{0, "5"}, {1, "D"}})});
    MainWindow& w = h.window;
    EXPECT_EQ(h.popUpTitles(), (std::vector<std::string>{"A", "B", "C", "D"}));
    h.clickRow(1);
    EXPECT_EQ(w.btn_stonesList.titleOfSelectedItem(), "B");
    // The second C shows its own record, but the pop-up can only point at "C".
    h.clickRow(3);
    EXPECT_EQ(w.tableView.selectedRow(), 3);
    EXPECT_EQ(w.txt_RI.text(), "second C");
    EXPECT_EQ(w.btn_stonesList.titleOfSelectedItem(), "C");
    // After the repeat, item and row numbers part; the pop-up stays on the clicked stone's name.
    h.clickRow(4);
    EXPECT_EQ(w.btn_stonesList.indexOfSelectedItem(), 3);
    EXPECT_EQ(w.btn_stonesList.titleOfSelectedItem(), "D");
    // Picking "C" in the pop-up goes to its first stone.
    h.pick(w.btn_stonesList, "C");
    EXPECT_EQ(w.tableView.selectedRow(), 2);
    EXPECT_EQ(w.txt_RI.text(), "");
    EXPECT_EQ(w.lbl_stonesCount.text(), "5");
}

TEST(Results, APopUpTitleThatNoListedStoneBearsChangesNothing) {
    Listed h({stoneRow("1", "Beryl", "1.57-1.60")});
    PopUpButton stranger;
    stranger.addItem("Zircon");
    h.controller.btn_stoneListChange(stranger);
    EXPECT_EQ(h.window.tableView.selectedRow(), 0);
    EXPECT_EQ(h.window.txt_RI.text(), "1.57-1.60");
}

TEST(Results, ARowPastTheEndOfTheListHasNoCellAndShowsNothing) {
    Listed h({stoneRow("1", "Beryl", "1.57-1.60"), stoneRow("2", "Quartz", "1.544-1.553")});
    TableView& table = h.window.tableView;
    EXPECT_EQ(h.controller.tableViewViewFor(table, &table.columns()[0], 2), nullptr);
    EXPECT_EQ(h.controller.tableViewViewFor(table, nullptr, -1), nullptr);
    EXPECT_FALSE(h.controller.tableViewShouldSelectRow(table, 2));
    EXPECT_EQ(h.window.txt_RI.text(), "1.57-1.60");
    // A column other than the number column, or none, shows the name as stored.
    const auto cell =
        std::dynamic_pointer_cast<TableCellView>(h.controller.tableViewViewFor(table, nullptr, 1));
    ASSERT_TRUE(cell && cell->textField());
    EXPECT_EQ(cell->textField()->text(), "Quartz");
}

} // namespace
} // namespace velmora::test
