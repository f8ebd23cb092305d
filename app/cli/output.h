#pragma once

// One printed record: its fields joined by TAB in text mode, each with its control characters
// written out, an object in JSON mode.

#include <iosfwd>
#include <string>
#include <utility>
#include <vector>

namespace velmora::cli {

using Fields = std::vector<std::pair<std::string, std::string>>;

void printRecord(std::ostream& out, bool json, const Fields& fields);

} // namespace velmora::cli
