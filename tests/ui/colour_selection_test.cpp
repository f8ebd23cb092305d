#include "tests/support/window_harness.h"

#include <gtest/gtest.h>

namespace velmora::test {
namespace {

struct ColourHarness : WindowHarness {
    ColourHarness() {
        click(window.bvtn_dictionary);
        alertPresenter.alerts.clear(); // the empty table's "Not Found in Record"
        click(window.check_color);
    }
};

TEST(Colours, PickingEndsTheEditingOfAnEntryFirst) {
    ColourHarness h;
    MainWindow& w = h.window;
    h.click(w.check_sg);
    h.type(w.txt_leftSG, "");
    std::string choiceDuringAlert;
    h.alertPresenter.whileShown = [&] {
        choiceDuringAlert = h.state().selectedColor;
    };
    h.pick(w.btn_color, "Red");
    EXPECT_EQ(h.alerts(), std::vector<std::string>{"Please insert number only!"});
    EXPECT_EQ(choiceDuringAlert, "Green");
    EXPECT_EQ(h.state().selectedColor, "Red");
    EXPECT_EQ(w.firstResponder(), nullptr);
}

} // namespace
} // namespace velmora::test
