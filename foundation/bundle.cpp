#include "foundation/bundle.h"

#include <cstdlib>
#include <system_error>

namespace velmora {

Bundle::Bundle(std::vector<std::filesystem::path> searchPath)
    : searchPath_(std::move(searchPath)) {}

Bundle Bundle::forExecutable(const std::optional<std::filesystem::path>& executable) {
    std::vector<std::filesystem::path> path;
    if (const char* env = std::getenv("VELMORA_RESOURCES"); env != nullptr && *env != '\0') {
        path.emplace_back(env);
    }
    if (executable) {
        const auto dir = executable->parent_path();
        path.push_back(dir.parent_path() / "share" / "velmora");
        path.push_back(dir / "resources");
    }
    return Bundle(std::move(path));
}

std::optional<std::filesystem::path> Bundle::pathForResource(const std::string& name,
                                                             const std::string& type) const {
    const std::string file = type.empty() ? name : name + "." + type;
    for (const auto& dir : searchPath_) {
        std::error_code ec;
        const auto candidate = dir / file;
        if (std::filesystem::is_regular_file(candidate, ec)) {
            return candidate;
        }
    }
    return std::nullopt;
}

} // namespace velmora
