#pragma once

// Records as a CSV table a spreadsheet opens: RFC 4180 (a header line, CRLF line ends, every
// field quoted), UTF-8, numbers with "." whatever the user's locale, one record a line.

#include "records/stone_record.h"

#include <iosfwd>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace velmora {

void writeRecordsCsv(std::ostream& out, std::span<const StoneRecord> records);

// The shortest text that reads back as the same double, with "." as decimal point.
std::string cNumberText(double value);
// The same, and nothing for nothing.
std::string cNumberText(const std::optional<double>& value);
// The values' texts parted by separator.
std::string cNumbersText(const std::vector<double>& values, std::string_view separator);

} // namespace velmora
