#include "tests/support/reference_rows.h"
#include "tests/support/window_harness.h"

#include <gtest/gtest.h>

namespace velmora::test {
namespace {

using Texts = std::vector<std::string>;
using Rows = std::vector<std::pair<std::string, std::string>>;

// The dictionary tab of a window over these rows, its whole table listed.
struct Listed : WindowHarness {
    explicit Listed(std::vector<std::string> rows, std::string separator = ".")
        : WindowHarness({.rows = std::move(rows), .decimalSeparator = std::move(separator)}) {
        click(window.bvtn_dictionary);
    }
};

TEST(StoneDetail, NumbersTakeTheUsersSeparatorAndCommaMarksBecomeCommas) {
    const auto detailed = [](const std::string& family) {
        std::map<int, std::string> cells{{1, "Quartz"}, {5, "2.65 - 2.66"}, {6, "1.54 - 1.56"}};
        cells.insert({{9, "7^8"}, {14, "0.009"}, {15, family}, {19, "a^b.c"}});
        cells.insert({{20, "second^"}, {21, "third.3"}});
        return row(cells);
    };
    const auto shown = [](const MainWindow& w) {
        std::string texts;
        for (const std::string& text :
             {w.txt_RI.text(), w.txt_sg.text(), w.txt_hardness.text(), w.txt_bierfence.text(),
              w.txt_stroneFamily.text(), w.txt_commonSource.text(), w.txt_otherInformation.text(),
              w.txt_otherProduct.text()}) {
            texts += text + "|";
        }
        return texts;
    };
    // The descriptive texts keep their points.
    EXPECT_EQ(shown(Listed({detailed("Quartz^ Chalcedony")}, ",").window),
              "1,54 - 1,56|2,65 - 2,66|7,8|0,009|Quartz, Chalcedony|a,b.c|second,|third.3|");
    EXPECT_EQ(shown(Listed({detailed("")}).window),
              "1.54 - 1.56|2.65 - 2.66|7,8|0.009|-|a,b.c|second,|third.3|");
    EXPECT_EQ(Listed({detailed("^")}).window.txt_stroneFamily.text(), ",");
}

TEST(NumberCell, ShowsTheStoneIdAsAWholeNumberOrElseTheRowNumber) {
    // Names in load order, so row i holds the i-th id below. 2^63 - 1 reads as the double 2^63,
    // one past the last 64-bit integer.
    std::vector<std::string> rows;
    for (const char* id : {"12", "7.9", "-2.5", " 3", "3a", "1e2", "nan", "-9223372036854775808",
                           "9223372036854775807"}) {
        rows.push_back(
            stoneRow(id, "Stone " + std::string(1, static_cast<char>('a' + rows.size()))));
    }
    std::string shown;
    for (const auto& [number, name] : Listed(rows).tableRows()) {
        shown += number + " ";
    }
    EXPECT_EQ(shown, "12 7 -2 4 5 100 7 -9223372036854775808 9 ");
}

TEST(Results, TheCountPopUpAndTableFollowTheList) {
    Listed h({stoneRow("1", "Beryl", "1.57-1.60"), stoneRow("2", "Quartz", "1.544-1.553")});
    MainWindow& w = h.window;
    EXPECT_EQ(w.lbl_stonesCount.text(), "2");
    EXPECT_EQ(h.window.btn_stonesList.itemTitles(), (Texts{"Beryl", "Quartz"}));
    h.click(w.check_RI);
    h.type(w.txt_leftRIReading, "1.55");
    h.click(w.btn_search);
    EXPECT_EQ(w.lbl_stonesCount.text(), "1");
    EXPECT_EQ(h.window.btn_stonesList.itemTitles(), Texts{"Quartz"});
    EXPECT_EQ(h.tableRows(), (Rows{{"2", "Quartz"}}));
    // Neither a row past the end of the list nor a title no listed stone bears shows anything.
    EXPECT_FALSE(h.controller.tableViewShouldSelectRow(w.tableView, 1));
    EXPECT_EQ(h.controller.tableViewViewFor(w.tableView, &w.tableView.columns()[0], 1), nullptr);
    EXPECT_EQ(h.controller.tableViewViewFor(w.tableView, nullptr, -1), nullptr);
    PopUpButton stranger;
    stranger.addItem("Beryl");
    h.controller.btn_stoneListChange(stranger);
    EXPECT_EQ(w.txt_RI.text(), "1.544-1.553");
}

TEST(Results, TableAndPopUpPickEachOtherAndARepeatedNameLeadsToItsFirstStone) {
    Listed h({row({{0, "1"}, {1, "A"}}), row({{0, "2"}, {1, "B"}}), row({{0, "3"}, {1, "C"}}),
              row({{0, "4"}, {1, "C"}, {6, "second C"}}), row({{0, "5"}, {1, "D"}})});
    MainWindow& w = h.window;
    EXPECT_EQ(h.window.btn_stonesList.itemTitles(), (Texts{"A", "B", "C", "D"}));
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

} // namespace
} // namespace velmora::test
