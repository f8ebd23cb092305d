#pragma once

// The layering as rules over one include at a time. The layers, bottom up: foundation; data and,
// beside it, device; search; ui; app. A folder may include its own layer and those below it. The
// logic includes only ISO C++ and ICU; the platform lives in adapter subfolders named after what
// they wrap (app/cli is the command line's), which may include any folder of their layer or below.

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace velmora::test {

struct Include {
    // The path from the source root for a project file; else the name as written.
    std::string name;
    bool inTree = false;
};

// The layers' folders, bottom up.
const std::vector<std::string>& layerFolders();

// Why file (a path from the source root) may not include it; nothing when it may.
std::optional<std::string> violation(const std::string& file, const Include& include);

// The include written as name in file, as the compiler finds it in the tree: beside the file
// first, then from the root; or, outside the tree, as written.
Include resolve(const std::filesystem::path& root, const std::string& file, const std::string& name,
                bool quoted);

} // namespace velmora::test
