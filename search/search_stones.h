#pragma once

// The search the form runs, without the window: which entries must be filled, how they are read,
// the warning that stops the search, and the stones it finds. The window lists what it gives.

#include "data/stone_list.h"
#include "search/number_entry.h"

#include <optional>
#include <string>

namespace velmora {

// The form as the search reads it: which criteria are switched on, and the entries' texts.
struct SearchForm {
    bool isRIState = false;
    bool isSGState = false;
    bool isHardnessState = false;
    bool isNameState = false;
    bool isColorState = false;
    std::string riText{};
    std::string sgText{};
    std::string hardnessText{};
    std::string nameText{};
    std::string selectedColor{};
};

enum class NumericEntry { RI, SG, Hardness };

// A warning, its message and informative texts.
struct SearchAlert {
    std::string message;
    std::string informative;
    bool operator==(const SearchAlert&) const = default;
};

// What the window does, in this order: list the stones, show the alert, empty the entry.
struct SearchOutcome {
    // Nothing when an entry stopped the search: the listed stones stay as they were.
    std::optional<StoneList> stones = std::nullopt;
    std::optional<SearchAlert> alert = std::nullopt;
    // The entry whose number could not be read.
    std::optional<NumericEntry> entryToEmpty = std::nullopt;
};

// Checks every switched-on entry for presence (R.I., S.G., hardness, name) before it reads any
// number (R.I., S.G., hardness), then finds the stones of table that fit. The first empty or
// unreadable entry stops the search; finding nothing is reported after the empty list.
SearchOutcome searchStones(const StoneList& table, const SearchForm& form,
                           const DecimalSeparators& separators);

} // namespace velmora
