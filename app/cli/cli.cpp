#include "app/cli/cli.h"

#include "data/reference_loader.h"
#include "foundation/bundle.h"
#include "foundation/posix/environment_locale.h"

#include <CLI/CLI.hpp>
#include <ostream>

namespace velmora::cli {

std::optional<std::filesystem::path> Context::referencePath() const {
    if (reference) {
        return std::filesystem::path(*reference);
    }
    return referenceFilePath(Bundle::main());
}

FixedLocale Context::locale() const {
    return decimalSeparator ? FixedLocale(*decimalSeparator) : environmentLocale();
}

bool reportedNoStone(const Context& context, const ReferenceLoad& load) {
    if (load.holdsNoStone.empty()) {
        return false;
    }
    *context.err << load.holdsNoStone << '\n';
    return true;
}

int run(int argc, const char* const* argv, std::ostream& out, std::ostream& err) {
    Context context;
    context.out = &out;
    context.err = &err;

    CLI::App app{"Velmora desktop on the command line: the reference set, identification and the "
                 "live reading, as the window shows them.",
                 "velmora-cli"};
    app.require_subcommand(1);
    // The common options may stand before or after the command's name.
    app.fallthrough();
    app.add_option("--reference", context.reference,
                   "Use this reference file instead of the bundled one")
        ->type_name("FILE");
    app.add_option("--decimal-separator", context.decimalSeparator,
                   "Decimal separator of entries and displays instead of the locale's")
        ->type_name("SEP");
    app.add_flag("--json", context.json, "Print JSON Lines instead of text");

    addStonesCommand(app, context);
    addWatchCommand(app, context);
    addIdentifyCommand(app, context);
    addShowCommand(app, context);
    addReadCommand(app, context);
    addRankCommand(app, context);
    addRecordsCommand(app, context);

    try {
        app.parse(argc, argv);
    } catch (const CLI::CallForHelp& e) {
        return app.exit(e, out, err);
    } catch (const CLI::CallForAllHelp& e) {
        return app.exit(e, out, err);
    } catch (const CLI::ParseError& e) {
        app.exit(e, out, err);
        return exitUsage;
    }
    return context.exitCode;
}

} // namespace velmora::cli
