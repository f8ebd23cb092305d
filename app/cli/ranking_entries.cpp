#include "app/cli/ranking_entries.h"

#include "data/color_catalogue.h"
#include "foundation/c_number.h"
#include "foundation/text.h"
#include "search/hydrostatic.h"
#include "search/number_entry.h"
#include "ui/stone_display.h"

#include <ostream>

namespace velmora::cli {

std::string separatorOf(const Context& context) {
    std::string separator = context.locale().decimalSeparator();
    return separator.empty() ? "." : separator;
}

namespace {

// A value the user gave that cannot be used: a usage error.
struct BadValue {
    std::string message;
};

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

} // namespace

std::optional<int> readEntries(const Context& context, const RankOptions& options,
                               const std::string& command, RankingInputs& inputs) {
    if (const auto missing = missingEntry(options)) {
        *context.err << *missing << '\n';
        return exitAlert;
    }
    try {
        inputs = inputsOf(options, separatorOf(context));
    } catch (const BadValue& bad) {
        *context.err << command << ": " << bad.message << '\n';
        return exitUsage;
    }
    return std::nullopt;
}

std::vector<std::string> colorNames() {
    std::vector<std::string> names;
    for (const Color& entry : colorCatalogue()) {
        names.push_back(entry.name);
    }
    return names;
}

std::string candidateNumber(const Candidate& candidate, std::size_t row) {
    return stoneNumberText(candidate.lead().stone->StoneID, static_cast<int>(row));
}

std::string candidateName(const Candidate& candidate) {
    std::string name(candidate.name);
    if (candidate.members.size() > 1) {
        std::string varieties;
        for (const auto& m : candidate.members) {
            varieties += (varieties.empty() ? "" : ", ") + m.stone->StoneName;
        }
        name += ": " + varieties;
    }
    return name;
}

} // namespace velmora::cli
