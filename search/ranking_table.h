#pragma once

// The reference set read once for ranking: every range cell parsed, the colours as a set of
// catalogue entries, the names ready to compare. Ranking a large set many times then reads a
// few numbers per stone instead of its 28 texts.

#include "data/stone_list.h"
#include "search/range_cell.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace velmora {

struct RankingRow {
    const Stones* stone = nullptr;
    std::optional<ValueSpan> ri;
    std::optional<ValueSpan> sg;
    std::optional<ValueSpan> hardness;
    // "none" (singly refractive) as the point 0; "not measurable" as nothing.
    std::optional<ValueSpan> birefringence;
    // A polycrystalline or organic material: its R.I. is a spot reading, never a sharp edge.
    bool aggregate = false;
    std::uint16_t colors = 0; // bit i: catalogue entry i stands in one of Color1 to Color6
    bool namesColor = false;  // any colour cell is filled, in the catalogue or not
    std::string foldedName;   // the name folded, when it is not plain ASCII
};

class RankingTable {
public:
    explicit RankingTable(const StoneList& stones);
    const std::vector<RankingRow>& rows() const { return rows_; }

private:
    StoneList stones_; // holds the stones the rows point at
    std::vector<RankingRow> rows_;
};

// The catalogue entry of that name in any case, as its bit; 0 for a name not in the catalogue.
std::uint16_t colorBit(std::string_view name);

} // namespace velmora
