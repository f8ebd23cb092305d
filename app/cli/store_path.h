#pragma once

// The application's own store, where the window keeps it: the folder Qt names the application's
// data location on this system ($XDG_DATA_HOME/Velmora, else ~/.local/share/Velmora), computed
// here without Qt.

#include <filesystem>

namespace velmora::cli {

std::filesystem::path applicationStorePath();

} // namespace velmora::cli
