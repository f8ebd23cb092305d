#pragma once

// Matching reference stones against the criteria the user switched on. Criteria combine by AND;
// the result keeps the table's order and lists a stone once for each time it stands there.

#include "data/stone_list.h"

#include <optional>
#include <string>
#include <string_view>

namespace velmora {

// The switched-on criteria, read from the form; an absent one takes no part.
struct SearchCriteria {
    std::optional<double> ri = std::nullopt;
    std::optional<double> sg = std::nullopt;
    std::optional<double> hardness = std::nullopt;
    std::optional<std::string> color =
        std::nullopt; // equal to one of Color1 to Color6, ignoring case
    std::optional<std::string> name = std::nullopt; // contained in StoneName, ignoring case
};

// Whether a range cell such as "1.544 - 1.553" holds the value, bounds included. Spaces are
// dropped and the text is cut at every hyphen-minus; the first two non-empty pieces are the
// bounds, and a bound that is no number counts as 0. A cell of one number never matches.
bool matchesRange(std::string_view field, double value);

// The stones of table that fit every criterion. With no criterion, the table itself.
StoneList findStones(const StoneList& table, const SearchCriteria& criteria);

} // namespace velmora
