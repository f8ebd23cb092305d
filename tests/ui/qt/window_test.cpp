#include "tests/ui/qt/shell_fixture.h"

#include <QCheckBox>
#include <gmock/gmock.h>

namespace velmora::test {
namespace {

using ::testing::ElementsAre, ::testing::IsEmpty;
using Window = ShellTest;

TEST_F(Window, LeavingAnEntryOrPressingReturnEndsItsEditingWithTheCheck) {
    open();
    click("bvtn_dictionary");
    click("check_sg");
    click("check_hardness");
    type("txt_leftSG", "2.7");
    pressKey(Qt::Key_Return);
    for (int i = 0; i < 3; ++i) {
        pressKey(Qt::Key_Backspace);
    }
    EXPECT_THAT(alerts.alerts, IsEmpty()); // emptied by typing, and still being edited

    type("txt_leftHardness", "7"); // the click into it leaves the empty S.G. entry
    EXPECT_THAT(alerts.texts(), ElementsAre("Please insert number only!"));
    pressKey(Qt::Key_Tab);
    EXPECT_EQ(text("txt_leftHardness"), "7");
    type("txt_leftSG", "2.7.");
    pressKey(Qt::Key_Return); // a second separator is a search's concern, not the entry's
    EXPECT_THAT(alerts.texts(), ElementsAre("Please insert number only!"));
}

TEST_F(Window, ConnectLightsTheLampAndEnterListsTheStonesForTheReading) {
    open();
    click("btn_connected");
    EXPECT_EQ(colourAt("view_deviceStatus"), green);
    EXPECT_FALSE(widget("btn_connected")->isEnabled());
    runLoop.advance(HIDDeviceConnector::updateInterval);
    EXPECT_EQ(text("usb_device_reading"), "1.544");

    click("btn_enter");
    EXPECT_THAT(listedStones(), ElementsAre("Citrine", "Iolite", "Rock crystal", "Scapolite"));
    EXPECT_TRUE(widget<QCheckBox>("check_RI")->isChecked());
    EXPECT_THAT(alerts.alerts, IsEmpty()); // the copied reading is not checked as typing

    runLoop.advance(HIDDeviceConnector::updateInterval);
    EXPECT_EQ(text("usb_device_reading"), "1.545");
    click("btn_disconnected");
    EXPECT_EQ(colourAt("view_deviceStatus"), red);
    EXPECT_EQ(text("usb_device_reading"), "1.000");
}

} // namespace
} // namespace velmora::test
