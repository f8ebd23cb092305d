#include "tests/ui/qt/shell_fixture.h"
#include "ui/main_window.h"
#include "ui/qt/main_window_widget.h"

#include <QCheckBox>
#include <QTabWidget>
#include <QTest>
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

// Each listed element is bound to the widget of its name in the interface file: hiding the element
// hides that widget, and the height constraint shows and hides the view it constrains.
TEST(WindowElements, EachIsShownByTheWidgetOfItsName) {
    MainWindow elements;
    qt::MainWindowWidget window(elements);
    // The Best matches and Records tabs make their widgets when first shown.
    auto* tabs = window.findChild<QTabWidget*>("resultsTabs");
    for (const char* page : {"tab_bestMatches", "tab_records"}) {
        tabs->setCurrentWidget(window.findChild<QWidget*>(page));
    }
    const auto widgetNamed = [&](const char* name) {
        auto* widget = window.findChild<QWidget*>(name);
        EXPECT_NE(widget, nullptr) << name;
        return widget;
    };
    const auto expectHiddenWith = [&](View& element, const char* name) {
        if (QWidget* widget = widgetNamed(name)) {
            EXPECT_FALSE(widget->isHidden()) << name;
            element.setHidden(true);
            EXPECT_TRUE(widget->isHidden()) << name;
            element.setHidden(false);
            EXPECT_FALSE(widget->isHidden()) << name;
        }
    };
    const auto expectHiddenAtZero = [&](LayoutConstraint& height, const char* view) {
        if (QWidget* widget = widgetNamed(view)) {
            height.setConstant(0);
            EXPECT_TRUE(widget->isHidden()) << view;
            height.setConstant(40);
            EXPECT_FALSE(widget->isHidden()) << view;
            EXPECT_EQ(widget->maximumHeight(), 40) << view;
        }
    };
    elements.reading_container_heightConstraint.setConstant(40);
    elements.capture_container_heightConstraint.setConstant(40);
#define VELMORA_CHECK_ELEMENT(Type, name, ...) expectHiddenWith(elements.name, #name);
#define VELMORA_CHECK_CONSTRAINT(name, view) expectHiddenAtZero(elements.name, #view);
    VELMORA_MAIN_WINDOW_ELEMENTS(VELMORA_CHECK_ELEMENT, VELMORA_CHECK_CONSTRAINT)
#undef VELMORA_CHECK_ELEMENT
#undef VELMORA_CHECK_CONSTRAINT
}

} // namespace
} // namespace velmora::test
