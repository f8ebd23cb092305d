#include "app/cli/cli.h"
#include "app/cli/ranking_entries.h"
#include "data/reference_loader.h"
#include "foundation/locale.h"
#include "foundation/printable.h"
#include "foundation/text.h"
#include "search/deviation_text.h"
#include "search/ranking.h"
#include "ui/stone_display.h"

#include <CLI/CLI.hpp>
#include <cmath>
#include <memory>
#include <nlohmann/json.hpp>
#include <ostream>

namespace velmora::cli {
namespace {

void print(const Context& context, const Ranking& ranking, const RankingInputs& in,
           const std::string& sep, int limit) {
    static constexpr const char* keys[propertyCount] = {"ri", "birefringence", "sg", "hardness",
                                                        "color"};
    const auto shown = std::min<std::size_t>(ranking.candidates.size(), limit);
    for (std::size_t i = 0; i < shown; ++i) {
        const Candidate& c = ranking.candidates[i];
        const RankedStone& lead = c.lead();
        const std::string number = candidateNumber(c, i);
        const std::string name = candidateName(c);
        const std::string deviations =
            deviationText(lead, in.overTheLimit, !ranking.anyWithinTolerance, sep);
        if (!context.json) {
            *context.out << text::printable(number) << '\t' << text::printable(name) << '\t'
                         << lead.fit << "%\t" << deviations << '\n';
            continue;
        }
        nlohmann::ordered_json line = {
            {"number", number}, {"name", name}, {"fit", lead.fit}, {"deviations", deviations}};
        nlohmann::ordered_json off = nlohmann::ordered_json::object();
        for (std::size_t p = 0; p < propertyCount; ++p) {
            if (lead.deviations[p]) {
                // One decimal finer than shown: 0.07, not 0.07000000000000006.
                off[keys[p]] = std::round(lead.deviations[p]->off * 1e4) / 1e4;
            }
        }
        line["off"] = off;
        line["withinTolerance"] = lead.withinTolerance;
        nlohmann::ordered_json members = nlohmann::ordered_json::array();
        for (const auto& m : c.members) {
            members.push_back({{"number", stoneNumberText(m.stone->StoneID, static_cast<int>(i))},
                               {"name", m.stone->StoneName}});
        }
        line["stones"] = members;
        *context.out << line.dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace)
                     << '\n';
    }
    context.out->flush();
}

int rank(const Context& context, const RankOptions& options) {
    RankingInputs inputs;
    if (const auto refused = readEntries(context, options, "rank", inputs)) {
        return *refused;
    }
    const std::string sep = separatorOf(context);
    StoneList arr_stones;
    StoneList arr_stonesGlobal;
    const ReferenceLoad load =
        loadReferenceSet(context.referencePath(), *context.err, arr_stones, arr_stonesGlobal);
    if (!load || reportedNoStone(context, load)) {
        return exitAlert;
    }
    print(context, rankStones(arr_stonesGlobal, inputs), inputs, sep, options.limit);
    return exitSuccess;
}

} // namespace

void addRankCommand(CLI::App& app, Context& context) {
    auto o = std::make_shared<RankOptions>();
    auto* command = app.add_subcommand(
        "rank", "Rank the reference set by how well it fits the readings, within the instruments' "
                "tolerances, best first: number<TAB>name<TAB>fit<TAB>deviations a line");
    auto* ri =
        command->add_option("--ri", o->ri, "R.I. reading; the low one of two")->type_name("X");
    auto* riHigh = command->add_option("--ri-high", o->riHigh, "The high R.I. reading")
                       ->type_name("Y")
                       ->needs(ri);
    command->add_flag("--otl", o->otl, "Over the limit: no shadow edge below 1.810")
        ->excludes(ri)
        ->excludes(riHigh);
    auto* sg = command->add_option("--sg", o->sg, "Specific gravity")->type_name("X");
    command
        ->add_option("--weights", o->weights,
                     "S.G. by hydrostatic weighing: weight in air and in water")
        ->type_name("AIR,WATER")
        ->excludes(sg);
    command->add_option("--hardness", o->hardness, "Mohs hardness")->type_name("X");
    command->add_option("--color", o->color, "A colour of the catalogue, any case")
        ->type_name("NAME")
        ->transform(CLI::IsMember(colorNames(), CLI::ignore_case));
    command->add_option("--name", o->name, "Part of the name, without case or accents")
        ->type_name("TEXT");
    command->add_option("--limit", o->limit, "How many candidates to print")
        ->type_name("N")
        ->check(CLI::Range(1, 100000))
        ->capture_default_str();
    command->callback([&context, o] { context.exitCode = rank(context, *o); });
}

} // namespace velmora::cli
