#include "search/ranking.h"

#include "foundation/text.h"
#include "search/name_folding.h"
#include "search/range_cell.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <tuple>

namespace velmora {
namespace {

constexpr std::array<double, propertyCount> weights = {1.0, 1.0, 0.5, 0.25, 0.25};

// From about this birefringence the two shadow edges part visibly whatever the facet.
constexpr double strongBirefringence = 0.010;

std::size_t indexOf(Property p) {
    return static_cast<std::size_t>(p);
}

// "none" marks a singly refractive stone; "not measurable ..." an aggregate, which tells nothing.
std::optional<ValueSpan> birefringenceOf(const std::string& cell) {
    if (cell == "none") {
        return ValueSpan{0, 0};
    }
    return spanOf(cell);
}

Deviation deviationFrom(double value, ValueSpan span, double tolerance) {
    double off = value < span.low ? value - span.low : value > span.high ? value - span.high : 0.0;
    // 1.644 - 1.624 is not quite 0.020 in binary; a difference no instrument shows is none.
    if (std::abs(off) < 1e-9) {
        off = 0;
    }
    return {off, std::abs(off) / tolerance};
}

bool asciiEqualsIgnoringCase(const std::string& a, const std::string& lowerB) {
    return a.size() == lowerB.size() &&
           std::equal(a.begin(), a.end(), lowerB.begin(), [](char x, char y) {
               return ((x >= 'A' && x <= 'Z') ? char(x + 32) : x) == y;
           });
}

// Nothing when the row names no colour at all: it tells nothing about colour.
std::optional<bool> hasColor(const Stones& stone, const std::string& lowerColor) {
    bool anyNamed = false;
    for (const std::string* cell : {&stone.Color1, &stone.Color2, &stone.Color3, &stone.Color4,
                                    &stone.Color5, &stone.Color6}) {
        if (cell->empty()) {
            continue;
        }
        anyNamed = true;
        const bool equal = text::isAscii(*cell) && text::isAscii(lowerColor)
                               ? asciiEqualsIgnoringCase(*cell, lowerColor)
                               : text::equals(text::lowercased(*cell), lowerColor);
        if (equal) {
            return true;
        }
    }
    return anyNamed ? std::optional<bool>(false) : std::nullopt;
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
    std::optional<std::string> lowerColor;
    std::optional<std::string> foldedName;

    Prepared(const RankingInputs& inputs, const RankingSettings& s)
        : in(inputs), settings(s),
          riTolerance(
              std::max(s.riTolerance, std::max(precision(inputs.ri), precision(inputs.riHigh)))),
          sgTolerance(std::max(s.sgTolerance, precision(inputs.sg))),
          hardnessTolerance(std::max(s.hardnessTolerance, precision(inputs.hardness))),
          birefringenceTolerance(
              std::max(s.birefringenceTolerance, precision(inputs.ri) + precision(inputs.riHigh))) {
        if (inputs.ri && inputs.riHigh && !inputs.overTheLimit) {
            spread = inputs.riHigh->value - inputs.ri->value;
        }
        if (inputs.color) {
            lowerColor = text::lowercased(*inputs.color);
        }
        if (inputs.name) {
            foldedName = velmora::foldedName(*inputs.name);
        }
    }

    static double precision(const std::optional<Measured>& m) { return m ? m->precision : 0.0; }

    void rateRi(const Stones& stone, RankedStone& r) const {
        if (!in.overTheLimit && !in.ri) {
            return;
        }
        const auto span = spanOf(stone.Ri);
        if (!span) {
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
        r.breadth += weights[indexOf(Property::RI)] * (span->high - span->low) / riTolerance;
    }

    void rateBirefringence(const Stones& stone, RankedStone& r) const {
        if (!spread) {
            return;
        }
        const auto span = birefringenceOf(stone.Birefringence);
        if (!span) {
            return;
        }
        Deviation d = deviationFrom(*spread, *span, birefringenceTolerance);
        if (d.off < 0) {
            d.units /= 2;
        }
        r.deviations[indexOf(Property::Birefringence)] = d;
        r.breadth += weights[indexOf(Property::Birefringence)] * (span->high - span->low) /
                     birefringenceTolerance;
        const bool singly = span->high == 0;
        const bool spreadSeen = *spread > birefringenceTolerance;
        r.contradictsOptics =
            (singly && spreadSeen) || (span->low >= strongBirefringence && !spreadSeen);
    }

    void rateRange(const std::optional<Measured>& m, const std::string& cell, Property p,
                   double tolerance, RankedStone& r) const {
        if (!m) {
            return;
        }
        const auto span = spanOf(cell);
        if (!span) {
            return;
        }
        r.deviations[indexOf(p)] = deviationFrom(m->value, *span, tolerance);
        r.breadth += weights[indexOf(p)] * (span->high - span->low) / tolerance;
    }

    void rateColor(const Stones& stone, RankedStone& r) const {
        if (!lowerColor) {
            return;
        }
        if (const auto has = hasColor(stone, *lowerColor)) {
            // A colour not among the stone's counts as one tolerance beyond.
            r.deviations[indexOf(Property::Color)] = *has ? Deviation{0, 0} : Deviation{1, 2};
        }
    }

    RankedStone rate(const Stones& stone) const {
        RankedStone r;
        r.stone = &stone;
        rateRi(stone, r);
        rateBirefringence(stone, r);
        rateRange(in.sg, stone.SgRange, Property::SG, sgTolerance, r);
        rateRange(in.hardness, stone.Hardness, Property::Hardness, hardnessTolerance, r);
        rateColor(stone, r);
        double exponent = 0;
        for (std::size_t p = 0; p < propertyCount; ++p) {
            if (const auto& d = r.deviations[p]) {
                const double beyond = std::max(0.0, d->units - 1);
                exponent += weights[p] * beyond * beyond;
                r.withinTolerance = r.withinTolerance && d->withinTolerance();
            }
        }
        r.penalty = exponent;
        r.fit = static_cast<int>(std::lround(100 * std::exp(-exponent / 2)));
        return r;
    }
};

// The order of stones, and of candidates by their leads and sizes.
bool better(const RankedStone& a, const std::string& aName, std::size_t aSize, const RankedStone& b,
            const std::string& bName, std::size_t bSize) {
    if (a.fit != b.fit) {
        return a.fit > b.fit;
    }
    // A stone within every tolerance shows 100 %, so this keeps a stone of the wrong optic
    // character from the top whenever anything else fits.
    if (a.contradictsOptics != b.contradictsOptics) {
        return b.contradictsOptics;
    }
    // Far from everything the fit shows 0 %, and only the distance still orders.
    if (a.fit == 0 && a.penalty != b.penalty) {
        return a.penalty < b.penalty;
    }
    if (a.breadth != b.breadth) {
        return a.breadth < b.breadth;
    }
    if (aSize != bSize) {
        return aSize > bSize;
    }
    return text::compare(aName, bName) < 0;
}

} // namespace

Ranking rankStones(const StoneList& table, const RankingInputs& inputs,
                   const RankingSettings& settings) {
    const Prepared prepared(inputs, settings);
    std::vector<RankedStone> rated;
    rated.reserve(table.size());
    for (const Stones& stone : table) {
        if (prepared.foldedName && !nameContains(stone.StoneName, *prepared.foldedName)) {
            continue;
        }
        rated.push_back(prepared.rate(stone));
    }
    Ranking ranking;
    ranking.anyWithinTolerance =
        std::any_of(rated.begin(), rated.end(), [](const auto& r) { return r.withinTolerance; });
    std::sort(rated.begin(), rated.end(), [](const auto& a, const auto& b) {
        return better(a, a.stone->StoneName, 1, b, b.stone->StoneName, 1);
    });

    // Equal fits of one species, in the order found, which is best first within the species.
    std::map<std::tuple<std::string, int, bool>, std::size_t> groupOf;
    for (RankedStone& r : rated) {
        const std::string& species = r.stone->StoneFamily;
        // Stones that fit nowhere near do not fit equally, whatever their rounded fit.
        if (species.empty() || r.fit == 0) {
            ranking.candidates.push_back({r.stone->StoneName, {r}});
            continue;
        }
        const auto key = std::make_tuple(species, r.fit, r.contradictsOptics);
        const auto [at, added] = groupOf.try_emplace(key, ranking.candidates.size());
        if (added) {
            ranking.candidates.push_back({r.stone->StoneName, {r}});
        } else {
            Candidate& group = ranking.candidates[at->second];
            group.members.push_back(r);
            group.name = species;
        }
    }
    std::stable_sort(ranking.candidates.begin(), ranking.candidates.end(),
                     [](const Candidate& a, const Candidate& b) {
                         return better(a.lead(), a.name, a.members.size(), b.lead(), b.name,
                                       b.members.size());
                     });
    return ranking;
}

} // namespace velmora
