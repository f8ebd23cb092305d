#pragma once

// The application's window and screens on real widgets, over fakes: a reference file written for
// the test, a manual run loop, the simulated instrument replaying 1.544 then 1.545, scripted
// alerts, a recorded desktop and an in-memory container. Gestures are real mouse clicks and key
// presses on the widgets; after each, the work it queued has run.

#include "app/qt/application_shell.h"
#include "app/qt/dialog_screen_presenter.h"
#include "tests/support/manual_run_loop.h"
#include "tests/support/memory_store.h"
#include "tests/support/recording_alert_presenter.h"
#include "tests/support/recording_log.h"
#include "tests/support/recording_workspace.h"
#include "tests/support/temp_dir.h"

#include <QAbstractItemModelTester>
#include <QColor>
#include <QStringList>
#include <QWidget>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <sstream>

namespace velmora::test {

struct ShellSetup {
    MemoryStoreSetup store = {};
    bool withTutorial = false;
};

class ShellTest : public ::testing::Test {
protected:
    ShellTest();
    ~ShellTest() override;

    // Starts the application and shows its window, active.
    void open(const ShellSetup& setup = {});

    qt::MainWindowWidget& window() { return shell_->window(); }
    AppDelegate& delegate() { return *delegate_; }
    template <class Widget = QWidget> Widget* widget(const char* name) {
        auto* found = window().findChild<Widget*>(name);
        EXPECT_NE(found, nullptr) << name;
        return found;
    }

    // Gestures
    void click(const char* name);                      // a button or a check box
    void type(const char* entry, const QString& text); // click into it, then type
    void pressKey(Qt::Key key);                        // on the widget that has the keyboard
    void settle();
    // Opens a modal screen with its navigation button, lets look at it while it is up, closes it.
    void whileScreenOpen(const char* button, const std::function<void(QWidget&)>& look);

    // What the user sees
    QColor colourAt(const char* name); // the middle of the widget, as painted
    QStringList listedStones();        // the table's name column, top to bottom
    QString text(const char* name);    // a label's, an entry's or a pop-up's

    static const QColor red;
    static const QColor green;

    TempDir dir;
    ManualRunLoop runLoop;
    NotificationCenter center;
    RecordingLog log;
    HIDDeviceConnector instrument;
    RecordingAlertPresenter alerts;
    FixedLocale locale;
    std::ostringstream standardOutput;
    RecordingWorkspace workspace;
    Bundle bundle;
    qt::DialogScreenPresenter screens;
    int containersMade = 0;

private:
    std::unique_ptr<AppDelegate> delegate_;
    std::unique_ptr<qt::ApplicationShell> shell_;
    std::unique_ptr<QAbstractItemModelTester> tableModelTester_;
};

} // namespace velmora::test
