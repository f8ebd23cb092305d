#pragma once

// Reading a range cell of the reference table ("1.544 - 1.553", "2.65", "7-7.5"), the one reading
// that the strict search and the ranking share.

#include <cstddef>
#include <optional>
#include <string_view>

namespace velmora {

struct RangeCell {
    // 0, 1 or 2: the non-empty pieces found before a third would begin.
    std::size_t pieces = 0;
    // The pieces as numbers; absent where a piece is no number or missing.
    std::optional<double> low;
    std::optional<double> high;
};

// Spaces are dropped and the text is cut at every hyphen-minus; empty pieces do not count, and
// pieces after the second are ignored.
RangeCell readRangeCell(std::string_view field);

// The span a cell stands for, for measuring how far a value lies outside it: a range, or a single
// number as a point. Nothing when no bound is a number.
struct ValueSpan {
    double low = 0;
    double high = 0;
};
std::optional<ValueSpan> spanOf(std::string_view field);

} // namespace velmora
