#include "search/deviation_text.h"
#include "search/ranking.h"

#include <gtest/gtest.h>

namespace velmora::test {
namespace {

struct Row {
    std::string name;
    std::string ri;
    std::string sg = "";
    std::string birefringence = "";
    std::string family = "";
    std::string hardness = "";
    std::string color = "";
};

StoneList table(const std::vector<Row>& rows) {
    std::vector<Stones> stones;
    for (const auto& r : rows) {
        Stones s;
        s.StoneName = r.name;
        s.Ri = r.ri;
        s.SgRange = r.sg;
        s.Birefringence = r.birefringence;
        s.StoneFamily = r.family;
        s.Hardness = r.hardness;
        s.Color2 = r.color;
        stones.push_back(s);
    }
    return StoneList(std::move(stones));
}

// "name fit%" per candidate, best first.
std::string order(const Ranking& ranking) {
    std::string out;
    for (const auto& c : ranking.candidates) {
        out += (out.empty() ? "" : ", ") + std::string(c.name) + " " + std::to_string(c.lead().fit);
    }
    return out;
}

Measured m(double value, double precision = 0) {
    return {value, precision};
}

struct OrderCase {
    RankingInputs in;
    std::string order;
};

void expectOrders(const StoneList& stones, std::initializer_list<OrderCase> cases) {
    for (const auto& c : cases) {
        EXPECT_EQ(order(rankStones(stones, c.in)), c.order);
    }
}

TEST(Ranking, FitFallsOnlyBeyondTheToleranceAndByThePropertysWeight) {
    const auto stones = table({{"Quartz", "1.544-1.553", "2.64-2.66", "", "", "7", "Pink"}});
    const struct {
        RankingInputs in;
        int fit;
    } cases[] = {
        {{.ri = m(1.542)}, 100},             // one tolerance below
        {{.ri = m(1.540)}, 61},              // one beyond: e^-1/2
        {{.ri = m(1.540, 0.005)}, 100},      // typed as 1.54: held to its own precision
        {{.sg = m(2.70)}, 78},               // S.G. weighs half
        {{.hardness = m(6)}, 88},            // a whole step off, a quarter
        {{.color = "Green"}, 88},            // a colour not among its own
        {{.ri = m(1.600), .sg = m(2.65)}, 0} // far off on R.I., whatever else fits
    };
    for (const auto& c : cases) {
        EXPECT_EQ(rankStones(stones, c.in).candidates.at(0).lead().fit, c.fit);
    }
}

TEST(Ranking, OverTheLimitFitsStonesReachingAboveTheInstrumentsLimit) {
    const auto stones = table(
        {{"Zircon (low)", "1.780-1.850"}, {"Diamond", "2.417-2.419"}, {"Spinel", "1.712-1.736"}});
    expectOrders(stones, {{{.overTheLimit = true}, "Diamond 100, Zircon (low) 100, Spinel 0"}});
    EXPECT_EQ(order(rankStones(stones, {.overTheLimit = true}, {.overTheLimit = 1.854})),
              "Diamond 100, Zircon (low) 61, Spinel 0");
}

TEST(Ranking, EqualFitsComeNarrowestFirstThenByNameAndOneSpeciesIsOneCandidate) {
    const auto stones = table({{"Abalone shell", "1.530-1.685", "2.65-2.85", "", "Organic"},
                               {"Rose quartz", "1.544-1.553", "2.64-2.66", "0.009", "Quartz"},
                               {"Amethyst", "1.544-1.553", "2.64-2.66", "0.009", "Quartz"},
                               {"Oligoclase", "1.539-1.548", "2.64-2.67", "", "Feldspar"},
                               {"Quartzite", "1.540-1.560", "2.60-2.70", "", "Quartz"},
                               {"Opal", "1.44-1.46", "2.0-2.2", "", "Opal"},
                               {"Hyalite", "1.42-1.43", "2.0-2.2", "", "Opal"}});
    // Quartzite, wider than oligoclase, joins the quartz that fits as well; the opals are far
    // off, nearest first, and not one candidate.
    const auto ranking = rankStones(stones, {.ri = m(1.543), .sg = m(2.65)});
    EXPECT_EQ(order(ranking), "Quartz 100, Oligoclase 100, Abalone shell 100, Opal 0, Hyalite 0");
    EXPECT_EQ(ranking.candidates[0].members.size(), 3u);
}

TEST(Ranking, AmongEqualFitsTheSharperAndTheInsideComeFirst) {
    const auto stones =
        table({{"Chalcedony", "1.530-1.540", "2.57-2.65", "not measurable (aggregate)"},
               {"Glass", "1.480-1.560", "2.30-2.60", "none"},
               {"Sunstone", "1.537-1.549", "2.62-2.68", "0.007-0.010"}});
    expectOrders(
        stones,
        {// The sunstone's S.G. lies outside its range, if within the tolerance: it comes last.
         // Under an edge read to the third decimal the aggregate, which gives a spot reading,
         // comes after the glass.
         {{.ri = m(1.535, 0.0005), .sg = m(2.60, 0.005)},
          "Glass 100, Chalcedony 100, Sunstone 100"},
         // A spot reading to two decimals tells nothing of the edge: the narrowest comes first.
         {{.ri = m(1.54, 0.005), .sg = m(2.61, 0.005)},
          "Chalcedony 100, Sunstone 100, Glass 100"}});
}

TEST(Ranking, TheSpreadOfTwoReadingsSeparatesByOpticCharacter) {
    const auto stones = table({{"Spinel", "1.712-1.736", "", "none"},
                               {"Epidote", "1.700-1.760", "", "0.003-0.050"},
                               {"Tourmaline", "1.614-1.650", "", "0.014-0.024"},
                               {"Glass", "1.500-1.700", "", "none"},
                               {"Pearl", "1.530-1.685", "", "not measurable (aggregate)"}});
    expectOrders(
        stones,
        {// Just beyond the tolerance the singly refractive spinel still shows 100 %, yet the
         // doubly refractive epidote comes first.
         {{.ri = m(1.7180), .riHigh = m(1.7211)},
          "Epidote 100, Spinel 100, Tourmaline 0, Glass 0, Pearl 0"},
         // No spread: the strongly doubly refractive tourmaline falls behind what fits, and the
         // aggregate pearl, which gives no sharp edge, behind the glass.
         {{.ri = m(1.620), .riHigh = m(1.621)},
          "Glass 100, Pearl 100, Tourmaline 51, Epidote 0, Spinel 0"},
         // A spread below the stone's counts with twice the tolerance: 0.010 short is 80 %.
         {{.ri = m(1.620), .riHigh = m(1.624)},
          "Glass 95, Pearl 95, Tourmaline 80, Epidote 0, Spinel 0"}});
}

TEST(Ranking, AnAggregateShowsNoTwoSharpEdgesShortOfABlink) {
    const auto stones =
        table({{"Sapphire", "1.762-1.770", "3.95-4.05", "0.008-0.010"},
               {"Azurmalachite", "1.655-1.909", "3.65-4.01", "not measurable (aggregate)"}});
    expectOrders(stones,
                 {// A corundum's two edges: the aggregate counts as singly refractive, 0.008 off.
                  {{.ri = m(1.762, 0.0005), .riHigh = m(1.770, 0.0005), .sg = m(4.00, 0.005)},
                   "Sapphire 100, Azurmalachite 25"},
                  // Read to two decimals the edges are vague, as an aggregate's spot may be.
                  {{.ri = m(1.76, 0.005), .riHigh = m(1.77, 0.005), .sg = m(4.00, 0.005)},
                   "Sapphire 100, Azurmalachite 100"},
                  // Readings further apart than a blink are the carbonate's own.
                  {{.ri = m(1.655, 0.0005), .riHigh = m(1.850, 0.0005), .sg = m(3.90, 0.005)},
                   "Azurmalachite 100, Sapphire 0"}});
}

TEST(Ranking, DeviationsReadAtAGlanceAndNearMatchesSayWhatFits) {
    const auto stones = table({{"Quartz", "1.544-1.553", "2.64-2.66", "", "", "7", "Pink"}});
    const auto lead = [&](const RankingInputs& in) {
        return rankStones(stones, in).candidates.at(0).lead();
    };
    const RankingInputs far{.ri = m(1.557), .sg = m(2.65), .color = "Green"};
    EXPECT_FALSE(rankStones(stones, far).anyWithinTolerance);
    EXPECT_EQ(deviationText(lead(far), false, true, "."),
              "R.I. 0.004 above; S.G. fits; Colour differs");
    EXPECT_EQ(deviationText(lead({.sg = m(2.6004), .hardness = m(5.5)}), false, false, "."),
              "S.G. 0.04 below; Hardness 1.5 below");
    EXPECT_EQ(deviationText(lead({.overTheLimit = true}), true, false, "."),
              "R.I. 0.257 below the limit");
}

} // namespace
} // namespace velmora::test
