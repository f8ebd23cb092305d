#include "tests/ui/qt/shell_fixture.h"
#include "ui/main_window.h"
#include "ui/qt/main_window_widget.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QTableView>
#include <QTest>
#include <gmock/gmock.h>

namespace velmora::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using Window = ShellTest;

// The logic's state is checked over fakes; these check what only the widgets show: the painted
// colours, the table model, real clicks and keys.
TEST_F(Window, LaunchesInTheReadingTabPaintedAsDesigned) {
    open();
    EXPECT_EQ(window().windowTitle(), "Velmora v2.0.1-M-23");
    EXPECT_EQ(colourAt("box"), QColor(18, 27, 50));
    EXPECT_EQ(colourAt("view_leftPanel"), QColor(236, 236, 236));
    EXPECT_EQ(colourAt("border_RiReading"), Qt::white);
    EXPECT_FALSE(widget("border_dictionary")->isVisible());
    EXPECT_EQ(widget("view_reading")->height(), 109);
    EXPECT_FALSE(widget<QCheckBox>("check_sg")->isEnabled());
    EXPECT_EQ(colourAt("view_deviceStatus"), red);
    EXPECT_EQ(text("usb_device_reading"), "1.000");
    EXPECT_TRUE(widget<QLineEdit>("txt_RI")->isReadOnly());
}

TEST_F(Window, TheDictionaryTabListsTheWholeTableAndShowsTheFirstStone) {
    open();
    click("bvtn_dictionary");
    EXPECT_THAT(listedStones(),
                ElementsAre("Citrine", "Iolite", "Rock crystal", "Ruby", "Scapolite"));
    const QAbstractItemModel* model = widget<QTableView>("tableView")->model();
    EXPECT_EQ(model->index(1, 0).data(), "185");
    EXPECT_EQ(model->index(0, 0).data(Qt::SizeHintRole).toSize().height(), 21);
    EXPECT_EQ(selectedRow(), 0);
    EXPECT_EQ(text("btn_stonesList"), "Citrine");
    EXPECT_EQ(text("txt_RI"), "1.544-1.553");
    EXPECT_FALSE(widget("view_reading")->isVisible());

    click("btn_RIReading");
    EXPECT_THAT(listedStones(), IsEmpty());
    EXPECT_EQ(widget("view_reading")->height(), 109);
}

TEST_F(Window, ASearchTypedAndClickedListsWhatFitsAndALockedEntryTakesNoTyping) {
    open();
    click("bvtn_dictionary");
    click("check_hardness");
    type("txt_leftHardness", "9");
    click("btn_search");
    EXPECT_THAT(listedStones(), ElementsAre("Ruby"));
    EXPECT_EQ(text("txt_sg"), "3.97-4.05");
    EXPECT_THAT(alerts.alerts, IsEmpty());

    click("check_hardness");
    type("txt_leftHardness", "7");
    EXPECT_EQ(text("txt_leftHardness"), "");
}

TEST_F(Window, TheTableAndThePopUpFollowEachOther) {
    open();
    click("bvtn_dictionary");
    clickRow(3);
    EXPECT_EQ(text("btn_stonesList"), "Ruby");
    EXPECT_EQ(text("txt_hardness"), "9-9");
    pick("btn_stonesList", "Iolite");
    EXPECT_EQ(selectedRow(), 1);
    EXPECT_EQ(text("txt_RI"), "1.522-1.578");
}

TEST_F(Window, AnEntryEmptiedByItsAlertTakesTheTypingThatFollows) {
    open();
    click("bvtn_dictionary");
    click("check_sg");
    type("txt_leftSG", "2,");
    EXPECT_THAT(alertTexts(), ElementsAre("Please use '.' as decimals!"));
    type("txt_leftSG", "65");
    EXPECT_EQ(text("txt_leftSG"), "65");
}

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
    EXPECT_THAT(alertTexts(), ElementsAre("Please insert number only!"));
    pressKey(Qt::Key_Tab);
    EXPECT_EQ(text("txt_leftHardness"), "7");
    type("txt_leftSG", "2.7.");
    pressKey(Qt::Key_Return); // a second separator is a search's concern, not the entry's
    EXPECT_THAT(alertTexts(), ElementsAre("Please insert number only!"));
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

TEST_F(Window, PickingAColourPaintsItsSwatch) {
    open();
    click("bvtn_dictionary");
    click("check_color");
    EXPECT_EQ(colourAt("view_color"), green);
    pick("btn_color", "Yellow");
    EXPECT_EQ(colourAt("view_color"), QColor(255, 255, 0));
    click("btn_search");
    EXPECT_THAT(listedStones(), ElementsAre("Citrine"));
    click("check_color");
    EXPECT_EQ(widget<QComboBox>("btn_color")->count(), 0);
}

// Each listed element is bound to the widget of its name in the interface file: hiding the element
// hides that widget, and the height constraint shows and hides the view it constrains.
TEST(WindowElements, EachIsShownByTheWidgetOfItsName) {
    MainWindow elements;
    qt::MainWindowWidget window(elements);
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
#define VELMORA_CHECK_ELEMENT(Type, name, ...) expectHiddenWith(elements.name, #name);
#define VELMORA_CHECK_CONSTRAINT(name, view) expectHiddenAtZero(elements.name, #view);
    VELMORA_MAIN_WINDOW_ELEMENTS(VELMORA_CHECK_ELEMENT, VELMORA_CHECK_CONSTRAINT)
#undef VELMORA_CHECK_ELEMENT
#undef VELMORA_CHECK_CONSTRAINT
}

} // namespace
} // namespace velmora::test
