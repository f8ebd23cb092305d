#include "search/search_stones.h"

#include "search/property_search.h"

namespace velmora {

SearchOutcome searchStones(const StoneList& table, const SearchForm& form,
                           const DecimalSeparators& separators) {
    // Every entry is checked for presence before any is read as a number, so an empty entry is
    // reported even after an invalid one.
    const struct {
        bool on;
        const std::string& text;
        const char* missing;
    } presence[] = {
        {form.isRIState, form.riText, "Please enter R.I. value!"},
        {form.isSGState, form.sgText, "Please enter S.G. value!"},
        {form.isHardnessState, form.hardnessText, "Please enter Hardness value!"},
        {form.isNameState, form.nameText, "Please enter name of stone!"},
    };
    for (const auto& check : presence) {
        if (check.on && check.text.empty()) {
            return {.alert = SearchAlert{{}, check.missing}};
        }
    }

    SearchCriteria criteria;
    const struct {
        bool on;
        const std::string& text;
        NumericEntry entry;
        std::optional<double>& value;
    } numbers[] = {
        {form.isRIState, form.riText, NumericEntry::RI, criteria.ri},
        {form.isSGState, form.sgText, NumericEntry::SG, criteria.sg},
        {form.isHardnessState, form.hardnessText, NumericEntry::Hardness, criteria.hardness},
    };
    for (const auto& number : numbers) {
        if (!number.on) {
            continue;
        }
        number.value = readEntryNumber(number.text, separators);
        if (!number.value) {
            return {.alert = SearchAlert{{}, notANumberMessage}, .entryToEmpty = number.entry};
        }
    }
    if (form.isColorState) {
        criteria.color = form.selectedColor;
    }
    if (form.isNameState) {
        criteria.name = form.nameText;
    }

    StoneList found = findStones(table, criteria);
    if (found.empty()) {
        return {.stones = std::move(found), .alert = SearchAlert{"Result", "Not Found in Record"}};
    }
    return {.stones = std::move(found)};
}

} // namespace velmora
