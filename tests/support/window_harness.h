#pragma once

// The main window and its controller over fakes: a reference file written for the test, a
// manual run loop, recorded alerts and screens. It loads the window as the application does
// (viewDidLoad, then the queued work) and drives it by gestures; after each gesture the work the
// gesture queued has run, as it would before the user's next event.

#include "device/hid_device_connector.h"
#include "tests/support/manual_run_loop.h"
#include "tests/support/recording_alert_presenter.h"
#include "tests/support/recording_log.h"
#include "tests/support/reference_rows.h"
#include "tests/support/temp_dir.h"
#include "ui/main_window.h"
#include "ui/screen_presenter.h"
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
    // A reference file of the test's own, read instead of one written from rows.
    std::optional<std::filesystem::path> referenceFile = std::nullopt;
    std::string decimalSeparator = ".";
    // False: the controller is made but its view not loaded.
    bool loadView = true;
    // Where the instrument is: nothing, none at all; else a real session over these HID managers
    // (a fake, or the simulated instrument).
    std::optional<HIDDeviceConnector::ManagerFactory> instrumentManagers = std::nullopt;
};

// What a column of the table shows, top to bottom; for a cell of several lines, its first.
inline std::vector<std::string> columnTexts(TableView& table, int column) {
    std::vector<std::string> texts;
    for (int row = 0; row < table.numberOfRows(); ++row) {
        const std::string text = cellText(table, column, row).value_or("?");
        texts.push_back(text.substr(0, text.find('\n')));
    }
    return texts;
}

// The screens and the instrument where the window's tests do not look: they open and connect
// nothing.
struct NoScreensNoInstrument final : ScreenPresenter, InstrumentLink {
    void presentTutorialScreen() override {}
    void presentContactScreen() override {}
    void connectDataToDevice() override {}
    void disconnectDataToDevice() override {}
};

class WindowHarness {
public:
    explicit WindowHarness(WindowSetup setup = {})
        : locale(setup.decimalSeparator),
          connector(setup.instrumentManagers
                        ? std::make_unique<HIDDeviceConnector>(*setup.instrumentManagers, runLoop,
                                                               notificationCenter, log)
                        : nullptr),
          controller(window, {runLoop, notificationCenter, alertPresenter, locale,
                              setup.referenceFile ? setup.referenceFile
                              : setup.rows        ? std::optional(dir.write("AllStoneNew.csv",
                                                                            referenceText(*setup.rows)))
                                                  : std::nullopt,
                              standardOutput, elsewhere,
                              connector ? static_cast<InstrumentLink&>(*connector) : elsewhere}) {
        if (setup.loadView) {
            controller.viewDidLoad();
            runQueued();
        }
    }

    // Gestures. Typing focuses the entry and types one character at a time (nothing if the entry
    // cannot take the focus); leaving takes the focus from it; clicking serves push buttons and
    // check boxes alike.
    void type(TextField& entry, std::string_view text) {
        if (window.makeFirstResponder(&entry)) {
            window.insertText(text);
        }
        runQueued();
    }
    void leave() {
        window.makeFirstResponder(nullptr);
        runQueued();
    }
    void click(Button& button) {
        button.performClick();
        runQueued();
    }
    void pick(PopUpButton& popUp, std::string_view title) {
        popUp.pickItem(popUp.indexOfItem(title));
        runQueued();
    }
    void clickRow(int row) {
        window.tableView.clickRow(row);
        runQueued();
    }
    void runQueued() { runLoop.runPending(); }

    const ViewControllerState& state() const { return controller.state(); }
    std::vector<std::string> alerts() const { return alertPresenter.texts(); }
    // What the table shows: the number and the name of each row.
    std::vector<std::pair<std::string, std::string>> tableRows() {
        std::vector<std::pair<std::string, std::string>> rows;
        for (int row = 0; row < window.tableView.numberOfRows(); ++row) {
            rows.emplace_back(cellText(window.tableView, 0, row).value_or("?"),
                              cellText(window.tableView, 1, row).value_or("?"));
        }
        return rows;
    }

    TempDir dir;
    ManualRunLoop runLoop;
    NotificationCenter notificationCenter;
    RecordingAlertPresenter alertPresenter;
    FixedLocale locale;
    std::ostringstream standardOutput;
    NoScreensNoInstrument elsewhere;
    RecordingLog log;
    std::unique_ptr<HIDDeviceConnector> connector; // with WindowSetup::instrumentManagers
    MainWindow window;
    ViewController controller;
};

} // namespace velmora::test
