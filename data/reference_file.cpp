#include "data/reference_file.h"

#include "foundation/text.h"

#include <algorithm>
#include <array>
#include <deque>
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

std::string_view cell(std::string_view line, const CellEnds& ends, std::size_t i) {
    const std::size_t start = i == 0 ? 0 : ends[i - 1] + 1;
    return line.substr(start, ends[i] - start);
}

void fillFields(std::string_view line, const CellEnds& ends, Stones& stone) {
    for (std::size_t i = 0; i < Stones::fieldCount; ++i) {
        stone.field(i).assign(cell(line, ends, i));
    }
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

constexpr std::size_t nameColumn = Stones::columnOf(&Stones::StoneName);
constexpr std::size_t newColumn = Stones::columnOf(&Stones::NEW);

} // namespace

ReferenceTable parseReferenceTable(std::string_view text) {
    // The rows are chosen and put in name order as views into the text first, then built in their
    // final place: no record is built for a row that is dropped, and none is moved by the sort.
    // Cells are cut again when a record is built rather than remembered, which would take more
    // memory than the text itself.
    struct Row {
        std::string_view key; // the name in normal form
        std::string_view line;
    };
    std::deque<std::string> storage; // unquoted lines and normalized names the views point into
    std::vector<Row> rows;
    std::string scratch;
    bool inOrder = true;
    ReferenceTable table;
    bool header = true;
    bool headerIsARow = false;
    bool onlyHeader = true;
    text::forEachLine(text, [&](std::string_view original) {
        if (original.empty() && !header) {
            return; // the empty line between CR and LF, at the very least
        }
        if (table.tooManyStones) {
            return;
        }
        std::string_view line = withoutQuotes(original, scratch);
        const auto ends = cutCells(line);
        if (header) {
            header = false;
            headerIsARow = ends.has_value();
            return;
        }
        onlyHeader = onlyHeader && line.empty();
        if (!ends) {
            return;
        }
        ++table.rows;
        if (cell(line, *ends, newColumn) != "1") {
            return;
        }
        if (rows.size() == referenceStoneLimit) {
            table.tooManyStones = true;
            return;
        }
        if (line.data() == scratch.data()) {
            line = storage.emplace_back(scratch);
        }
        std::string_view key = cell(line, *ends, nameColumn);
        if (!text::isAscii(key)) {
            if (std::string n = text::normalized(key); n != key) {
                key = storage.emplace_back(std::move(n));
            }
        }
        inOrder = inOrder && (rows.empty() || !(key < rows.back().key));
        rows.push_back({key, line});
    });
    table.headerAlone = headerIsARow && onlyHeader;
    if (table.tooManyStones) {
        return table;
    }
    if (!inOrder) {
        std::stable_sort(rows.begin(), rows.end(),
                         [](const Row& a, const Row& b) { return a.key < b.key; });
    }
    table.stones.resize(rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        fillFields(rows[i].line, *cutCells(rows[i].line), table.stones[i]);
    }
    return table;
}

std::vector<Stones> parseReferenceText(std::string_view text) {
    return parseReferenceTable(text).stones;
}

} // namespace velmora
