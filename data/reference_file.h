#pragma once

// The reference file's format: the first line is a header; every other line whose double quotes
// are removed and which then cuts at its commas into exactly 28 cells is one stone. Nothing is
// quoted or escaped: a comma always separates cells, and writers put "^" where they mean a comma.

#include "data/stones.h"

#include <cstddef>
#include <string_view>
#include <vector>

namespace velmora {

// The reference set held in a whole file's text: the rows whose NEW cell is "1", in
// ascending order of StoneName (scalar values after normalization, case-sensitive); equal names
// keep their file order.
std::vector<Stones> parseReferenceText(std::string_view text);

struct ReferenceTable {
    std::vector<Stones> stones; // the reference set, as parseReferenceText gives it
    std::size_t rows = 0;       // lines after the header that cut into 28 cells, whatever their NEW
    bool headerAlone = false;   // a 28-cell header line and nothing after it but empty lines
};

// The reference set and what the text held besides, to tell a table with no stone marked for
// inclusion from a file that is no table at all.
ReferenceTable parseReferenceTable(std::string_view text);

} // namespace velmora
