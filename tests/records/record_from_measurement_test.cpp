#include "data/stones.h"
#include "records/record_from_measurement.h"

#include <gtest/gtest.h>

namespace velmora::test {
namespace {

using namespace std::chrono;

const sys_seconds noon = sys_days(year(2026) / 11 / 23) + hours(12);

RotationSeries seriesOf(std::initializer_list<double> values) {
    RotationSeries series;
    for (const double value : values) {
        series.add(value);
    }
    return series;
}

TEST(RecordFromMeasurement, TakesTheCapturedSeriesBeforeTheTypedReadings) {
    const struct {
        const char* name;
        RotationSeries captured;
        bool riTicked;
        std::vector<double> values;
    } cases[] = {
        {"captured", seriesOf({1.544, 1.549, 1.553}), true, {1.544, 1.549, 1.553}},
        {"typed", RotationSeries(), true, {1.76, 1.768}},
        {"typed, R.I. not ticked", RotationSeries(), false, {}},
    };
    for (const auto& c : cases) {
        RankingForm entries{.isRIState = c.riTicked, .riText = "1,760", .riHighText = "1,768"};
        const StoneRecord r =
            recordFromMeasurement("lot 7", noon, c.captured, entries, {",", ","}, {});
        EXPECT_EQ(r.ri.values, c.values) << c.name;
    }
    const StoneRecord typed = recordFromMeasurement(
        "x", noon, RotationSeries(), {.isRIState = true, .riText = "1.768", .riHighText = "1.760"},
        {}, {});
    EXPECT_EQ(typed.ri.low, 1.760);
    EXPECT_EQ(typed.ri.high, 1.768);
    EXPECT_NE(typed.ri.verdict.find("0.008"), std::string::npos) << typed.ri.verdict;
}

TEST(RecordFromMeasurement, KeepsOnlyTheTickedReadableEntries) {
    RankingForm all{
        .isSGState = true, .isHardnessState = true, .sgText = "2.65", .hardnessText = "7"};
    all.weightAirText = "0.530";
    all.weightWaterText = "0.330";
    RankingForm unticked = all;
    unticked.isSGState = unticked.isHardnessState = false;
    RankingForm unreadable = all; // weights without the S.G. they gave are left out too
    unreadable.sgText = "2..6";
    unreadable.hardnessText = "";
    RankingForm typedSg = all;
    typedSg.weightWaterText = "";
    const struct {
        const char* name;
        RankingForm entries;
        std::optional<double> sg;
        bool weighing;
        std::optional<double> hardness;
    } cases[] = {
        {"all", all, 2.65, true, 7},
        {"unticked", unticked, std::nullopt, false, std::nullopt},
        {"unreadable", unreadable, std::nullopt, false, std::nullopt},
        {"S.G. typed", typedSg, 2.65, false, 7},
    };
    for (const auto& c : cases) {
        const auto r = recordFromMeasurement("x", noon, RotationSeries(), c.entries, {}, {});
        EXPECT_EQ(r.sg, c.sg) << c.name;
        ASSERT_EQ(r.weighing.has_value(), c.weighing) << c.name;
        if (r.weighing) {
            EXPECT_EQ(std::make_pair(r.weighing->inAir, r.weighing->inWater),
                      std::make_pair(0.53, 0.33));
        }
        EXPECT_EQ(r.hardness, c.hardness) << c.name;
    }
}

TEST(RecordFromMeasurement, KeepsEachCandidateOnceWithItsNumberAndBestFit) {
    Stones quartz;
    quartz.StoneID = "2";
    Stones roseQuartz;
    roseQuartz.StoneID = "9";
    const BestMatchRow quartzRow{&quartz, "100%", "Quartz\nAmethyst, Citrine", "", true};
    const BestMatchRow glass{nullptr, "7%", "Glass", "R.I. 0.004 above", false};
    const BestMatchRow roseRow{&roseQuartz, "14%", "Quartz\nRose quartz", "", false};
    const BestMatchRow garnet{nullptr, "61%", "Garnet\nPyrope", "", false};
    const BestMatchRow pyralspite{nullptr, "40%", "Garnet (pyralspite)", "", false};
    const struct {
        const char* name;
        std::vector<BestMatchRow> rows;
        std::string kept; // number:name:fit, a candidate a line
    } cases[] = {
        {"as listed", {quartzRow, glass}, "2:Quartz:100 :Glass:7 "},
        {"a species at two fits", {quartzRow, glass, roseRow}, "2:Quartz:100 :Glass:7 "},
        {"names that only begin alike",
         {garnet, pyralspite},
         ":Garnet:61 :Garnet (pyralspite):40 "},
        {"none", {}, ""},
    };
    for (const auto& c : cases) {
        const StoneRecord r = recordFromMeasurement("x", noon, RotationSeries(), {}, {}, c.rows);
        std::string kept;
        for (const RecordedCandidate& candidate : r.candidates) {
            kept +=
                candidate.number + ":" + candidate.name + ":" + std::to_string(candidate.fit) + " ";
        }
        EXPECT_EQ(kept, c.kept) << c.name;
    }
}

} // namespace
} // namespace velmora::test
