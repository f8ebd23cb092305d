#include "search/best_match_rows.h"

#include "foundation/text.h"
#include "search/deviation_text.h"
#include "search/ranking_table.h"

#include <algorithm>

namespace velmora {
namespace {

// Enough names to recognise the group at a glance; the record lists the rest.
constexpr std::size_t varietiesNamed = 4;

std::string secondLine(const Candidate& candidate) {
    if (candidate.members.size() == 1) {
        const std::string& family = candidate.lead().stone->StoneFamily;
        return family == candidate.name ? std::string{} : text::replaceAll(family, "^", ",");
    }
    std::string names;
    const std::size_t named = std::min(candidate.members.size(), varietiesNamed);
    for (std::size_t i = 0; i < named; ++i) {
        names += (i == 0 ? "" : ", ") + candidate.members[i].stone->StoneName;
    }
    if (const std::size_t more = candidate.members.size() - named; more > 0) {
        names += " and " + std::to_string(more) + " more";
    }
    return names;
}

} // namespace

std::vector<BestMatchRow> bestMatchRows(const Ranking& ranking, bool overTheLimit,
                                        std::string_view decimalSeparator, std::size_t limit) {
    std::vector<BestMatchRow> rows;
    for (const Candidate& candidate : ranking.candidates) {
        if (rows.size() == limit || (ranking.anyWithinTolerance && candidate.lead().fit == 0)) {
            break;
        }
        const RankedStone& lead = candidate.lead();
        std::string name(candidate.name);
        if (const std::string more = secondLine(candidate); !more.empty()) {
            name += "\n" + more;
        }
        std::string off =
            deviationText(lead, overTheLimit, !ranking.anyWithinTolerance, decimalSeparator);
        rows.push_back({lead.stone, std::to_string(lead.fit) + "%", std::move(name),
                        off.empty() ? "Fits every reading" : std::move(off), lead.withinTolerance});
    }
    return rows;
}

std::string bestMatchesNote(const Ranking& ranking) {
    if (ranking.candidates.empty()) {
        return "No stone of the table matches the name.";
    }
    if (!ranking.anyWithinTolerance) {
        return "Nothing fits within tolerance: the nearest stones, with how far each is off.";
    }
    return "Best first. A reading within the instrument's tolerance of a range fits it.";
}

RankedForm rankForm(const RankingTable& table, const RankingForm& form,
                    const DecimalSeparators& separators, std::size_t limit) {
    const RankingFormReading reading = readRankingForm(form, separators);
    if (!reading.inputs) {
        return {{}, reading.note};
    }
    const Ranking ranking = rankStones(table, *reading.inputs);
    return {
        bestMatchRows(ranking, reading.inputs->overTheLimit, separators.decimalSeparator, limit),
        bestMatchesNote(ranking)};
}

} // namespace velmora
