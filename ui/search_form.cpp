#include "ui/view_controller.h"

#include <vector>

namespace velmora {

void ViewController::btn_checkBox_tap(Button& sender) {
    const bool on = sender.state() == ButtonState::On;
    TextField* entry = nullptr;
    // The Best matches view's entries that go with the criterion's own.
    std::vector<TextField*> companions;
    bool* flag = nullptr;
    switch (sender.tag()) {
    case 0:
        entry = &txt_leftRIReading;
        companions = {&txt_leftRIHigh};
        flag = &isRIState;
        break;
    case 1:
        entry = &txt_leftSG;
        companions = {&txt_weightAir, &txt_weightWater};
        flag = &isSGState;
        break;
    case 2:
        entry = &txt_leftHardness;
        flag = &isHardnessState;
        break;
    case 3:
        flag = &isColorState;
        break;
    case 4:
        entry = &txt_left_name;
        flag = &isNameState;
        break;
    default:
        return;
    }
    if (entry) {
        companions.push_back(entry);
        for (TextField* field : companions) {
            field->setEnabled(on);
            if (!on) {
                field->setText({});
            }
        }
    } else {
        btn_color.setEnabled(on);
        if (on) {
            loadColors();
        } else {
            btn_color.removeAllItems();
            clearSwatch();
        }
    }
    *flag = on;
}

void ViewController::btn_enter_tap(Button&) {
    enterLiveReading();
}

void ViewController::btn_clear_tap(Button&) {
    clearSearchForm();
}

void ViewController::btn_reset_tap(Button&) {
    resetSearchForm();
}

void ViewController::enterLiveReading() {
    // R.I. stays on, locked: the boxes other than R.I. become available once this is done.
    queueEnableSearchOptions(false);
    check_RI.setState(ButtonState::On);
    btn_checkBox_tap(check_RI);
    txt_leftRIReading.setText(usb_device_reading.text());
    btn_search.setEnabled(true);
    searchStones();
}

void ViewController::resetSearchForm() {
    emptyCriteria(CheckBoxes::Disable);
}

// Clear all differs from Reset in leaving the boxes enabled and entering the tab again, which
// resets the form once more and lists that tab's results anew.
void ViewController::clearSearchForm() {
    emptyCriteria(CheckBoxes::LeaveEnabled);
    selectTab(selectedTab);
}

void ViewController::emptyCriteria(CheckBoxes checkBoxes) {
    TextField* const entries[] = {&txt_leftSG,        &txt_leftHardness, &txt_left_name,
                                  &txt_leftRIReading, &txt_leftRIHigh,   &txt_weightAir,
                                  &txt_weightWater};
    Button* const boxes[] = {&check_RI, &check_sg, &check_hardness, &check_Name, &check_color};
    for (TextField* entry : entries) {
        entry->setText({});
    }
    btn_color.removeAllItems();
    clearSwatch();
    btn_stonesList.setEnabled(true);
    btn_color.setEnabled(false);
    if (checkBoxes == CheckBoxes::Disable) {
        for (Button* box : boxes) {
            box->setEnabled(false);
        }
    }
    for (Button* box : boxes) {
        box->setState(ButtonState::Off);
    }
    for (TextField* entry : entries) {
        entry->setEnabled(false);
    }
    isRIState = isSGState = isHardnessState = isNameState = isColorState = false;
    // Always available: without a shadow edge there is nothing to tick R.I. for.
    check_overTheLimit.setState(ButtonState::Off);
    rankBestMatches();
}

} // namespace velmora
