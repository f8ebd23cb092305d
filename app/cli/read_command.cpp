#include "app/cli/cli.h"
#include "app/cli/live_readings.h"
#include "app/cli/watch_platform.h"
#include "device/sim/replayed_readings.h"
#include "device/sim/simulated_instrument.h"
#include "device/sim/simulated_session.h"
#include "foundation/posix/sys_log.h"

#include <CLI/CLI.hpp>
#include <limits>
#include <memory>
#include <ostream>

namespace velmora::cli {

namespace {

// One session for every run, so what --simulate prints can be compared from run to run.
constexpr std::uint32_t simulationSeed = 1;

struct ReadOptions {
    std::string replayFile;
    PrintedReadings printed;
};

} // namespace

void addReadCommand(CLI::App& app, Context& context) {
    auto options = std::make_shared<ReadOptions>();
    auto* command = app.add_subcommand(
        "read", "Connect to the instrument and print each live reading as the window shows it");
    auto* simulate =
        command
            ->add_option("--simulate", options->replayFile,
                         "Read from the simulated instrument instead of the USB one; with FILE, "
                         "replay its readings (one R.I. a line, from the top again at the end)")
            ->expected(0, 1)
            ->type_name("[FILE]");
    command
        ->add_option("--count", options->printed.count,
                     "Stop after N readings (default: at Ctrl-C)")
        ->type_name("N")
        ->check(CLI::Range(1, std::numeric_limits<int>::max()));
    command->add_flag("--steady", options->printed.steady,
                      "Print one reading each time the reading settles at a new value (held "
                      "within 0.001 for a second), not every reading");

    command->callback([&context, options, simulate] {
        SysLog log;
        bool accessDenied = false;
        HIDDeviceConnector::ManagerFactory managers;
        if (simulate->count() == 0) {
            managers = watchPlatform().instrument(log, [&accessDenied] { accessDenied = true; });
        } else if (options->replayFile.empty()) {
            managers = sim::simulatedInstrumentFactory(
                std::make_shared<sim::SimulatedSession>(simulationSeed));
        } else {
            std::vector<std::uint16_t> readings;
            std::string error;
            if (!sim::loadReadingFile(options->replayFile, readings, error)) {
                *context.err << "velmora-cli: " << error << '\n';
                context.exitCode = exitAlert;
                return;
            }
            managers = sim::simulatedInstrumentFactory(
                std::make_shared<sim::ReplayedReadings>(std::move(readings)));
        }

        const FixedLocale locale = context.locale();
        options->printed.json = context.json;
        switch (printLiveReadings(managers, log, locale, options->printed, *context.out)) {
        case SessionEnd::NoInstrument:
            // Not an alert: the window shows none when Connect finds no instrument, its panel
            // just stays Disconnected. A script still has to learn that no reading will come.
            // A refused device was already explained by the HID layer.
            if (!accessDenied) {
                *context.err << "velmora-cli: no instrument connected: plug the Velmora "
                                "refractometer in over USB, or try --simulate\n";
            }
            context.exitCode = exitAlert;
            break;
        case SessionEnd::Unplugged:
            *context.err << "velmora-cli: the instrument was unplugged\n";
            context.exitCode = exitAlert;
            break;
        case SessionEnd::Stopped:
            break;
        }
    });
}

} // namespace velmora::cli
