#pragma once

// The main window's controller: the state machine over the window's named elements. It sets the
// window up, switches between the R.I. reading and dictionary tabs, runs the search form, lists
// the results and shows the chosen stone, and shows the instrument panel's state. Its operations
// are spread over ui/ files by concern; what the search form computes is search/'s.
//
// Work it queues on the run loop refers to the controller: run or drop it before the controller
// goes.

#include "device/capture_model.h"
#include "device/device_notifications.h"
#include "device/instrument_link.h"
#include "foundation/locale.h"
#include "foundation/notification_center.h"
#include "foundation/run_loop.h"
#include "ui/alert_presenter.h"
#include "ui/best_matches.h"
#include "ui/field_editor.h"
#include "ui/main_window_outlets.h"
#include "ui/records_view.h"
#include "ui/screen_presenter.h"
#include "ui/view_controller_state.h"

#include <filesystem>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

namespace velmora {

struct DecimalSeparators;
struct SearchForm;
enum class NumericEntry;

struct ViewControllerEnvironment {
    RunLoop& runLoop;
    NotificationCenter& notificationCenter;
    AlertPresenter& alertPresenter;
    const Locale& locale;
    // The reference file; nothing when the application has none.
    std::optional<std::filesystem::path> referenceFile;
    // Where the load's error line and other diagnostic lines go.
    std::ostream& standardOutput;
    ScreenPresenter& screenPresenter;
    InstrumentLink& instrumentLink;
};

enum class DevicePanelState { Disconnected, Connected };

class ViewController final : public TableViewDataSource,
                             public TableViewDelegate,
                             public TextFieldDelegate,
                             private MainWindowOutlets,
                             private ViewControllerState {
public:
    static constexpr const char* windowTitle = "Velmora v2.0.1-M-23";
    // The results' pages, in the order of their tabs.
    static constexpr int stonesListedPage = 0;
    static constexpr int bestMatchesPage = 1;
    static constexpr int recordsPage = 2;

    // Connects the window's controls to their actions; the fields take their starting values.
    ViewController(MainWindow& window, ViewControllerEnvironment environment);
    // Stops observing the instrument's notifications.
    ~ViewController() override;
    ViewController(const ViewController&) = delete;
    ViewController& operator=(const ViewController&) = delete;

    const ViewControllerState& state() const { return *this; }
    // What the live panel measures: steadiness, captures and the stone's rotation series.
    const CaptureModel& capture() const { return capture_; }

    // Window set-up and tabs (view_controller.cpp, tabs.cpp)
    void viewDidLoad();
    void selectTab(int tag);
    void btn_navigation_tap(Button& sender);

    // Reference data and colours (reference_lists.cpp, colour_selection.cpp)
    void loadStones();
    void loadColors();
    void btn_onChangeColor_tap(PopUpButton& sender);

    // The search form (search_form.cpp, search_stones.cpp)
    void searchStones();
    void resetSearchForm();
    void clearSearchForm();
    void enterLiveReading();
    void btn_checkBox_tap(Button& sender);
    void btn_search_tap(Button& sender);
    void btn_enter_tap(Button& sender);
    void btn_clear_tap(Button& sender);
    void btn_reset_tap(Button& sender);

    // Entry checks (entry_checks.cpp)
    void controlTextDidChange(TextField* object) override;
    bool controlTextShouldEndEditing(TextField& control, FieldEditor& editor) override;

    // Results and detail (results_display.cpp)
    void refreshResults();
    void showStoneDetail(const Stones& stone);
    void btn_stoneListChange(PopUpButton& sender);
    int numberOfRowsInTableView(TableView& table) override;
    std::shared_ptr<View> tableViewViewFor(TableView& table, const TableColumn* column,
                                           int row) override;
    double tableViewHeightOfRow(TableView& table, int row) override;
    bool tableViewShouldSelectRow(TableView& table, int row) override;
    // The Stone pop-up names only the listed stones, so it shows beside their page alone; the
    // reference stone's detail has no part in the records, which take its width, and are listed
    // anew each time their page comes to the front.
    void tabViewDidSelectTabViewItem(TabView& tabView);

    // Best matches (best_matches_form.cpp): ranked anew on every Search and Enter, and on every
    // change of the view's own inputs (the high R.I., the over-the-limit switch, the weights).
    void rankBestMatches();
    // Two readings of one stone turned on the prism, as a captured series gives them.
    void enterRotationReadings(double low, double high);
    void btn_overTheLimit_tap(Button& sender);

    // The live reading panel (device_panel.cpp)
    void applyDevicePanelState(DevicePanelState state);
    void queueDevicePanelState(DevicePanelState state);
    void usbConnectedWithNotification(const HIDDeviceConnected& notification);
    void usbDisconnectedWithNotification(const HIDDeviceDisconnected& notification);
    void hidReadDataWithNotification(const HIDDeviceDataReceived& notification);
    void btn_connect_tap(Button& sender);
    void btn_disConnect_tap(Button& sender);

    // The Records view (record_measurement.cpp, records_view.cpp). Without services it has no
    // store and says so when used.
    void setRecordsServices(RecordsServices services);
    // Lists the records; the store opens on first use, not at start-up.
    void showRecords();
    const RecordsView& records() const { return records_; }
    RecordsView& records() { return records_; }
    // The record of what the window measures now, under this label.
    StoneRecord recordOfMeasurement(std::string label) const;

    // Capture and the rotation series (capture_panel.cpp): the steadiness beside the figure, the
    // strip chart under it, the captures of the stone on the prism and their verdict.
    void btn_capture_tap(Button& sender);
    void btn_newStone_tap(Button& sender);
    void check_autoCapture_tap(Button& sender);
    // The series' lowest and highest into the ranked identification, shown in Best matches.
    void btn_identifySeries_tap(Button& sender);

private:
    enum class CheckBoxes { Disable, LeaveEnabled };

    void connectActions();
    void styleViews();
    void enableSearchOptions(bool includeRI);
    void queueEnableSearchOptions(bool includeRI);
    void enterTab(int tag);
    void emptyCriteria(CheckBoxes checkBoxes);
    void clearSwatch();

    void observeInstrument();
    void writeModeAndQueueReset();

    void setUpCapturePanel();
    void showCapturePanel(bool shown);
    // value: the reading as a number; nothing when it was none.
    void measureReading(std::optional<double> value);
    void showSteadiness(SteadinessState state);
    void showSeries(const RotationSeries& series);

    void showAlert(const std::string& message, const std::string& informative, AlertStyle style);
    std::string currentDecimalSeparator() const;
    DecimalSeparators decimalSeparators() const;
    SearchForm searchForm() const;
    RankingForm rankingForm() const;
    TextField& numericEntry(NumericEntry entry);

    ViewControllerEnvironment environment_;
    std::vector<NotificationCenter::Token> observations_;
    BestMatches bestMatches_;
    CaptureModel capture_;
    RecordsView records_;
};

// Empties an entry, or the field editor holding its text while it is edited.
void clearEntry(TextField& field);
void clearEntry(FieldEditor& editor);

} // namespace velmora
