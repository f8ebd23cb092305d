#pragma once

// Identification as a gemmologist does it: every reference stone is scored by how well the
// readings sit in its ranges, allowing for what the instruments read to, and the stones come
// best first, one species' equally fitting varieties together.
//
// For each property p given, d_p is how far the reading lies outside the stone's range in units of
// the property's tolerance t_p (zero inside); t_p is the setting, or the precision the value was
// typed with when that is coarser. Only the part beyond the tolerance, e_p = max(0, d_p - 1),
// counts against the stone: a reading within the instrument's own uncertainty cannot tell inside
// from just outside. The fit is
//
//     fit = 100 % * exp(-1/2 * sum of w_p * e_p^2)
//
// so e_p acts as a count of standard errors, and w_p says how much the property separates stones:
// R.I. 1 and birefringence 1 (the refractometer's readings, the strongest separators), S.G. 0.5
// (a good balance is nearly as telling, but small stones weigh poorly), colour 0.25 and hardness
// 0.25 (most species come in many colours; a scratch test is rough and rarely done). A colour not
// among the stone's counts as one tolerance beyond. A property the stone's row does not give
// ("not measurable" birefringence, save for aggregates as below; an empty cell) takes no part.
//
// Birefringence is the spread of a low and a high reading. A facet cut across the optic axis
// shows less than the full birefringence, never more, so a spread below the stone's counts with
// twice the tolerance. An aggregate gives one vague spot, or a carbonate's blink: under two edges
// read to the third decimal and apart by less than a blink it counts as singly refractive, since
// such edges come from a single crystal (azurmalachite would otherwise fit a corundum's
// 1.762-1.770 fully). Over the limit, the R.I. fits a stone whose range reaches above the
// instrument's limit, and lies as far off as its top falls short of it.
//
// Order: fit as shown (whole percent), best first (at 0 %, the nearest first). Among equal fits a
// stone whose optic character the spread of a low and a high reading contradicts (singly
// refractive under a spread beyond the tolerance, strongly doubly refractive under one within it)
// comes after the others: since whatever fits within every tolerance shows 100 %, such a stone
// comes first only when nothing else fits. Then, the more likely identity first:
//   1. the S.G. and hardness inside the stone's ranges before only within tolerance of them: a
//      refractometer reading at the edge of a range is the instrument's own uncertainty, but a
//      density outside a material's range more often belongs to another material;
//   2. under an edge read to the third decimal, a single crystal or a glass before an aggregate
//      or organic material ("not measurable" birefringence), which gives a spot reading to two
//      decimals, not a sharp edge; two readings more than 0.100 apart are a carbonate's
//      birefringence blink, which an aggregate shows too, so they do not count as sharp;
//   3. the narrower ranges: breadth = sum of w_p * ln(1 + width_p / (2.5 t_p)) over the ranges the
//      readings were compared with. A reading is likelier from a narrow range than from a wide
//      one (a reading inside quartz's 0.009 says more than one inside a shell's 0.155): a range
//      blurred by the reading's own error is about width + 2.5 t wide (2.5 = sqrt(2 pi) for a
//      normal error of t), and the logarithm of that density is what adds up over properties. So
//      a wide row such as a glass, which imitates everything, is not buried under every narrow
//      row the reading happens to touch, as a plain sum of widths would do;
//   4. the species with more varieties fitting, a likelier identity than a lone row; then by name.
// Stones of one species (StoneFamily) that fit equally form one candidate named after the species
// (not at 0 %: stones far from everything do not fit equally).
//
// Measured on tests/data/identification_examples.csv (153 stones and published value sets; see
// the README): the right species comes first for 72 % and is among the first three for 91 % with
// the readings as given, and for 92 % and 91 % with both R.I. readings 0.002 high or low.

#include "data/stone_list.h"
#include "search/measured.h"
#include "search/ranking_table.h"
#include "search/tolerances.h"

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace velmora {

struct RankingInputs {
    std::optional<Measured> ri = std::nullopt;     // the one reading, or the low one of two
    std::optional<Measured> riHigh = std::nullopt; // the high reading; needs ri
    bool overTheLimit = false; // no shadow edge: the R.I. lies above the instrument's limit
    std::optional<Measured> sg = std::nullopt;
    std::optional<Measured> hardness = std::nullopt;
    std::optional<std::string> color =
        std::nullopt; // a catalogue colour in any case, against Color1 to Color6
    std::optional<std::string> name =
        std::nullopt; // part of StoneName, without case and accents; a filter
};

enum class Property { RI, Birefringence, SG, Hardness, Color };
inline constexpr std::size_t propertyCount = 5;

struct Deviation {
    // Reading minus the nearest bound of the stone's range, in the property's units: zero
    // inside, negative below. Colour: 0 when it is among the stone's, 1 when not.
    double off = 0;
    // In units of the tolerance, zero inside; the part beyond 1 counts against the fit.
    double units = 0;
    bool withinTolerance() const { return units <= 1; }
};

struct RankedStone {
    const Stones* stone = nullptr;
    int fit = 0; // whole percent
    // The properties given that the stone's row tells, by Property.
    std::array<std::optional<Deviation>, propertyCount> deviations{};
    bool withinTolerance = true;
    bool contradictsOptics = false;
    int outside = 0;       // S.G. and hardness outside the stone's ranges, though within tolerance
    bool spotOnly = false; // an aggregate under an edge read to the third decimal
    double breadth = 0;    // the ranges' widths on a log scale, weighted; smaller is more telling
    double penalty = 0;    // the sum in the fit's exponent
};

// One line of the result: a stone, or the equally fitting varieties of one species.
struct Candidate {
    std::string_view name;                // the stone's name, or the species'
    std::span<const RankedStone> members; // best first; the first stands for the candidate
    const RankedStone& lead() const { return members.front(); }
};

// The candidates view the ranked stones it holds: it moves, but is not copied.
struct Ranking {
    Ranking() = default;
    Ranking(Ranking&&) = default;
    Ranking& operator=(Ranking&&) = default;

    std::vector<Candidate> candidates; // best first
    bool anyWithinTolerance = false;   // else the candidates are near matches

private:
    friend Ranking rankStones(const RankingTable&, const RankingInputs&, const RankingSettings&);
    std::vector<RankedStone> stones_; // each candidate's members side by side
};

// The candidates view the stones of the table, which must outlive the ranking.
Ranking rankStones(const RankingTable& table, const RankingInputs& inputs,
                   const RankingSettings& settings = {});

// The same over a table read for this one ranking; the candidates view the list's stones.
Ranking rankStones(const StoneList& stones, const RankingInputs& inputs,
                   const RankingSettings& settings = {});

} // namespace velmora
