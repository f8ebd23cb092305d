#include "app/qt/module_report_output.h"

#include "app/qt/module_loader.h"
#include "records/qt/report_module.h"

namespace velmora::qt {

std::optional<std::string> ModuleReportOutput::writePdf(std::span<const StoneRecord> records,
                                                        const std::filesystem::path& file) {
    QString missing;
    const auto write = moduleFunction<report_module::WritePdf>(report_module::name,
                                                               report_module::writePdf, missing);
    if (!write) {
        return missing.toStdString();
    }
    std::string error;
    if (!write(records.data(), records.size(), file, decimalSeparator_, error)) {
        return error;
    }
    return std::nullopt;
}

std::optional<std::string> ModuleReportOutput::print(std::span<const StoneRecord> records) {
    QString missing;
    const auto print =
        moduleFunction<report_module::Print>(report_module::name, report_module::print, missing);
    if (!print) {
        return missing.toStdString();
    }
    std::string error;
    if (!print(records.data(), records.size(), decimalSeparator_, error)) {
        return error;
    }
    return std::nullopt;
}

} // namespace velmora::qt
