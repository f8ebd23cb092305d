#pragma once

// The main window and its controller over fakes: a reference file written for the test, a
// manual run loop, recorded alerts and screens. It loads the window as the application does
// (viewDidLoad, then the queued work) and drives it by gestures; after each gesture the work the
// gesture queued has run, as it would before the user's next event.

#include "device/hid_device_connector.h"
#include "tests/support/manual_run_loop.h"
#include "tests/support/recording_alert_presenter.h"
#include "tests/support/recording_instrument_link.h"
#include "tests/support/recording_log.h"
#include "tests/support/recording_screens.h"
#include "tests/support/settable_locale.h"
#include "tests/support/temp_dir.h"
#include "ui/main_window.h"
#include "ui/view_controller.h"

#include <memory>
#include <optional>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace velmora::test {

struct WindowSetup {
    // Reference rows after the header (see reference_rows.h); nothing: no reference file at all.
    std::optional<std::vector<std::string>> rows = std::vector<std::string>{};
    std::string decimalSeparator = ".";
    // False: the controller is made but its view not loaded.
    bool loadView = true;
    // Where the instrument is: nothing, a link that only counts Connect and Disconnect; else a
    // real session over these HID managers (a fake, or the simulated instrument).
    std::optional<HIDDeviceConnector::ManagerFactory> instrumentManagers = std::nullopt;
};

class WindowHarness {
public:
    explicit WindowHarness(WindowSetup setup = {});

    // Gestures
    void type(TextField& entry, std::string_view text); // focus the entry, type one by one
                                                        // (nothing if it cannot take focus)
    void deleteBackward();                              // in the focused entry
    void leave();                                       // take the focus from the entry
    void click(Button& button);                         // push buttons and check boxes alike
    void pick(PopUpButton& popUp, std::string_view title);
    void clickRow(int row);
    void runQueued() { runLoop.runPending(); }

    const ViewControllerState& state() const { return controller.state(); }
    std::vector<std::string> alerts() const { return alertPresenter.informativeTexts(); }
    // What the table shows: the number and the name of each row.
    std::vector<std::pair<std::string, std::string>> tableRows();
    std::vector<std::string> popUpTitles() const { return window.btn_stonesList.itemTitles(); }

    TempDir dir;
    ManualRunLoop runLoop;
    NotificationCenter notificationCenter;
    RecordingAlertPresenter alertPresenter;
    SettableLocale locale;
    std::ostringstream standardOutput;
    RecordingScreens screens;
    RecordingInstrumentLink instrument;
    RecordingLog log;
    std::unique_ptr<HIDDeviceConnector> connector; // with WindowSetup::instrumentManagers
    MainWindow window;
    ViewController controller;
};

} // namespace velmora::test
