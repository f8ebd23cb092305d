#include "search/ranking.h"

#include "foundation/text.h"
#include "search/name_folding.h"
#include "search/range_cell.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <numbers>
#include <numeric>
#include <unordered_map>

namespace velmora {
namespace {

constexpr std::array<double, propertyCount> weights = {1.0, 1.0, 0.5, 0.25, 0.25};

// Readings further apart are a carbonate's birefringence blink, which aggregates show too.
constexpr double blinkSpread = 0.100;

// From about this birefringence the two shadow edges part visibly whatever the facet.
constexpr double strongBirefringence = 0.010;

std::size_t indexOf(Property p) {
    return static_cast<std::size_t>(p);
}

Deviation deviationFrom(double value, ValueSpan span, double tolerance) {
    double off = value < span.low ? value - span.low : value > span.high ? value - span.high : 0.0;
    // 1.644 - 1.624 is not quite 0.020 in binary; a difference no instrument shows is none.
    if (std::abs(off) < 1e-9) {
        off = 0;
    }
    return {off, std::abs(off) / tolerance};
}

bool nameHolds(const RankingRow& row, const std::string& foldedNeedle) {
    return row.foldedName.empty() ? asciiNameContains(row.stone->StoneName, foldedNeedle)
                                  : row.foldedName.find(foldedNeedle) != std::string::npos;
}

// The inputs with their tolerances settled once for the whole table.
struct Prepared {
    const RankingInputs& in;
    const RankingSettings& settings;
    double riTolerance;
    double sgTolerance;
    double hardnessTolerance;
    double birefringenceTolerance;
    std::optional<double> spread;
    std::optional<std::uint16_t> color;
    std::optional<std::string> foldedName;
    // Two edges, or one read finer than the two decimals of a spot reading.
    bool sharpEdge;

    Prepared(const RankingInputs& inputs, const RankingSettings& s)
        : in(inputs), settings(s),
          riTolerance(
              std::max(s.riTolerance, std::max(precision(inputs.ri), precision(inputs.riHigh)))),
          sgTolerance(std::max(s.sgTolerance, precision(inputs.sg))),
          hardnessTolerance(std::max(s.hardnessTolerance, precision(inputs.hardness))),
          birefringenceTolerance(
              std::max(s.birefringenceTolerance, precision(inputs.ri) + precision(inputs.riHigh))),
          sharpEdge(inputs.ri && inputs.ri->precision < 0.001 &&
                    !(inputs.riHigh && inputs.riHigh->value - inputs.ri->value > blinkSpread)) {
        if (inputs.ri && inputs.riHigh && !inputs.overTheLimit) {
            spread = inputs.riHigh->value - inputs.ri->value;
        }
        if (inputs.color) {
            color = colorBit(*inputs.color);
        }
        if (inputs.name) {
            foldedName = velmora::foldedName(*inputs.name);
        }
    }

    // The range blurred by a reading's normal error of the tolerance is width + sqrt(2 pi) t wide.
    static double widthTerm(ValueSpan span, double tolerance) {
        return std::log(1 + (span.high - span.low) / (std::sqrt(2 * std::numbers::pi) * tolerance));
    }

    static double precision(const std::optional<Measured>& m) { return m ? m->precision : 0.0; }

    void rateRi(const RankingRow& row, RankedStone& r) const {
        const auto& span = row.ri;
        if ((!in.overTheLimit && !in.ri) || !span) {
            return;
        }
        auto& slot = r.deviations[indexOf(Property::RI)];
        if (in.overTheLimit) {
            const double shortOf = std::min(0.0, span->high - settings.overTheLimit);
            slot = Deviation{shortOf, -shortOf / riTolerance};
            return;
        }
        slot = deviationFrom(in.ri->value, *span, riTolerance);
        if (in.riHigh) {
            const Deviation high = deviationFrom(in.riHigh->value, *span, riTolerance);
            if (high.units > slot->units) {
                slot = high;
            }
        }
        r.breadth += weights[indexOf(Property::RI)] * widthTerm(*span, riTolerance);
        r.spotOnly = row.aggregate && sharpEdge;
    }

    // An aggregate blurs its grains' indices into one spot, or blinks across a carbonate's wide
    // span: two sharp edges apart by less than a blink come from a single crystal, so against
    // them the aggregate counts as showing no spread at all.
    std::optional<ValueSpan> birefringenceOf(const RankingRow& row) const {
        if (!row.birefringence && row.aggregate && sharpEdge) {
            return ValueSpan{0, 0};
        }
        return row.birefringence;
    }

    void rateBirefringence(const RankingRow& row, RankedStone& r) const {
        const auto span = birefringenceOf(row);
        if (!spread || !span) {
            return;
        }
        Deviation d = deviationFrom(*spread, *span, birefringenceTolerance);
        if (d.off < 0) {
            d.units /= 2;
        }
        r.deviations[indexOf(Property::Birefringence)] = d;
        r.breadth +=
            weights[indexOf(Property::Birefringence)] * widthTerm(*span, birefringenceTolerance);
        const bool singly = span->high == 0;
        const bool spreadSeen = *spread > birefringenceTolerance;
        r.contradictsOptics =
            (singly && spreadSeen) || (span->low >= strongBirefringence && !spreadSeen);
    }

    void rateRange(const std::optional<Measured>& m, const std::optional<ValueSpan>& span,
                   Property p, double tolerance, RankedStone& r) const {
        if (!m || !span) {
            return;
        }
        r.deviations[indexOf(p)] = deviationFrom(m->value, *span, tolerance);
        r.breadth += weights[indexOf(p)] * widthTerm(*span, tolerance);
    }

    void rateColor(const RankingRow& row, RankedStone& r) const {
        // A row that names no colour tells nothing about colour.
        if (!color || !row.namesColor) {
            return;
        }
        // A colour not among the stone's counts as one tolerance beyond.
        r.deviations[indexOf(Property::Color)] =
            (row.colors & *color) != 0 ? Deviation{0, 0} : Deviation{1, 2};
    }

    RankedStone rate(const RankingRow& row) const {
        RankedStone r;
        r.stone = row.stone;
        rateRi(row, r);
        rateBirefringence(row, r);
        rateRange(in.sg, row.sg, Property::SG, sgTolerance, r);
        rateRange(in.hardness, row.hardness, Property::Hardness, hardnessTolerance, r);
        rateColor(row, r);
        double exponent = 0;
        for (std::size_t p = 0; p < propertyCount; ++p) {
            if (const auto& d = r.deviations[p]) {
                const double beyond = std::max(0.0, d->units - 1);
                exponent += weights[p] * beyond * beyond;
                r.withinTolerance = r.withinTolerance && d->withinTolerance();
                const bool weighed = p == indexOf(Property::SG) || p == indexOf(Property::Hardness);
                r.outside += weighed && d->units > 0;
            }
        }
        r.penalty = exponent;
        r.fit = static_cast<int>(std::lround(100 * std::exp(-exponent / 2)));
        return r;
    }
};

struct GroupKey {
    std::string_view species;
    int fit;
    bool contradictsOptics;
    bool operator==(const GroupKey&) const = default;
};

struct GroupKeyHash {
    std::size_t operator()(const GroupKey& k) const {
        return std::hash<std::string_view>()(k.species) ^ (static_cast<std::size_t>(k.fit) << 1) ^
               static_cast<std::size_t>(k.contradictsOptics);
    }
};

// The order of stones, and of candidates by their leads: negative when a comes first, zero when
// only the size of their candidates and their names can tell.
template <class Rated> int compareFits(const Rated& a, const Rated& b) {
    if (a.fit != b.fit) {
        return a.fit > b.fit ? -1 : 1;
    }
    // A stone within every tolerance shows 100 %, so this keeps a stone of the wrong optic
    // character from the top whenever anything else fits.
    if (a.contradictsOptics != b.contradictsOptics) {
        return a.contradictsOptics ? 1 : -1;
    }
    // Far from everything the fit shows 0 %, and only the distance still orders.
    if (a.fit == 0 && a.penalty != b.penalty) {
        return a.penalty < b.penalty ? -1 : 1;
    }
    if (a.outside != b.outside) {
        return a.outside < b.outside ? -1 : 1;
    }
    if (a.spotOnly != b.spotOnly) {
        return a.spotOnly ? 1 : -1;
    }
    if (a.breadth != b.breadth) {
        return a.breadth < b.breadth ? -1 : 1;
    }
    return 0;
}

// Best first: small keys are sorted, not the stones, which are large, with their names far away.
std::vector<std::uint32_t> sortedOrder(const std::vector<RankedStone>& rated) {
    struct Key {
        int fit;
        bool contradictsOptics;
        double penalty;
        int outside;
        bool spotOnly;
        double breadth;
        std::uint32_t index;
    };
    std::vector<Key> keys(rated.size());
    for (std::uint32_t i = 0; i < rated.size(); ++i) {
        const RankedStone& r = rated[i];
        keys[i] = {r.fit, r.contradictsOptics, r.penalty, r.outside, r.spotOnly, r.breadth, i};
    }
    std::sort(keys.begin(), keys.end(), [&](const Key& a, const Key& b) {
        const int byFit = compareFits(a, b);
        return byFit != 0 ? byFit < 0
                          : text::compare(rated[a.index].stone->StoneName,
                                          rated[b.index].stone->StoneName) < 0;
    });
    std::vector<std::uint32_t> order(keys.size());
    std::transform(keys.begin(), keys.end(), order.begin(), [](const Key& k) { return k.index; });
    return order;
}

struct Group {
    std::string_view name;
    std::size_t first = 0;
    std::size_t size = 0;
};

// Equal fits of one species, taken in sorted order, so best first within the species; for each
// place of the order, its group.
std::vector<std::uint32_t> groupStones(const std::vector<RankedStone>& rated,
                                       const std::vector<std::uint32_t>& order,
                                       std::vector<Group>& groups) {
    std::vector<std::uint32_t> groupOfRank(order.size());
    std::unordered_map<GroupKey, std::uint32_t, GroupKeyHash> groupOf;
    for (std::size_t rank = 0; rank < order.size(); ++rank) {
        const RankedStone& r = rated[order[rank]];
        const auto next = static_cast<std::uint32_t>(groups.size());
        // Stones that fit nowhere near do not fit equally, whatever their rounded fit.
        const bool alone = r.fit == 0 || r.stone->StoneFamily.empty();
        const auto [at, added] =
            alone ? std::make_pair(groupOf.end(), true)
                  : groupOf.try_emplace(GroupKey{r.stone->StoneFamily, r.fit, r.contradictsOptics},
                                        next);
        const std::uint32_t g = added ? next : at->second;
        if (added) {
            groups.push_back({r.stone->StoneName});
        } else {
            groups[g].name = r.stone->StoneFamily;
        }
        ++groups[g].size;
        groupOfRank[rank] = g;
    }
    std::size_t first = 0;
    for (Group& g : groups) {
        g.first = first;
        first += g.size;
    }
    return groupOfRank;
}

// Each group's members side by side in the rated stones themselves: where each place takes its
// stone from, then the permutation's cycles followed.
void placeSideBySide(std::vector<RankedStone>& rated, const std::vector<std::uint32_t>& order,
                     const std::vector<std::uint32_t>& groupOfRank,
                     const std::vector<Group>& groups) {
    std::vector<std::uint32_t> from(rated.size());
    std::vector<std::size_t> placed(groups.size(), 0);
    for (std::size_t rank = 0; rank < order.size(); ++rank) {
        const std::uint32_t g = groupOfRank[rank];
        from[groups[g].first + placed[g]++] = order[rank];
    }
    for (std::size_t start = 0; start < from.size(); ++start) {
        if (from[start] == start) {
            continue;
        }
        RankedStone held = rated[start];
        std::size_t at = start;
        while (from[at] != start) {
            const std::uint32_t next = from[at];
            rated[at] = rated[next];
            from[at] = static_cast<std::uint32_t>(at);
            at = next;
        }
        rated[at] = held;
        from[at] = static_cast<std::uint32_t>(at);
    }
}

} // namespace

Ranking rankStones(const StoneList& stones, const RankingInputs& inputs,
                   const RankingSettings& settings) {
    return rankStones(RankingTable(stones), inputs, settings);
}

Ranking rankStones(const RankingTable& table, const RankingInputs& inputs,
                   const RankingSettings& settings) {
    const Prepared prepared(inputs, settings);
    std::vector<RankedStone> rated;
    rated.reserve(table.rows().size());
    for (const RankingRow& row : table.rows()) {
        if (prepared.foldedName && !nameHolds(row, *prepared.foldedName)) {
            continue;
        }
        rated.push_back(prepared.rate(row));
    }
    Ranking ranking;
    ranking.anyWithinTolerance =
        std::any_of(rated.begin(), rated.end(), [](const auto& r) { return r.withinTolerance; });
    const std::vector<std::uint32_t> order = sortedOrder(rated);
    std::vector<Group> groups;
    const std::vector<std::uint32_t> groupOfRank = groupStones(rated, order, groups);
    placeSideBySide(rated, order, groupOfRank, groups);
    ranking.stones_ = std::move(rated);
    ranking.candidates.reserve(groups.size());
    for (const Group& g : groups) {
        ranking.candidates.push_back(
            {g.name, std::span<const RankedStone>(ranking.stones_).subspan(g.first, g.size)});
    }
    std::stable_sort(ranking.candidates.begin(), ranking.candidates.end(),
                     [](const Candidate& a, const Candidate& b) {
                         const int byFit = compareFits(a.lead(), b.lead());
                         if (byFit != 0) {
                             return byFit < 0;
                         }
                         if (a.members.size() != b.members.size()) {
                             return a.members.size() > b.members.size();
                         }
                         return text::compare(a.name, b.name) < 0;
                     });
    return ranking;
}

} // namespace velmora
