#pragma once

// The report's output from its module (records/qt/report_module.h): nothing of Qt's printing is
// loaded until the first report.

#include "ui/records_services.h"

#include <string>

namespace velmora::qt {

class ModuleReportOutput final : public ReportOutput {
public:
    explicit ModuleReportOutput(std::string decimalSeparator)
        : decimalSeparator_(std::move(decimalSeparator)) {}

    std::optional<std::string> writePdf(std::span<const StoneRecord> records,
                                        const std::filesystem::path& file) override;
    std::optional<std::string> print(std::span<const StoneRecord> records) override;

private:
    std::string decimalSeparator_;
};

} // namespace velmora::qt
