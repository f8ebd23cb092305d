#pragma once

// Records as a CSV table a spreadsheet opens: RFC 4180 (a header line, CRLF line ends, every
// field quoted), UTF-8, numbers with "." whatever the user's locale, one record a line.

#include "records/stone_record.h"

#include <iosfwd>
#include <span>

namespace velmora {

void writeRecordsCsv(std::ostream& out, std::span<const StoneRecord> records);

// The shortest text that reads back as the same double, with "." as decimal point.
std::string cNumberText(double value);

} // namespace velmora
