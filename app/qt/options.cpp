#include "app/qt/options.h"

#include <CLI/CLI.hpp>
#include <iostream>

namespace velmora::qt {

std::optional<int> parseOptions(int argc, char** argv, Options& options) {
    CLI::App app{"Velmora desktop: the live R.I. of the Velmora refractometer and the "
                 "identification of gemstones.",
                 "velmora"};
    app.allow_extras();
    std::string replayFile;
    auto* simulate =
        app.add_option("--simulate", replayFile,
                       "Use the simulated instrument instead of the USB one; with FILE, replay "
                       "its readings (one R.I. a line, from the top again at the end)")
            ->expected(0, 1)
            ->type_name("[FILE]");
    app.add_option("--reference", options.reference,
                   "Use this reference file instead of the bundled one")
        ->type_name("FILE");
    app.add_flag("--verbose", options.verbose,
                 "Write the system log's lines to standard error too");
    app.add_flag("--measure-startup", options.measureStartup,
                 "Print the time to the shown window and the memory then held, and quit");
    try {
        app.parse(argc, argv);
    } catch (const CLI::CallForHelp& e) {
        return app.exit(e);
    } catch (const CLI::ParseError& e) {
        app.exit(e);
        return 2;
    }
    // Qt's options have one dash (-platform offscreen); a double dash is a mistyped one of ours.
    for (const std::string& extra : app.remaining()) {
        if (extra.rfind("--", 0) == 0) {
            std::cerr << "velmora: unknown option " << extra
                      << "\nRun with --help for more information.\n";
            return 2;
        }
    }
    if (simulate->count() > 0) {
        options.simulate = replayFile;
    }
    return std::nullopt;
}

} // namespace velmora::qt
