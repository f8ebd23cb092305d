#include "tests/support/window_harness.h"

#include <gtest/gtest.h>

namespace velmora::test {
namespace {

using Texts = std::vector<std::string>;

// A window in the dictionary tab with every criterion that has an entry switched on.
struct Entries : WindowHarness {
    explicit Entries(std::string separator = ".")
        : WindowHarness({.decimalSeparator = std::move(separator)}) {
        click(window.bvtn_dictionary);
        alertPresenter.alerts.clear(); // the empty table's "Not Found in Record"
        for (Button* box :
             {&window.check_RI, &window.check_sg, &window.check_hardness, &window.check_Name}) {
            click(*box);
        }
    }
};

struct TypingCase {
    std::string separator;
    TextField MainWindow::*entry;
    std::string typed;
    Texts alerts;
    std::string left;
};

TEST(EntryChecks, EachTypedCharacterIsCheckedAndAForeignOneEmptiesTheEntry) {
    const std::string numberOnly = "Please insert number only!";
    // Which texts are refused is the entry checks' own; these are the window's part: the alert,
    // the emptied entry, and the name entry left alone.
    const TypingCase cases[] = {
        {".", &MainWindow::txt_leftRIReading, "1.544", {}, "1.544"},
        // What comes after the rejected character goes into the emptied entry.
        {".", &MainWindow::txt_leftSG, "1,5", {"Please use '.' as decimals!"}, "5"},
        {",", &MainWindow::txt_leftHardness, "1.5", {"Please use ',' as decimals!"}, "5"},
        {".", &MainWindow::txt_leftSG, "2x", {numberOnly}, ""},
        {".", &MainWindow::txt_left_name, "Star ruby, 1.5", {}, "Star ruby, 1.5"},
    };
    for (const auto& c : cases) {
        Entries h(c.separator);
        h.type(h.window.*c.entry, c.typed);
        EXPECT_EQ(h.alerts(), c.alerts) << c.typed;
        EXPECT_EQ((h.window.*c.entry).text(), c.left) << c.typed;
        for (const auto& a : h.alertPresenter.alerts) {
            EXPECT_EQ(std::tie(a.message, a.style, a.buttons),
                      std::tuple("", AlertStyle::Warning, Texts{"OK"}));
        }
    }
}

} // namespace
} // namespace velmora::test
