#pragma once

// velmora-cli: the window's logic driven from the command line. Output is plain text, a record a
// line with TAB between fields, or JSON Lines with --json.
//
// Exit status: 0 success; 1 the logic raised an alert (its texts on standard error) or the
// reference file could not be read; 2 a usage error.

#include "foundation/locale.h"

#include <filesystem>
#include <iosfwd>
#include <optional>
#include <string>

namespace CLI {
class App;
}

namespace velmora {
struct ReferenceLoad;
}

namespace velmora::cli {

inline constexpr int exitSuccess = 0;
inline constexpr int exitAlert = 1;
inline constexpr int exitUsage = 2;

// The options every command accepts, and where its output goes.
struct Context {
    std::optional<std::string> reference;        // --reference FILE
    std::optional<std::string> decimalSeparator; // --decimal-separator SEP
    bool json = false;                           // --json
    std::ostream* out = nullptr;
    std::ostream* err = nullptr;
    int exitCode = exitSuccess;

    // The file given with --reference, else the bundled reference file (if any).
    std::optional<std::filesystem::path> referencePath() const;
    // The number conventions given with --decimal-separator, else the environment's.
    FixedLocale locale() const;
};

// Says on standard error that the reference file held no stone, if so; true when it did.
bool reportedNoStone(const Context& context, const ReferenceLoad& load);

// Each command adds itself to the app; its callback sets context.exitCode.
void addStonesCommand(CLI::App& app, Context& context);
void addWatchCommand(CLI::App& app, Context& context);
void addIdentifyCommand(CLI::App& app, Context& context);
void addShowCommand(CLI::App& app, Context& context);
void addReadCommand(CLI::App& app, Context& context);
void addRankCommand(CLI::App& app, Context& context);
void addRecordsCommand(CLI::App& app, Context& context);

int run(int argc, const char* const* argv, std::ostream& out, std::ostream& err);

} // namespace velmora::cli
