#include "app/cli/cli.h"
#include "app/cli/headless_window.h"
#include "app/cli/output.h"
#include "foundation/printable.h"
#include "foundation/text.h"

#include <CLI/CLI.hpp>
#include <memory>
#include <ostream>

namespace velmora::cli {
namespace {

// The first item of the stone pop-up bearing the name, or none.
int itemNamed(const PopUpButton& popUp, const std::string& name) {
    const auto& titles = popUp.itemTitles();
    for (std::size_t i = 0; i < titles.size(); ++i) {
        if (text::equals(titles[i], name)) {
            return static_cast<int>(i);
        }
    }
    return PopUpButton::noSelection;
}

// The dictionary tab lists the whole reference set; picking the name in the stone pop-up shows
// its first stone.
int show(const Context& context, const std::string& name) {
    HeadlessWindow headless(context);
    MainWindow& w = headless.window;
    if (!headless.perform([&] { w.bvtn_dictionary.performClick(); })) {
        return exitAlert;
    }
    const int item = itemNamed(w.btn_stonesList, name);
    if (item == PopUpButton::noSelection) {
        *context.err << "show: no stone named \"" << text::printable(name)
                     << "\" in the reference set\n";
        return exitUsage;
    }
    if (!headless.perform([&] { w.btn_stonesList.pickItem(item); })) {
        return exitAlert;
    }
    // In the order the detail panel fills them.
    const std::pair<const char*, const std::string&> detail[] = {
        {"txt_commonSource", w.txt_commonSource.text()},
        {"txt_otherProduct", w.txt_otherProduct.text()},
        {"txt_otherInformation", w.txt_otherInformation.text()},
        {"txt_stroneFamily", w.txt_stroneFamily.text()},
        {"txt_bierfence", w.txt_bierfence.text()},
        {"txt_hardness", w.txt_hardness.text()},
        {"txt_RI", w.txt_RI.text()},
        {"txt_sg", w.txt_sg.text()},
    };
    for (const auto& [element, shown] : detail) {
        printRecord(*context.out, context.json, {{"element", element}, {"text", shown}});
    }
    context.out->flush();
    return exitSuccess;
}

} // namespace

void addShowCommand(CLI::App& app, Context& context) {
    auto name = std::make_shared<std::string>();
    auto* command = app.add_subcommand(
        "show", "Print the detail panel of the first stone of that name: ELEMENT<TAB>TEXT a line");
    command->add_option("NAME", *name, "The stone's name, as listed")->required();
    command->callback([&context, name] { context.exitCode = show(context, *name); });
}

} // namespace velmora::cli
