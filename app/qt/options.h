#pragma once

// The window application's command line. Qt's own options (-platform, -style, ...) are left for
// Qt to read.

#include <optional>
#include <string>

namespace velmora::qt {

struct Options {
    // Nothing: the USB instrument. Empty: the simulated instrument's session. Else a file of
    // readings that the simulated instrument replays.
    std::optional<std::string> simulate;
    std::optional<std::string> reference;
    bool verbose = false;
    bool measureStartup = false;
};

// Fills options from the command line. An exit status when the program is to stop here: after
// --help (0) or a usage error (2), both already printed.
std::optional<int> parseOptions(int argc, char** argv, Options& options);

} // namespace velmora::qt
