#include "app/cli/report_writer.h"

#include "records/qt/report_module.h"

#include <dlfcn.h>
#include <system_error>

namespace velmora::cli {
namespace {

// Where the module is installed, <executable dir>/../lib/velmora, then beside the executable,
// where the build puts it; the window's loader looks in the same two places.
report_module::WritePdf loadWritePdf(std::string& error) {
    std::error_code failed;
    const auto executableDir =
        std::filesystem::read_symlink("/proc/self/exe", failed).parent_path();
    const std::string file = std::string(report_module::name) + ".so";
    for (const auto& dir : {executableDir / VELMORA_MODULE_DIR, executableDir}) {
        void* module = dlopen((dir / file).c_str(), RTLD_NOW | RTLD_LOCAL);
        if (!module) {
            error = dlerror();
            continue;
        }
        if (void* function = dlsym(module, report_module::writePdf)) {
            return reinterpret_cast<report_module::WritePdf>(function);
        }
        error = (dir / file).string() + " has no function " + report_module::writePdf;
        return nullptr;
    }
    return nullptr;
}

} // namespace

std::optional<std::string> writeReportPdf(std::span<const StoneRecord> records,
                                          const std::filesystem::path& file,
                                          const std::string& decimalSeparator) {
    std::string error;
    const auto write = loadWritePdf(error);
    if (!write) {
        return "the report writer cannot be loaded: " + error;
    }
    if (!write(records.data(), records.size(), file, decimalSeparator, error)) {
        return error;
    }
    return std::nullopt;
}

} // namespace velmora::cli
