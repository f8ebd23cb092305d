#include "tests/ui/qt/shell_fixture.h"

#include <QTabWidget>

namespace velmora::test {
namespace {

using CaptureWindow = ShellTest;

// Space reaches the capture whichever button last took the keyboard, and never an entry's text;
// the dictionary hides the capture panel.
TEST_F(CaptureWindow, SpaceCapturesUnlessAnEntryHasTheKeyboardAndIdentifyShowsBestMatches) {
    open();
    click("btn_connected");
    runLoop.advance(15 * HIDDeviceConnector::updateInterval);
    settle();
    EXPECT_EQ(text("lbl_steadyState"), "Steady");
    widget("btn_RIReading")->setFocus(Qt::TabFocusReason);
    pressKey(Qt::Key_Space);
    EXPECT_EQ(text("lbl_captureNote").left(9), "Captured ");
    const QString captured = text("lbl_seriesValues");
    EXPECT_FALSE(captured.isEmpty());

    click("btn_enter");
    click("check_sg");
    type("txt_leftSG", "2");
    pressKey(Qt::Key_Space);
    EXPECT_EQ(text("lbl_seriesValues"), captured);

    click("btn_identifySeries");
    EXPECT_EQ(widget<QTabWidget>("resultsTabs")->currentWidget(), widget("tab_bestMatches"));

    click("bvtn_dictionary");
    EXPECT_FALSE(widget("view_capture")->isVisible());
}

} // namespace
} // namespace velmora::test
