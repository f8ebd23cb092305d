#include "app/cli/cli.h"
#include "data/color_catalogue.h"
#include "data/reference_loader.h"
#include "foundation/c_number.h"
#include "foundation/locale.h"
#include "foundation/printable.h"
#include "foundation/text.h"
#include "search/deviation_text.h"
#include "search/hydrostatic.h"
#include "search/number_entry.h"
#include "search/ranking.h"
#include "ui/stone_display.h"

#include <CLI/CLI.hpp>
#include <cmath>
#include <memory>
#include <nlohmann/json.hpp>
#include <ostream>

namespace velmora::cli {
namespace {

struct RankOptions {
    std::optional<std::string> ri;
    std::optional<std::string> riHigh;
    bool otl = false;
    std::optional<std::string> sg;
    std::optional<std::string> weights;
    std::optional<std::string> hardness;
    std::optional<std::string> color;
    std::optional<std::string> name;
    int limit = 10;
};

// A value the user gave that cannot be used: a usage error.
struct BadValue {
    std::string message;
};

std::string separatorOf(const Context& context) {
    std::string separator = context.locale().decimalSeparator();
    return separator.empty() ? "." : separator;
}

// Read as the window reads a numeric entry: digits and the decimal separator only.
Measured number(const std::string& option, const std::string& typed, const std::string& sep) {
    const std::string c = text::replaceAll(typed, sep, ".");
    const auto value = isNumberOnly(typed, sep) ? parseCNumber(c) : std::nullopt;
    if (!value) {
        throw BadValue{option + ": \"" + typed + "\" is not a number written with \"" + sep +
                       "\" as decimal separator"};
    }
    return {*value, precisionOf(c)};
}

void require(bool holds, const std::string& message) {
    if (!holds) {
        throw BadValue{message};
    }
}

// With the comma as decimal separator the two weights are parted by ";", as spreadsheets do.
Measured specificGravity(const std::string& typed, const std::string& sep) {
    const auto cut = typed.find(sep == "," ? ';' : ',');
    require(cut != std::string::npos, "--weights: give the weight in air and the weight in "
                                      "water, parted by \"" +
                                          std::string(sep == "," ? ";" : ",") + "\"");
    const HydrostaticResult result =
        specificGravityFromWeights(number("--weights", typed.substr(0, cut), sep),
                                   number("--weights", typed.substr(cut + 1), sep));
    require(result.sg.has_value(), "--weights: " + result.problem);
    return *result.sg;
}

RankingInputs inputsOf(const RankOptions& o, const std::string& sep) {
    RankingInputs in;
    in.overTheLimit = o.otl;
    if (o.ri) {
        in.ri = number("--ri", *o.ri, sep);
        require(in.ri->value >= 1, "--ri: a refractive index is 1 or more");
    }
    if (o.riHigh) {
        in.riHigh = number("--ri-high", *o.riHigh, sep);
        require(in.riHigh->value >= in.ri->value, "--ri-high: the high reading must not lie "
                                                  "below the --ri reading");
    }
    if (o.sg) {
        in.sg = number("--sg", *o.sg, sep);
        require(in.sg->value > 0, "--sg: a specific gravity is above zero");
    }
    if (o.weights) {
        in.sg = specificGravity(*o.weights, sep);
    }
    if (o.hardness) {
        in.hardness = number("--hardness", *o.hardness, sep);
        require(in.hardness->value >= 1 && in.hardness->value <= 10,
                "--hardness: Mohs hardness runs from 1 to 10");
    }
    in.color = o.color;
    in.name = o.name;
    return in;
}

// The window's presence checks: a criterion switched on with nothing typed.
std::optional<std::string> missingEntry(const RankOptions& o) {
    const std::pair<const std::optional<std::string>&, const char*> checks[] = {
        {o.ri, "Please enter R.I. value!"},           {o.riHigh, "Please enter R.I. value!"},
        {o.sg, "Please enter S.G. value!"},           {o.weights, "Please enter S.G. value!"},
        {o.hardness, "Please enter Hardness value!"}, {o.name, "Please enter name of stone!"},
    };
    for (const auto& [value, message] : checks) {
        if (value && value->empty()) {
            return message;
        }
    }
    return std::nullopt;
}

void print(const Context& context, const Ranking& ranking, const RankingInputs& in,
           const std::string& sep, int limit) {
    static constexpr const char* keys[propertyCount] = {"ri", "birefringence", "sg", "hardness",
                                                        "color"};
    const auto shown = std::min<std::size_t>(ranking.candidates.size(), limit);
    for (std::size_t i = 0; i < shown; ++i) {
        const Candidate& c = ranking.candidates[i];
        const RankedStone& lead = c.lead();
        const std::string number = stoneNumberText(lead.stone->StoneID, static_cast<int>(i));
        std::string name(c.name);
        if (c.members.size() > 1) {
            std::string varieties;
            for (const auto& m : c.members) {
                varieties += (varieties.empty() ? "" : ", ") + m.stone->StoneName;
            }
            name += ": " + varieties;
        }
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
    if (const auto missing = missingEntry(options)) {
        *context.err << *missing << '\n';
        return exitAlert;
    }
    const std::string sep = separatorOf(context);
    RankingInputs inputs;
    try {
        inputs = inputsOf(options, sep);
    } catch (const BadValue& bad) {
        *context.err << "rank: " << bad.message << '\n';
        return exitUsage;
    }
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

std::vector<std::string> colorNames() {
    std::vector<std::string> names;
    for (const Color& entry : colorCatalogue()) {
        names.push_back(entry.name);
    }
    return names;
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
