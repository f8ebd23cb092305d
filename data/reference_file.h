#pragma once

// The reference file's format: the first line is a header; every other line whose double quotes
// are removed and which then cuts at its commas into exactly 28 cells is one stone. Nothing is
// quoted or escaped: a comma always separates cells, and writers put "^" where they mean a comma.

#include "data/stones.h"

#include <string_view>
#include <vector>

namespace velmora {

// The reference set held in a whole file's text: the rows whose NEW cell is "1", in
// ascending order of StoneName (scalar values after normalization, case-sensitive); equal names
// keep their file order.
std::vector<Stones> parseReferenceText(std::string_view text);

} // namespace velmora
