#pragma once

// The steps of the Best matches view's ranking: the form read as the ranking's inputs, and the
// ranking turned into the rows the view shows.

#include "search/ranking.h"
#include "search/ranking_form.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velmora {

struct RankingFormReading {
    // Nothing when no criterion is given, or when one cannot be used (then the note says why).
    std::optional<RankingInputs> inputs;
    std::string note;
};

// An empty entry is a criterion not given yet, not an error. The two R.I. readings may come in
// either order: turning a stone on the prism gives them as they come.
RankingFormReading readRankingForm(const RankingForm& form, const DecimalSeparators& separators);

// The first limit candidates, best first. When something fits within tolerance the rest at 0 %
// are left out; otherwise the nearest are listed, with what fits.
std::vector<BestMatchRow> bestMatchRows(const Ranking& ranking, bool overTheLimit,
                                        std::string_view decimalSeparator, std::size_t limit);

// The note above the list: how to read it, or that nothing fits within tolerance.
std::string bestMatchesNote(const Ranking& ranking);

} // namespace velmora
