#include "foundation/c_number.h"
#include "foundation/text.h"
#include "search/number_entry.h"
#include "search/property_search.h"
#include "ui/view_controller.h"

namespace velmora {
void ViewController::btn_search_tap(Button&) {
    searchStones();
}

std::optional<double> ViewController::readEntryNumber(TextField& entry) {
    if (!isNumberOnly(entry.text())) {
        return std::nullopt;
    }
    return parseCNumber(text::replaceAll(entry.text(), decimalSeparator, "."));
}

void ViewController::searchStones() {
    // Every entry is checked for presence before any is read as a number, so an empty entry is
    // reported even after an invalid one.
    const struct {
        bool on;
        const TextField& entry;
        const char* missing;
    } presence[] = {
        {isRIState, txt_leftRIReading, "Please enter R.I. value!"},
        {isSGState, txt_leftSG, "Please enter S.G. value!"},
        {isHardnessState, txt_leftHardness, "Please enter Hardness value!"},
        {isNameState, txt_left_name, "Please enter name of stone!"},
    };
    for (const auto& check : presence) {
        if (check.on && check.entry.text().empty()) {
            showAlert({}, check.missing, AlertStyle::Warning);
            return;
        }
    }

    SearchCriteria criteria;
    const struct {
        bool on;
        TextField& entry;
        std::optional<double>& value;
    } numbers[] = {
        {isRIState, txt_leftRIReading, criteria.ri},
        {isSGState, txt_leftSG, criteria.sg},
        {isHardnessState, txt_leftHardness, criteria.hardness},
    };
    for (const auto& number : numbers) {
        if (!number.on) {
            continue;
        }
        number.value = readEntryNumber(number.entry);
        if (!number.value) {
            showAlert({}, notANumberMessage, AlertStyle::Warning);
            clearEntry(number.entry);
            return;
        }
    }
    if (isColorState) {
        criteria.color = selectedColor;
    }
    if (isNameState) {
        criteria.name = txt_left_name.text();
    }

    // The result is kept only once the search is through: a search that stops at an entry
    // leaves the listed stones, and what the table shows of them, as they were.
    arr_stones = findStones(arr_stonesGlobal, criteria);
    refreshResults();
    if (arr_stones.empty()) {
        showAlert("Result", "Not Found in Record", AlertStyle::Warning);
        return;
    }
    tableView.selectRow(0);
    tableViewShouldSelectRow(tableView, 0);
}

} // namespace velmora
