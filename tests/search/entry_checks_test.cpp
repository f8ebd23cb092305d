#include "tests/support/window_harness.h"

#include <gtest/gtest.h>

namespace velmora::test {
namespace {

using Texts = std::vector<std::string>;

// A window in the dictionary tab with every numeric criterion switched on.
struct Entries : WindowHarness {
    explicit Entries(std::string separator = ".")
        : WindowHarness({.decimalSeparator = std::move(separator)}) {
        click(window.bvtn_dictionary);
        alertPresenter.clear(); // the empty table's "Not Found in Record"
        for (Button* box :
             {&window.check_RI, &window.check_sg, &window.check_hardness, &window.check_Name}) {
            click(*box);
        }
    }
};

TEST(PerChangeCheck, AForeignSeparatorEmptiesTheEntryWhereItIsTyped) {
    Entries point;
    point.type(point.window.txt_leftRIReading, "1.544");
    EXPECT_TRUE(point.alerts().empty());
    point.type(point.window.txt_leftSG, "1,5");
    EXPECT_EQ(point.alerts(), Texts{"Please use '.' as decimals!"});
    EXPECT_EQ(point.alertPresenter.alerts()[0].message, "");
    EXPECT_EQ(point.alertPresenter.alerts()[0].style, AlertStyle::Warning);
    EXPECT_EQ(point.alertPresenter.alerts()[0].buttons, Texts{"OK"});
    // The character after the rejected one goes into the emptied entry.
    EXPECT_EQ(point.window.txt_leftSG.text(), "5");

    Entries comma(",");
    comma.type(comma.window.txt_leftHardness, "1.5");
    EXPECT_EQ(comma.alerts(), Texts{"Please use ',' as decimals!"});
    comma.type(comma.window.txt_leftRIReading, "1,5");
    EXPECT_EQ(comma.alerts().size(), 1u);
    EXPECT_EQ(comma.window.txt_leftRIReading.text(), "1,5");
}

TEST(PerChangeCheck, AnyOtherCharacterEmptiesTheEntry) {
    for (const char* typed : {"-", " ", "x", "e"}) {
        Entries h;
        h.type(h.window.txt_leftSG, std::string("2") + typed);
        EXPECT_EQ(h.alerts(), Texts{"Please insert number only!"}) << typed;
        EXPECT_EQ(h.window.txt_leftSG.text(), "") << typed;
    }
}

TEST(PerChangeCheck, TwoSeparatorsAndAnEmptiedEntryPassButLeavingItEmptyDoesNot) {
    Entries h;
    h.type(h.window.txt_leftSG, "1.2.3");
    h.leave();
    EXPECT_TRUE(h.alerts().empty());
    h.type(h.window.txt_leftHardness, "7");
    h.deleteBackward();
    EXPECT_TRUE(h.alerts().empty());
    h.leave();
    EXPECT_EQ(h.alerts(), Texts{"Please insert number only!"});
    EXPECT_EQ(h.window.firstResponder(), nullptr);
}

TEST(PerChangeCheck, TheNameEntryAndTextSetByTheProgramAreNeverChecked) {
    Entries h;
    h.type(h.window.txt_left_name, "Star ruby, 1.5");
    h.leave();
    h.window.txt_leftSG.setText("x,y");
    EXPECT_TRUE(h.alerts().empty());
    EXPECT_EQ(h.window.txt_left_name.text(), "Star ruby, 1.5");
}

TEST(PerChangeCheck, AControlThatIsNoNumericEntryIsReportedAsUnsupported) {
    Entries h;
    h.controller.controlTextDidChange(&h.window.txt_left_name);
    h.controller.controlTextDidChange(nullptr);
    EXPECT_EQ(h.standardOutput.str(), "unsupported\n");
    EXPECT_TRUE(h.alerts().empty());
}

TEST(EndOfEditingCheck, ATextWithAForeignCharacterIsEmptiedAndEditingEnds) {
    Entries h;
    // Set by the program while it is edited, so only the end-of-editing check sees it.
    h.type(h.window.txt_leftSG, "2");
    h.window.txt_leftSG.setText("2,6");
    h.leave();
    EXPECT_EQ(h.alerts(), Texts{"Please insert number only!"});
    EXPECT_EQ(h.window.txt_leftSG.text(), "");
    EXPECT_EQ(h.window.firstResponder(), nullptr);
}

TEST(EndOfEditingCheck, KeepsTheSeparatorTheWindowStartedWithWhileTypingFollowsTheLocale) {
    Entries h;
    h.locale.setDecimalSeparator(",");
    h.type(h.window.txt_leftSG, "2,6");
    EXPECT_TRUE(h.alerts().empty());
    h.leave();
    EXPECT_EQ(h.alerts(), Texts{"Please insert number only!"});
    h.type(h.window.txt_leftRIReading, "1.5");
    EXPECT_EQ(h.alerts().back(), "Please use '.' as decimals!");
}

} // namespace
} // namespace velmora::test
