#include "tests/support/window_harness.h"

#include "tests/support/reference_text.h"

namespace velmora::test {
namespace {

std::optional<std::filesystem::path>
referenceFile(const TempDir& dir, const std::optional<std::vector<std::string>>& rows) {
    if (!rows) {
        return std::nullopt;
    }
    return dir.write("AllStoneNew.csv", referenceText(*rows));
}

} // namespace

WindowHarness::WindowHarness(WindowSetup setup)
    : locale(setup.decimalSeparator),
      connector(setup.instrumentManagers
                    ? std::make_unique<HIDDeviceConnector>(*setup.instrumentManagers, runLoop,
                                                           notificationCenter, log)
                    : nullptr),
      controller(window, {runLoop, notificationCenter, alertPresenter, locale,
                          referenceFile(dir, setup.rows), standardOutput, screens,
                          connector ? static_cast<InstrumentLink&>(*connector) : instrument}) {
    if (setup.loadView) {
        controller.viewDidLoad();
        runQueued();
    }
}

void WindowHarness::type(TextField& entry, std::string_view text) {
    if (window.makeFirstResponder(&entry)) {
        window.insertText(text);
    }
    runQueued();
}

void WindowHarness::deleteBackward() {
    window.deleteBackward();
    runQueued();
}

void WindowHarness::leave() {
    window.makeFirstResponder(nullptr);
    runQueued();
}

void WindowHarness::click(Button& button) {
    button.performClick();
    runQueued();
}

void WindowHarness::pick(PopUpButton& popUp, std::string_view title) {
    popUp.pickItem(popUp.indexOfItem(title));
    runQueued();
}

void WindowHarness::clickRow(int row) {
    window.tableView.clickRow(row);
    runQueued();
}

std::vector<std::pair<std::string, std::string>> WindowHarness::tableRows() {
    std::vector<std::pair<std::string, std::string>> rows;
    for (int row = 0; row < window.tableView.numberOfRows(); ++row) {
        rows.emplace_back(cellText(window.tableView, 0, row).value_or("?"),
                          cellText(window.tableView, 1, row).value_or("?"));
    }
    return rows;
}

} // namespace velmora::test
