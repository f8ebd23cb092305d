#include "data/reference_file.h"

#include "foundation/text.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <numeric>
#include <optional>
#include <string>

namespace velmora {

namespace {

// Where the cells of a quote-free line end: the positions of its commas, and then its length.
// Nothing when the line does not cut into exactly 28 cells.
using CellEnds = std::array<std::size_t, Stones::fieldCount>;

std::optional<CellEnds> cutCells(std::string_view line) {
    CellEnds ends{};
    std::size_t cell = 0;
    for (std::size_t i = line.find(','); i != std::string_view::npos; i = line.find(',', i + 1)) {
        if (cell == Stones::fieldCount - 1) {
            return std::nullopt; // a 29th cell
        }
        ends[cell++] = i;
    }
    if (cell != Stones::fieldCount - 1) {
        return std::nullopt;
    }
    ends[cell] = line.size();
    return ends;
}

std::size_t cellStart(const CellEnds& ends, std::size_t i) {
    return i == 0 ? 0 : ends[i - 1] + 1;
}

std::string_view cell(std::string_view line, const CellEnds& ends, std::size_t i) {
    const std::size_t start = cellStart(ends, i);
    return line.substr(start, ends[i] - start);
}

// The line without its double quotes; scratch holds the text when there were any.
std::string_view withoutQuotes(std::string_view line, std::string& scratch) {
    if (line.find('"') == std::string_view::npos) {
        return line;
    }
    scratch.clear();
    std::copy_if(line.begin(), line.end(), std::back_inserter(scratch),
                 [](char c) { return c != '"'; });
    return scratch;
}

constexpr std::size_t newColumn = Stones::columnOf(&Stones::NEW);

struct Row {
    std::string_view line; // without quotes; in the text itself unless quoted
    bool quoted;
    CellEnds ends;
};

// Calls row for every line after the header that cuts into 28 cells; says whether the first line
// is one too, and whether nothing but empty lines follows it.
struct Shape {
    bool headerIsARow = false;
    bool onlyHeader = true;
};

Shape forEachRow(std::string_view text, const std::function<bool(const Row&)>& row) {
    Shape shape;
    std::string scratch;
    bool header = true;
    bool more = true;
    text::forEachLine(text, [&](std::string_view original) {
        if ((original.empty() && !header) || !more) {
            return; // the empty line between CR and LF, at the very least
        }
        const std::string_view line = withoutQuotes(original, scratch);
        const auto ends = cutCells(line);
        if (header) {
            header = false;
            shape.headerIsARow = ends.has_value();
            return;
        }
        shape.onlyHeader = shape.onlyHeader && line.empty();
        if (ends) {
            more = row({line, line.data() == scratch.data(), *ends});
        }
    });
    return shape;
}

bool included(const Row& row) {
    return cell(row.line, row.ends, newColumn) == "1";
}

// A loaded table: its stones' cells lie in its text.
struct Loaded {
    std::string text;
    std::vector<Stones> stones;
};

void fillFields(const Row& row, char* text, std::string_view textView, Stones& stone) {
    for (std::size_t i = 0; i < Stones::fieldCount; ++i) {
        const std::string_view c = cell(row.line, row.ends, i);
        if (row.quoted || c.size() > Cell::longestInPlace) {
            stone.field(i) = c;
        } else {
            // The byte before every cell of a row is the comma or line end that led it: the header
            // line comes first, so a row never starts the text.
            const auto lead = static_cast<std::size_t>(c.data() - textView.data()) - 1;
            stone.field(i) = Cell::inPlace(text + lead, c.size());
        }
    }
}

// Moves stones[order[k]] to k for every k, in place.
void permute(std::vector<Stones>& stones, std::vector<std::uint32_t>& order) {
    for (std::size_t i = 0; i < order.size(); ++i) {
        if (order[i] == i) {
            continue;
        }
        Stones held = std::move(stones[i]);
        std::size_t j = i;
        while (order[j] != i) {
            const std::size_t from = order[j];
            stones[j] = std::move(stones[from]);
            order[j] = static_cast<std::uint32_t>(j);
            j = from;
        }
        stones[j] = std::move(held);
        order[j] = static_cast<std::uint32_t>(j);
    }
}

} // namespace

ReferenceTable parseReferenceTable(std::string text) {
    // The rows are counted and checked first, so that the records are made once, in place, and
    // in a vector of the exact size; only their order is sorted, and then they are moved once.
    auto loaded = std::make_shared<Loaded>();
    loaded->text = std::move(text);
    const std::string_view all = loaded->text;
    ReferenceTable table;
    std::size_t kept = 0;
    const Shape shape = forEachRow(all, [&](const Row& row) {
        ++table.rows;
        if (included(row) && ++kept > referenceStoneLimit) {
            table.tooManyStones = true;
        }
        return !table.tooManyStones;
    });
    table.headerAlone = shape.headerIsARow && shape.onlyHeader;
    if (table.tooManyStones) {
        return table;
    }
    std::vector<Stones>& stones = loaded->stones;
    stones.reserve(kept);
    forEachRow(all, [&](const Row& row) {
        if (included(row)) {
            fillFields(row, loaded->text.data(), all, stones.emplace_back());
        }
        return true;
    });
    std::deque<std::string> normalized;
    std::vector<std::string_view> keys; // the names in normal form
    keys.reserve(stones.size());
    bool inOrder = true;
    for (const Stones& stone : stones) {
        std::string_view key = stone.StoneName;
        if (!text::isAscii(key)) {
            if (std::string n = text::normalized(key); n != key) {
                key = normalized.emplace_back(std::move(n));
            }
        }
        inOrder = inOrder && (keys.empty() || !(key < keys.back()));
        keys.push_back(key);
    }
    if (!inOrder) {
        std::vector<std::uint32_t> order(stones.size());
        std::iota(order.begin(), order.end(), 0);
        std::stable_sort(order.begin(), order.end(),
                         [&keys](std::uint32_t a, std::uint32_t b) { return keys[a] < keys[b]; });
        permute(stones, order);
    }
    table.stones = StoneList(std::shared_ptr<const std::vector<Stones>>(loaded, &loaded->stones));
    return table;
}

StoneList parseReferenceText(std::string_view text) {
    return parseReferenceTable(std::string(text)).stones;
}

} // namespace velmora
