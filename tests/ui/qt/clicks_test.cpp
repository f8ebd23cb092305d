#include "tests/ui/qt/shell_fixture.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QTest>
#include <gmock/gmock.h>

namespace velmora::test {
namespace {

using ::testing::ElementsAre;
using Clicks = ShellTest;

// The click does what it does without the check of the entry it takes the focus from.
TEST_F(Clicks, FromAnEmptyFocusedEntryASearchRunsABoxTogglesAndATabChangeChecksNothing) {
    open();
    click("bvtn_dictionary");
    click("check_sg");
    type("txt_leftSG", "");
    ASSERT_EQ(QApplication::focusWidget(), widget("txt_leftSG"));
    click("btn_search");
    EXPECT_THAT(alerts.texts(), ElementsAre("Please enter S.G. value!"));
    EXPECT_EQ(QApplication::focusWidget(), widget("txt_leftSG"));
    click("check_hardness");
    EXPECT_TRUE(widget<QCheckBox>("check_hardness")->isChecked() &&
                widget("txt_leftHardness")->isEnabled());
    click("check_hardness");
    EXPECT_FALSE(widget<QCheckBox>("check_hardness")->isChecked());
    click("btn_RIReading"); // empties and locks the entry that holds the keyboard
    click("bvtn_dictionary");
    EXPECT_EQ(alerts.alerts.size(), 1u);
}

TEST_F(Clicks, ButtonsCheckBoxesAndPopUpsStillTakeTheKeyboardByTab) {
    open();
    for (const char* name : {"btn_search", "btn_enter", "btn_reset", "check_sg",
                             "check_overTheLimit", "btn_color", "btn_stonesList"}) {
        EXPECT_EQ(widget(name)->focusPolicy(), Qt::TabFocus) << name;
    }
    click("bvtn_dictionary");
    click("check_sg");
    type("txt_leftSG", "2.65");
    pressKey(Qt::Key_Tab);
    EXPECT_NE(QApplication::focusWidget(), widget("txt_leftSG"));
}

} // namespace
} // namespace velmora::test
