#pragma once

// The report's painter as a module of its own, loaded the first time a report is written or
// printed, so that neither the window's start-up nor the command line's other commands load Qt's
// painting and printing.

#include "records/stone_record.h"

#include <cstddef>
#include <filesystem>
#include <string>

namespace velmora::report_module {

inline constexpr const char* name = "velmora_report_writer";

// Writes one page a record to file; false, with why in error, when it cannot. Makes the
// application object it needs when there is none, without a display.
inline constexpr const char* writePdf = "velmora_writeReportPdf";
using WritePdf = bool (*)(const StoneRecord* records, std::size_t count,
                          const std::filesystem::path& file, const std::string& decimalSeparator,
                          std::string& error);

// Asks for a printer through the system's print dialog, then prints; a cancelled dialog is no
// failure. Needs the window's application object.
inline constexpr const char* print = "velmora_printReport";
using Print = bool (*)(const StoneRecord* records, std::size_t count,
                       const std::string& decimalSeparator, std::string& error);

} // namespace velmora::report_module
