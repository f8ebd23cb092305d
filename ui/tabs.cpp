#include "ui/view_controller.h"

namespace velmora {
namespace {

constexpr int readingTab = 0;
constexpr int dictionaryTab = 1;
constexpr int tutorialTag = 2;

// The live reading container is shown in the reading tab and collapsed in the dictionary.
constexpr double readingContainerHeight = 109.0;

} // namespace

void ViewController::btn_navigation_tap(Button& sender) {
    selectTab(sender.tag());
}

void ViewController::selectTab(int tag) {
    if (tag == tutorialTag) {
        environment_.screenPresenter.presentTutorialScreen();
    } else if (tag == readingTab || tag == dictionaryTab) {
        enterTab(tag);
    } else {
        environment_.screenPresenter.presentContactScreen();
    }
}

void ViewController::enterTab(int tag) {
    const bool dictionary = tag == dictionaryTab;
    mode = tag;
    selectedTab = tag;
    border_RiReading.setHidden(true);
    border_dictionary.setHidden(true);
    (dictionary ? border_dictionary : border_RiReading).setHidden(false);
    check_Name_Container.setHidden(!dictionary);
    reading_container_heightConstraint.setConstant(dictionary ? 0.0 : readingContainerHeight);
    showCapturePanel(!dictionary);
    resetSearchForm();
    if (dictionary) {
        // Queued, so the boxes become available after the reset above has made them not.
        queueEnableSearchOptions(true);
        btn_clearAll.setEnabled(true);
        btn_search.setEnabled(true);
    } else {
        // The reading tab searches only through Enter, from the live reading.
        btn_enter.setEnabled(true);
        btn_clearAll.setEnabled(true);
        btn_search.setEnabled(false);
    }
    arr_stones = {};
    tableView.reloadData();
    btn_stonesList.removeAllItems();
    refreshResults();
    if (dictionary) {
        btn_search.performClick();
        tableView.selectRow(0);
        tableViewShouldSelectRow(tableView, 0);
    }
}

void ViewController::queueEnableSearchOptions(bool includeRI) {
    environment_.runLoop.post([this, includeRI] { enableSearchOptions(includeRI); });
}

void ViewController::enableSearchOptions(bool includeRI) {
    btn_stonesList.setEnabled(true);
    for (Button* criterion : {&check_sg, &check_hardness, &check_color, &check_Name}) {
        criterion->setEnabled(true);
    }
    check_RI.setEnabled(includeRI);
}

} // namespace velmora
