#include "search/range_cell.h"

#include "foundation/c_number.h"

#include <array>
#include <string>

namespace velmora {

RangeCell readRangeCell(std::string_view field) {
    // Short pieces stay in the strings' own storage: no allocation for a usual cell.
    std::array<std::string, 2> pieces;
    std::size_t count = 0;
    std::string current;
    const auto endPiece = [&] {
        if (!current.empty()) {
            pieces[count++] = std::move(current);
            current.clear();
        }
    };
    for (const char c : field) {
        if (c == '-') {
            endPiece();
            if (count == pieces.size()) {
                break;
            }
        } else if (c != ' ') {
            current += c;
        }
    }
    if (count < pieces.size()) {
        endPiece();
    }
    RangeCell cell;
    cell.pieces = count;
    if (count > 0) {
        cell.low = parseCNumber(pieces[0]);
    }
    if (count > 1) {
        cell.high = parseCNumber(pieces[1]);
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
