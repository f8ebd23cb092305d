#pragma once

// What the rank and records commands share: the readings as typed, read as the window reads its
// entries, and the candidates named as the results list names them.

#include "app/cli/cli.h"
#include "search/ranking.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace velmora::cli {

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

// The decimal separator entries are typed with.
std::string separatorOf(const Context& context);
// Checks the entries and reads them as the window does. When they cannot be used: the exit
// status, with the reason on standard error after the command's name.
std::optional<int> readEntries(const Context& context, const RankOptions& options,
                               const std::string& command, RankingInputs& inputs);
// The catalogue's colour names, for --color.
std::vector<std::string> colorNames();

// The reference stone's number as the results list shows it, for the candidate at row.
std::string candidateNumber(const Candidate& candidate, std::size_t row);
// The candidate's name, with the varieties of a species: "Quartz: Amethyst, Citrine".
std::string candidateName(const Candidate& candidate);

} // namespace velmora::cli
