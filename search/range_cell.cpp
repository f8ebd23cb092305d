#include "search/range_cell.h"

#include "foundation/c_number.h"

#include <algorithm>
#include <iterator>
#include <string>

namespace velmora {

RangeCell readRangeCell(std::string_view field) {
    RangeCell cell;
    std::size_t start = 0;
    while (cell.pieces < 2 && start <= field.size()) {
        const auto end = std::min(field.find('-', start), field.size());
        std::string_view piece = field.substr(start, end - start);
        start = end + 1;
        // Spaces are dropped even inside a number; a piece of spaces alone is no piece.
        std::string spaceless;
        if (piece.find(' ') != std::string_view::npos) {
            std::copy_if(piece.begin(), piece.end(), std::back_inserter(spaceless),
                         [](char c) { return c != ' '; });
            piece = spaceless;
        }
        if (piece.empty()) {
            continue;
        }
        (cell.pieces++ == 0 ? cell.low : cell.high) = parseCNumber(piece);
    }
    return cell;
}

std::optional<ValueSpan> spanOf(std::string_view field) {
    const RangeCell cell = readRangeCell(field);
    if (cell.pieces == 1 && cell.low) {
        return ValueSpan{*cell.low, *cell.low};
    }
    if (cell.pieces == 2 && cell.low && cell.high && *cell.low <= *cell.high) {
        return ValueSpan{*cell.low, *cell.high};
    }
    return std::nullopt;
}

} // namespace velmora
