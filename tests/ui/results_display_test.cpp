#include "tests/support/reference_rows.h"
#include "tests/support/window_harness.h"

#include <gtest/gtest.h>

namespace velmora::test {
namespace {

using Texts = std::vector<std::string>;

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
}

TEST(Results, TableAndPopUpPickEachOtherAndARepeatedNameLeadsToItsFirstStone) {
    Listed h({row({{0, "1"}, {1, "A"}}), row({{0, "2"}, {1, "C"}}),
              row({{0, "3"}, {1, "C"}, {6, "second C"}})});
    MainWindow& w = h.window;
    EXPECT_EQ(w.btn_stonesList.itemTitles(), (Texts{"A", "C"}));
    h.clickRow(2);
    EXPECT_EQ(w.txt_RI.text(), "second C"); // its own record, though the pop-up can only say "C"
    EXPECT_EQ(w.btn_stonesList.titleOfSelectedItem(), "C");
    h.pick(w.btn_stonesList, "C");
    EXPECT_EQ(w.tableView.selectedRow(), 1);
    EXPECT_EQ(w.txt_RI.text(), "");
}

} // namespace
} // namespace velmora::test
