#include "app/cli/cli.h"
#include "app/cli/headless_window.h"
#include "app/cli/output.h"
#include "data/color_catalogue.h"

#include <CLI/CLI.hpp>
#include <memory>
#include <ostream>

namespace velmora::cli {
namespace {

struct IdentifyOptions {
    std::optional<std::string> ri;
    std::optional<std::string> sg;
    std::optional<std::string> hardness;
    std::optional<std::string> color;
    std::optional<std::string> name;
};

std::vector<std::string> colorNames() {
    std::vector<std::string> names;
    for (const Color& entry : colorCatalogue()) {
        names.push_back(entry.name);
    }
    return names;
}

// The dictionary tab worked by hand: tick the boxes asked for, type each value and leave its
// entry (so it is checked as typed text is; an empty value is typed as nothing at all), pick the
// colour, press Search. The first alert
// ends the command.
int identify(const Context& context, const IdentifyOptions& options) {
    HeadlessWindow headless(context);
    MainWindow& w = headless.window;
    if (!headless.perform([&] { w.bvtn_dictionary.performClick(); })) {
        return exitAlert;
    }
    const struct {
        const std::optional<std::string>& value;
        Button& box;
        TextField& entry;
    } entries[] = {
        {options.ri, w.check_RI, w.txt_leftRIReading},
        {options.sg, w.check_sg, w.txt_leftSG},
        {options.hardness, w.check_hardness, w.txt_leftHardness},
        {options.name, w.check_Name, w.txt_left_name},
    };
    for (const auto& entry : entries) {
        if (!entry.value) {
            continue;
        }
        // An empty value ticks the box and types nothing, so the search's own check for an
        // empty entry speaks rather than the check of typed text.
        const bool entered = headless.perform([&] { entry.box.performClick(); }) &&
                             (entry.value->empty() || headless.perform([&] {
                                 w.makeFirstResponder(&entry.entry);
                                 w.insertText(*entry.value);
                                 w.makeFirstResponder(nullptr);
                             }));
        if (!entered) {
            return exitAlert;
        }
    }
    if (options.color) {
        const bool picked =
            headless.perform([&] { w.check_color.performClick(); }) && headless.perform([&] {
                w.btn_color.pickItem(w.btn_color.indexOfItem(*options.color));
            });
        if (!picked) {
            return exitAlert;
        }
    }
    if (!headless.perform([&] { w.btn_search.performClick(); })) {
        return exitAlert;
    }
    for (int row = 0; row < w.tableView.numberOfRows(); ++row) {
        printRecord(*context.out, context.json,
                    {{"number", cellText(w.tableView, 0, row).value_or("")},
                     {"name", cellText(w.tableView, 1, row).value_or("")}});
    }
    context.out->flush();
    return exitSuccess;
}

} // namespace

void addIdentifyCommand(CLI::App& app, Context& context) {
    auto options = std::make_shared<IdentifyOptions>();
    auto* command = app.add_subcommand(
        "identify", "Search the reference set as the dictionary tab does, with exactly the "
                    "criteria given, and print the listed stones: number<TAB>name a line");
    command->add_option("--ri", options->ri, "Refractive index, as typed")->type_name("X");
    command->add_option("--sg", options->sg, "Specific gravity, as typed")->type_name("X");
    command->add_option("--hardness", options->hardness, "Hardness, as typed")->type_name("X");
    command->add_option("--color", options->color, "A colour of the catalogue")
        ->type_name("NAME")
        ->check(CLI::IsMember(colorNames()));
    command->add_option("--name", options->name, "Part of the stone's name")->type_name("TEXT");
    command->callback([&context, options] { context.exitCode = identify(context, *options); });
}

} // namespace velmora::cli
