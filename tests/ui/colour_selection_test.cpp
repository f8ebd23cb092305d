#include "tests/support/window_harness.h"
#include "ui/system_colors.h"

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

TEST(Colours, SwitchingOnFillsTheTwelveAndChoosesGreenEveryTime) {
    ColourHarness h;
    MainWindow& w = h.window;
    for (int round = 0; round < 2; ++round) {
        EXPECT_TRUE(w.btn_color.isEnabled());
        EXPECT_EQ(w.btn_color.numberOfItems(), 12);
        EXPECT_EQ(w.btn_color.itemTitles().front(), "Green");
        EXPECT_EQ(w.btn_color.itemTitles().back(), "Grey");
        EXPECT_EQ(w.btn_color.titleOfSelectedItem(), "Green");
        EXPECT_EQ(h.state().selectedColor, "Green");
        EXPECT_EQ(w.view_color.backgroundColor(), systemColors::systemGreen);
        h.pick(w.btn_color, "Blue");
        h.click(w.check_color); // off
        EXPECT_FALSE(w.btn_color.isEnabled());
        EXPECT_EQ(w.btn_color.numberOfItems(), 0);
        EXPECT_EQ(w.view_color.backgroundColor(), systemColors::clear);
        EXPECT_EQ(h.state().selectedColor, "Blue");
        EXPECT_FALSE(h.state().isColorState);
        h.click(w.check_color);
    }
}

TEST(Colours, PickingSetsTheSwatchAndTheChoice) {
    ColourHarness h;
    MainWindow& w = h.window;
    w.btn_color.pickItem(3);
    EXPECT_EQ(h.state().selectedColor, "Yellow");
    EXPECT_EQ(w.view_color.backgroundColor(), Rgba::rgb(1, 1, 0));
    h.pick(w.btn_color, "Colorless");
    EXPECT_EQ(h.state().selectedColor, "Colorless");
    EXPECT_EQ(w.view_color.backgroundColor()->alpha, 0.0);
    // A title outside the catalogue leaves no colour at all and no choice.
    PopUpButton stranger;
    stranger.addItem("Mauve");
    h.controller.btn_onChangeColor_tap(stranger);
    EXPECT_EQ(w.view_color.backgroundColor(), std::nullopt);
    EXPECT_EQ(h.state().selectedColor, "");
}

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
