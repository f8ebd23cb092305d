#include "search/property_search.h"

#include "foundation/text.h"
#include "search/range_cell.h"

#include <vector>

namespace velmora {
namespace {

bool hasColor(const Stones& stone, const std::string& lowerColor) {
    for (const Cell* cell : {&stone.Color1, &stone.Color2, &stone.Color3, &stone.Color4,
                             &stone.Color5, &stone.Color6}) {
        if (text::equals(text::lowercased(*cell), lowerColor)) {
            return true;
        }
    }
    return false;
}

// The criteria ready to be applied to many stones: the entered texts lower-cased once.
struct PreparedCriteria {
    const SearchCriteria& criteria;
    std::optional<std::string> lowerColor;
    std::optional<std::string> lowerName;

    explicit PreparedCriteria(const SearchCriteria& c) : criteria(c) {
        if (c.color) {
            lowerColor = text::lowercased(*c.color);
        }
        if (c.name) {
            lowerName = text::lowercased(*c.name);
        }
    }

    bool any() const {
        return criteria.ri || criteria.sg || criteria.hardness || lowerColor || lowerName;
    }

    // In the fixed order R.I., S.G., hardness, colour, name, the cheap numeric tests first.
    bool fits(const Stones& stone) const {
        return (!criteria.ri || matchesRange(stone.Ri, *criteria.ri)) &&
               (!criteria.sg || matchesRange(stone.SgRange, *criteria.sg)) &&
               (!criteria.hardness || matchesRange(stone.Hardness, *criteria.hardness)) &&
               (!lowerColor || hasColor(stone, *lowerColor)) &&
               (!lowerName || text::contains(text::lowercased(stone.StoneName), *lowerName));
    }
};

} // namespace

bool matchesRange(std::string_view field, double value) {
    const RangeCell cell = readRangeCell(field);
    return cell.pieces == 2 && cell.low.value_or(0.0) <= value && value <= cell.high.value_or(0.0);
}

StoneList findStones(const StoneList& table, const SearchCriteria& criteria) {
    const PreparedCriteria prepared(criteria);
    if (!prepared.any()) {
        return table;
    }
    // One pass, keeping references: only the stones that fit are copied, once.
    std::vector<const Stones*> kept;
    for (const Stones& stone : table) {
        if (prepared.fits(stone)) {
            kept.push_back(&stone);
        }
    }
    std::vector<Stones> result;
    result.reserve(kept.size());
    for (const Stones* stone : kept) {
        result.push_back(*stone);
    }
    return StoneList(std::move(result));
}

} // namespace velmora
