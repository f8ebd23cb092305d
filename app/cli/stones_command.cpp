#include "app/cli/cli.h"
#include "app/cli/output.h"
#include "data/reference_loader.h"

#include <CLI/CLI.hpp>
#include <ostream>

namespace velmora::cli {

void addStonesCommand(CLI::App& app, Context& context) {
    auto* command = app.add_subcommand("stones", "Print the reference set in load order: "
                                                 "StoneID<TAB>StoneName a line");
    command->callback([&context] {
        StoneList arr_stones;
        StoneList arr_stonesGlobal;
        const ReferenceLoad load =
            loadReferenceSet(context.referencePath(), *context.err, arr_stones, arr_stonesGlobal);
        if (!load || reportedNoStone(context, load)) {
            context.exitCode = exitAlert;
            return;
        }
        for (const auto& stone : arr_stonesGlobal) {
            printRecord(*context.out, context.json,
                        {{"StoneID", stone.StoneID}, {"StoneName", stone.StoneName}});
        }
        context.out->flush();
    });
}

} // namespace velmora::cli
