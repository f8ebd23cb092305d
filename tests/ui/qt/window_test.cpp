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

const char* const criteria[] = {"check_RI", "check_sg", "check_hardness", "check_color",
                                "check_Name"};

TEST_F(Window, LaunchesInTheReadingTabSetUp) {
    open();
    EXPECT_EQ(window().windowTitle(), "Velmora v2.0.1-M-23");
    EXPECT_EQ(colourAt("box"), QColor(18, 27, 50));
    EXPECT_EQ(colourAt("view_leftPanel"), QColor(236, 236, 236));
    EXPECT_TRUE(widget("border_RiReading")->isVisible());
    EXPECT_FALSE(widget("border_dictionary")->isVisible());
    EXPECT_EQ(colourAt("border_RiReading"), Qt::white);
    EXPECT_FALSE(widget("check_Name_Container")->isVisible());
    EXPECT_TRUE(widget("view_reading")->isVisible());
    EXPECT_EQ(widget("view_reading")->height(), 109);
    for (const char* box : criteria) {
        EXPECT_FALSE(widget<QCheckBox>(box)->isEnabled()) << box;
        EXPECT_FALSE(widget<QCheckBox>(box)->isChecked()) << box;
    }
    EXPECT_FALSE(widget("btn_search")->isEnabled());
    EXPECT_TRUE(widget("btn_enter")->isEnabled());
    EXPECT_TRUE(widget("btn_clearAll")->isEnabled());
    EXPECT_EQ(colourAt("view_deviceStatus"), red);
    EXPECT_EQ(text("lbl_deviceStatus"), "Disconnected");
    EXPECT_EQ(text("usb_device_reading"), "1.000");
    EXPECT_TRUE(widget("btn_connected")->isEnabled());
    EXPECT_FALSE(widget("btn_disconnected")->isEnabled());
    EXPECT_EQ(text("lbl_stonesCount"), "0");
    EXPECT_THAT(listedStones(), IsEmpty());
    EXPECT_EQ(widget<QComboBox>("btn_stonesList")->count(), 0);
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
    EXPECT_EQ(text("lbl_stonesCount"), "5");
    EXPECT_TRUE(widget("border_dictionary")->isVisible());
    EXPECT_FALSE(widget("border_RiReading")->isVisible());
    EXPECT_TRUE(widget("check_Name_Container")->isVisible());
    EXPECT_FALSE(widget("view_reading")->isVisible());
    for (const char* box : criteria) {
        EXPECT_TRUE(widget<QCheckBox>(box)->isEnabled()) << box;
    }

    click("btn_RIReading");
    EXPECT_THAT(listedStones(), IsEmpty());
    EXPECT_EQ(text("txt_RI"), "");
    EXPECT_EQ(widget("view_reading")->height(), 109);
}

TEST_F(Window, ASearchTypedAndClickedListsWhatFits) {
    open();
    click("bvtn_dictionary");
    click("check_hardness");
    type("txt_leftHardness", "9");
    click("btn_search");

    EXPECT_THAT(listedStones(), ElementsAre("Ruby"));
    EXPECT_EQ(text("txt_sg"), "3.97-4.05");
    EXPECT_THAT(alerts.alerts, IsEmpty());

    // Switching the criterion off empties its entry, which then takes no typing.
    click("check_hardness");
    EXPECT_EQ(text("txt_leftHardness"), "");
    type("txt_leftHardness", "7");
    EXPECT_EQ(text("txt_leftHardness"), "");
}

TEST_F(Window, TheTableAndThePopUpFollowEachOther) {
    open();
    click("bvtn_dictionary");
    clickRow(3);
    EXPECT_EQ(selectedRow(), 3);
    EXPECT_EQ(text("btn_stonesList"), "Ruby");
    EXPECT_EQ(text("txt_hardness"), "9-9");

    pick("btn_stonesList", "Iolite");
    EXPECT_EQ(selectedRow(), 1);
    EXPECT_EQ(text("txt_RI"), "1.522-1.578");
}

TEST_F(Window, AnInvalidEntryIsReportedAndEmptied) {
    open();
    click("bvtn_dictionary");
    click("check_sg");
    type("txt_leftSG", "2.6x");
    EXPECT_THAT(informativeTexts(), ElementsAre("Please insert number only!"));
    EXPECT_EQ(alerts.alerts[0].message, "");
    EXPECT_EQ(alerts.alerts[0].buttons, std::vector<std::string>{"OK"});
    EXPECT_EQ(text("txt_leftSG"), "");

    type("txt_leftSG", "2,");
    EXPECT_EQ(informativeTexts().back(), "Please use '.' as decimals!");
    EXPECT_EQ(text("txt_leftSG"), "");
    type("txt_leftSG", "65"); // typing goes on after the alert
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
    EXPECT_THAT(informativeTexts(), ElementsAre("Please insert number only!"));
    pressKey(Qt::Key_Tab);
    EXPECT_THAT(informativeTexts(), ElementsAre("Please insert number only!"));
    EXPECT_EQ(text("txt_leftHardness"), "7");

    type("txt_leftSG", "2.7.");
    pressKey(Qt::Key_Return); // a second separator is a search's concern, not the entry's
    EXPECT_THAT(informativeTexts(), ElementsAre("Please insert number only!"));
}

TEST_F(Window, ConnectLightsTheLampAndTheReadingsFollowTheInstrument) {
    open();
    click("btn_connected");
    EXPECT_EQ(colourAt("view_deviceStatus"), green);
    EXPECT_EQ(text("lbl_deviceStatus"), "Connected");
    EXPECT_FALSE(widget("btn_connected")->isEnabled());
    EXPECT_TRUE(widget("btn_disconnected")->isEnabled());

    runLoop.advance(HIDDeviceConnector::updateInterval);
    EXPECT_EQ(text("usb_device_reading"), "1.544");
    runLoop.advance(HIDDeviceConnector::updateInterval);
    EXPECT_EQ(text("usb_device_reading"), "1.545");

    click("btn_disconnected");
    EXPECT_EQ(colourAt("view_deviceStatus"), red);
    EXPECT_EQ(text("lbl_deviceStatus"), "Disconnected");
    EXPECT_EQ(text("usb_device_reading"), "1.000");
    EXPECT_TRUE(widget("btn_connected")->isEnabled());
}

TEST_F(Window, EnterListsTheStonesForTheReadingAndOtherCriteriaNarrowThem) {
    open();
    click("btn_connected");
    runLoop.advance(HIDDeviceConnector::updateInterval);
    click("btn_enter");
    EXPECT_THAT(listedStones(), ElementsAre("Citrine", "Iolite", "Rock crystal", "Scapolite"));
    EXPECT_EQ(text("txt_leftRIReading"), "1.544");
    EXPECT_TRUE(widget<QCheckBox>("check_RI")->isChecked());
    EXPECT_FALSE(widget("check_RI")->isEnabled());
    EXPECT_EQ(selectedRow(), 0);
    EXPECT_EQ(text("txt_stroneFamily"), "-");
    EXPECT_THAT(alerts.alerts, IsEmpty()); // the copied reading is not checked as typing

    click("check_sg");
    type("txt_leftSG", "2.70");
    click("btn_search");
    EXPECT_THAT(listedStones(), ElementsAre("Scapolite"));
}

TEST_F(Window, PickingAColourShowsItsSwatch) {
    open();
    click("bvtn_dictionary");
    click("check_color");
    auto* colours = widget<QComboBox>("btn_color");
    EXPECT_EQ(colours->count(), 12);
    EXPECT_EQ(colours->currentText(), "Green");
    EXPECT_EQ(colourAt("view_color"), green);
    pick("btn_color", "Yellow");
    EXPECT_EQ(colourAt("view_color"), QColor(255, 255, 0));
    click("btn_search");
    EXPECT_THAT(listedStones(), ElementsAre("Citrine"));

    click("check_color");
    EXPECT_EQ(colours->count(), 0);
    EXPECT_FALSE(colours->isEnabled());
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
    elements.capture_container_heightConstraint.setConstant(40);
#define VELMORA_CHECK_ELEMENT(Type, name, ...) expectHiddenWith(elements.name, #name);
#define VELMORA_CHECK_CONSTRAINT(name, view) expectHiddenAtZero(elements.name, #view);
    VELMORA_MAIN_WINDOW_ELEMENTS(VELMORA_CHECK_ELEMENT, VELMORA_CHECK_CONSTRAINT)
#undef VELMORA_CHECK_ELEMENT
#undef VELMORA_CHECK_CONSTRAINT
}

} // namespace
} // namespace velmora::test
