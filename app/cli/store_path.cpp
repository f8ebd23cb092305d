#include "app/cli/store_path.h"

#include "app/app_delegate.h"

#include <cstdlib>
#include <string>

namespace velmora::cli {

std::filesystem::path applicationStorePath() {
    const char* dataHome = std::getenv("XDG_DATA_HOME");
    std::filesystem::path folder;
    if (dataHome != nullptr && *dataHome != '\0') {
        folder = dataHome;
    } else {
        const char* home = std::getenv("HOME");
        folder = std::filesystem::path(home != nullptr && *home != '\0' ? home : "/") / ".local" /
                 "share";
    }
    // The application's name, as the window gives it to Qt, names the folder.
    return folder / "Velmora" / (std::string(AppDelegate::containerName) + ".sqlite");
}

} // namespace velmora::cli
