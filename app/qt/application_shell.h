#pragma once

// The application as the user meets it: the main window with its controller, the modal screens,
// the File menu, and the delegate that decides whether a quit goes ahead. Closing the main window
// quits through the same decision on Linux and Windows; on macOS the application stays, as it
// does there.

#include "app/app_delegate.h"
#include "app/qt/dialog_screen_presenter.h"
#include "app/workspace.h"
#include "foundation/bundle.h"
#include "ui/main_window.h"
#include "ui/qt/main_window_widget.h"
#include "ui/view_controller.h"

#include <filesystem>
#include <optional>
#include <ostream>

namespace velmora::qt {

struct ShellServices {
    RunLoop& runLoop;
    NotificationCenter& notificationCenter;
    AlertPresenter& alertPresenter;
    const Locale& locale;
    std::optional<std::filesystem::path> referenceFile;
    std::ostream& standardOutput;
    HIDDeviceConnector& hidDeviceConnector;
    Workspace& workspace;
    AppDelegate::ContainerFactory makeContainer;
    const LocalizedStrings& localizedStrings;
    Log& log;
    // Where the tutorial is.
    const Bundle& bundle;
};

class ApplicationShell {
public:
    // Loads the window (its set-up's queued work runs on the run loop); show it with window().
    explicit ApplicationShell(ShellServices services);

    MainWindowWidget& window() { return window_; }
    const MainWindow& elements() const { return elements_; }

    // The user asks to quit. True when the application is quitting.
    bool requestQuit();

private:
    bool windowMayClose();

    MainWindow elements_;
    MainWindowWidget window_;
    DialogScreenPresenter screens_;
    ViewController controller_;
    AppDelegate delegate_;
};

} // namespace velmora::qt
