#pragma once

// records report: the report's painter, loaded as a module (records/qt/report_module.h) only
// when a report is written, so the other commands never load Qt.

#include "records/stone_record.h"

#include <filesystem>
#include <optional>
#include <span>
#include <string>

namespace velmora::cli {

// What went wrong, if anything.
std::optional<std::string> writeReportPdf(std::span<const StoneRecord> records,
                                          const std::filesystem::path& file,
                                          const std::string& decimalSeparator);

} // namespace velmora::cli
