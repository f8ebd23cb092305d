#pragma once

// The reference file's format: the first line is a header; every other line whose double quotes
// are removed and which then cuts at its commas into exactly 28 cells is one stone. Nothing is
// quoted or escaped: a comma always separates cells, and writers put "^" where they mean a comma.

#include "data/stone_list.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace velmora {

// The reference set held in a whole file's text: the rows whose NEW cell is "1", in
// ascending order of StoneName (scalar values after normalization, case-sensitive); equal names
// keep their file order.
StoneList parseReferenceText(std::string_view text);

// The most stones a reference table may hold: some hundreds of times the shipped table. Each
// stone takes a record of 28 cells whatever its cells hold, so it is the count of stones, more
// than the file's size, that bounds the memory a table takes.
inline constexpr std::size_t referenceStoneLimit = 200000;

struct ReferenceTable {
    StoneList stones;           // the reference set, as parseReferenceText gives it
    std::size_t rows = 0;       // lines after the header that cut into 28 cells, whatever their NEW
    bool headerAlone = false;   // a 28-cell header line and nothing after it but empty lines
    bool tooManyStones = false; // more than referenceStoneLimit: stones stays empty
};

// The reference set and what the text held besides, to tell a table with no stone marked for
// inclusion from a file that is no table at all. The stones keep the text, and their cells lie in
// it.
ReferenceTable parseReferenceTable(std::string text);

} // namespace velmora
