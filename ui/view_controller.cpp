#include "ui/view_controller.h"

#include "ui/system_colors.h"

#include <initializer_list>

namespace velmora {

ViewController::ViewController(MainWindow& window, ViewControllerEnvironment environment)
    : MainWindowOutlets(window), environment_(std::move(environment)),
      bestMatches_(
          tbl_bestMatches, lbl_bestMatchesNote,
          [this](const Stones& stone) { showStoneDetail(stone); }, [this] { rankBestMatches(); }),
      records_(
          window, environment_.alertPresenter,
          [this](std::string label) { return recordOfMeasurement(std::move(label)); },
          environment_.locale.decimalSeparator().empty() ? decimalSeparator
                                                         : environment_.locale.decimalSeparator()) {
    if (const std::string separator = environment_.locale.decimalSeparator(); !separator.empty()) {
        decimalSeparator = separator;
    }
    connectActions();
}

ViewController::~ViewController() {
    for (const auto token : observations_) {
        environment_.notificationCenter.removeObserver(token);
    }
}

void ViewController::connectActions() {
    for (Button* navigation : {&btn_RIReading, &bvtn_dictionary, &btn_tutorial, &btn_contactUs}) {
        navigation->setAction([this](Button& sender) { btn_navigation_tap(sender); });
    }
    for (Button* criterion : {&check_RI, &check_sg, &check_hardness, &check_color, &check_Name}) {
        criterion->setAction([this](Button& sender) { btn_checkBox_tap(sender); });
    }
    check_overTheLimit.setAction([this](Button& sender) { btn_overTheLimit_tap(sender); });
    btn_search.setAction([this](Button& sender) { btn_search_tap(sender); });
    btn_enter.setAction([this](Button& sender) { btn_enter_tap(sender); });
    btn_clearAll.setAction([this](Button& sender) { btn_clear_tap(sender); });
    btn_reset.setAction([this](Button& sender) { btn_reset_tap(sender); });
    btn_color.setAction([this](PopUpButton& sender) { btn_onChangeColor_tap(sender); });
    btn_stonesList.setAction([this](PopUpButton& sender) { btn_stoneListChange(sender); });
    resultsTabs.setAction([this](TabView& sender) { tabViewDidSelectTabViewItem(sender); });
    btn_connected.setAction([this](Button& sender) { btn_connect_tap(sender); });
    btn_disconnected.setAction([this](Button& sender) { btn_disConnect_tap(sender); });
    btn_capture.setAction([this](Button& sender) { btn_capture_tap(sender); });
    btn_newStone.setAction([this](Button& sender) { btn_newStone_tap(sender); });
    check_autoCapture.setAction([this](Button& sender) { check_autoCapture_tap(sender); });
    btn_identifySeries.setAction([this](Button& sender) { btn_identifySeries_tap(sender); });
}

void ViewController::viewDidLoad() {
    tableView.setDataSource(this);
    tableView.setDelegate(this);
    // The name entry is not checked as it is typed: it takes any text.
    for (TextField* entry : {&txt_leftSG, &txt_leftHardness, &txt_leftRIReading}) {
        entry->setDelegate(this);
    }
    for (TextField* entry : {&txt_leftRIHigh, &txt_weightAir, &txt_weightWater}) {
        entry->setDelegate(&bestMatches_);
    }
    window_.setTitle(windowTitle);
    styleViews();
    setUpCapturePanel();
    selectTab(0);
    loadStones();
    bestMatches_.setStones(arr_stonesGlobal);
    rankBestMatches();
    observeInstrument();
}

void ViewController::styleViews() {
    using namespace systemColors;
    border_RiReading.setHidden(false);
    border_dictionary.setHidden(true);
    box.setBackgroundColor(Rgba::rgb255(18, 27, 50));
    border_RiReading.setBackgroundColor(white);
    border_dictionary.setBackgroundColor(white);
    view_leftPanel.setBackgroundColor(Rgba::rgb255(236, 236, 236));
    view.setBackgroundColor(white);
    view_deviceStatus.setCornerRadius(5.0);
    queueDevicePanelState(DevicePanelState::Disconnected);
    for (Button* outlined : {&btn_disconnected, &btn_clearAll}) {
        outlined->setBorderWidth(1.0);
        outlined->setBorderColor(systemRed);
    }
    view_reading.setBackgroundColor(white);
    for (TextField* detail : {&txt_stroneFamily, &txt_sg, &txt_RI, &txt_hardness, &txt_bierfence}) {
        detail->setEditable(false);
    }
    for (Control* command :
         std::initializer_list<Control*>{&btn_color, &btn_clearAll, &btn_search}) {
        command->setEnabled(false);
    }
    const auto criterionTitle = [](const char* text) {
        return AttributedTitle{text, TextAlignment::Left, systemGray};
    };
    check_RI.setAttributedTitle(criterionTitle("R.I."));
    check_sg.setAttributedTitle(criterionTitle("S.G."));
    check_hardness.setAttributedTitle(criterionTitle("Hardness"));
    check_color.setAttributedTitle(criterionTitle("Color"));
    check_Name.setAttributedTitle(criterionTitle("Name"));
    check_overTheLimit.setAttributedTitle(criterionTitle("Over the limit"));
    btn_reset.setBorderWidth(1.0);
    btn_reset.setBorderColor(systemRed);
}

void ViewController::showAlert(const std::string& message, const std::string& informative,
                               AlertStyle style) {
    environment_.alertPresenter.runModal(message, informative, style, {"OK"});
}

} // namespace velmora
