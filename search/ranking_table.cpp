#include "search/ranking_table.h"

#include "data/color_catalogue.h"
#include "foundation/text.h"
#include "search/name_folding.h"

namespace velmora {

std::uint16_t colorBit(std::string_view name) {
    const std::string lower = text::lowercased(name);
    const auto& catalogue = colorCatalogue();
    for (std::size_t i = 0; i < catalogue.size(); ++i) {
        if (text::equals(lower, text::lowercased(catalogue[i].name))) {
            return static_cast<std::uint16_t>(1u << i);
        }
    }
    return 0;
}

RankingTable::RankingTable(const StoneList& stones) : stones_(stones) {
    rows_.reserve(stones_.size());
    for (const Stones& stone : stones_) {
        RankingRow row;
        row.stone = &stone;
        row.ri = spanOf(stone.Ri);
        row.sg = spanOf(stone.SgRange);
        row.hardness = spanOf(stone.Hardness);
        row.birefringence =
            stone.Birefringence == "none" ? ValueSpan{0, 0} : spanOf(stone.Birefringence);
        row.aggregate = stone.Birefringence == "not measurable (aggregate)" ||
                        stone.Birefringence == "not measurable (organic)";
        for (const Cell* cell : {&stone.Color1, &stone.Color2, &stone.Color3, &stone.Color4,
                                 &stone.Color5, &stone.Color6}) {
            row.namesColor = row.namesColor || !cell->empty();
            row.colors |= cell->empty() ? 0 : colorBit(*cell);
        }
        if (!text::isAscii(stone.StoneName)) {
            row.foldedName = foldedName(stone.StoneName);
        }
        rows_.push_back(std::move(row));
    }
}

} // namespace velmora
