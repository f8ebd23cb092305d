#pragma once

// The application as the user meets it: the main window with its controller, the File menu, and
// the delegate's say on quitting. Closing the main window quits through the same decision on
// Linux and Windows; on macOS the application stays, as it does there.

#include "app/app_delegate.h"
#include "app/qt/dialog_records_dialogs.h"
#include "app/qt/module_report_output.h"
#include "ui/main_window.h"
#include "ui/qt/main_window_widget.h"
#include "ui/view_controller.h"

namespace velmora::qt {

class ApplicationShell {
public:
    // Loads the window (its set-up's queued work runs on the environment's run loop); show it
    // with window(). The delegate must outlive the shell.
    ApplicationShell(ViewControllerEnvironment environment, AppDelegate& delegate);

    MainWindowWidget& window() { return window_; }

    // The user asks to quit. True when the application is quitting.
    bool requestQuit();
    ViewController& controller() { return controller_; }

private:
    bool windowMayClose();

    MainWindow elements_;
    MainWindowWidget window_;
    ViewController controller_;
    AppDelegate& delegate_;
    DialogRecordsDialogs recordsDialogs_;
    ModuleReportOutput report_;
};

} // namespace velmora::qt
