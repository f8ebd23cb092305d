#include "search/search_stones.h"

#include "ui/view_controller.h"

namespace velmora {

void ViewController::btn_search_tap(Button&) {
    searchStones();
}

void ViewController::searchStones() {
    const SearchOutcome outcome =
        velmora::searchStones(arr_stonesGlobal, searchForm(), decimalSeparators());
    // The result is kept only once the search is through: a search that stops at an entry
    // leaves the listed stones, and what the table shows of them, as they were.
    if (outcome.stones) {
        arr_stones = *outcome.stones;
        refreshResults();
    }
    if (outcome.alert) {
        showAlert(outcome.alert->message, outcome.alert->informative, AlertStyle::Warning);
    }
    if (outcome.entryToEmpty) {
        clearEntry(numericEntry(*outcome.entryToEmpty));
    }
    if (outcome.stones && !arr_stones.empty()) {
        tableView.selectRow(0);
        tableViewShouldSelectRow(tableView, 0);
    }
    rankBestMatches();
}

SearchForm ViewController::searchForm() const {
    return {.isRIState = isRIState,
            .isSGState = isSGState,
            .isHardnessState = isHardnessState,
            .isNameState = isNameState,
            .isColorState = isColorState,
            .riText = txt_leftRIReading.text(),
            .sgText = txt_leftSG.text(),
            .hardnessText = txt_leftHardness.text(),
            .nameText = txt_left_name.text(),
            .selectedColor = selectedColor};
}

TextField& ViewController::numericEntry(NumericEntry entry) {
    switch (entry) {
    case NumericEntry::RI:
        return txt_leftRIReading;
    case NumericEntry::SG:
        return txt_leftSG;
    case NumericEntry::Hardness:
        break;
    }
    return txt_leftHardness;
}

} // namespace velmora
