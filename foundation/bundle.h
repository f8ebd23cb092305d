#pragma once

// Where the application's resources are: the reference file, the tutorial, the data model.

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace velmora {

class Bundle {
public:
    // Looks in the given folders, in order.
    explicit Bundle(std::vector<std::filesystem::path> searchPath);

    // $VELMORA_RESOURCES when set, then <executable dir>/../share/velmora, then
    // <executable dir>/resources: the same program finds its files installed or in the build tree.
    static Bundle forExecutable(const std::optional<std::filesystem::path>& executable);

    // The running program's: the platform library defines it (foundation/posix/), since only
    // the system knows where the program is.
    static const Bundle& main();

    // The first existing file "name.type" along the search path.
    std::optional<std::filesystem::path> pathForResource(const std::string& name,
                                                         const std::string& type) const;

    const std::vector<std::filesystem::path>& searchPath() const { return searchPath_; }

private:
    std::vector<std::filesystem::path> searchPath_;
};

} // namespace velmora
