#include "records/report_layout.h"

#include <gtest/gtest.h>

namespace velmora::test {
namespace {

using namespace std::chrono;

StoneRecord quartzRecord() {
    StoneRecord r;
    r.label = "Lot 7, \"blue\"";
    r.examined = sys_days(year(2026) / 11 / 23) + hours(9) + minutes(5) + seconds(59);
    r.ri = {{1.544, 1.553, 1.548}, 1.544, 1.553, 0.009, "doubly refractive, birefringence 0.009"};
    r.sg = 2.651;
    r.weighing = Weighing{0.53, 0.33};
    r.hardness = 7;
    r.candidates = {{"2", "Quartz", 100}, {"185", "Iolite", 61}};
    return r;
}

TEST(ReportLayout, WritesTheReadingsWithTheUsersSeparatorAndLeavesOutWhatWasNotMeasured) {
    const ReportPage page = reportPage(quartzRecord(), ",");
    EXPECT_EQ(page.label, "Lot 7, \"blue\"");
    EXPECT_EQ(page.date, "2026-11-23 09:05 UTC");
    const std::vector<std::pair<std::string, std::string>> expected = {
        {"R.I. readings", "1,544  1,553  1,548"},
        {"R.I. low", "1,544"},
        {"R.I. high", "1,553"},
        {"Birefringence", "0,009"},
        {"Optic character", "doubly refractive, birefringence 0.009"},
        {"S.G.", "2,651"},
        {"Weighing", "in air 0,53, in water 0,33"},
        {"Hardness", "7"},
    };
    ASSERT_EQ(page.readings.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(page.readings[i].caption, expected[i].first);
        EXPECT_EQ(page.readings[i].value, expected[i].second);
    }
    EXPECT_EQ(page.candidates.at(1).fit, "61%");
    EXPECT_EQ(page.conclusion, "Not concluded");
}

TEST(ReportLayout, TheTextNamesEveryPartOnce) {
    StoneRecord r = quartzRecord();
    r.conclusion = "Amethyst";
    r.notes = "Inclusions: two-phase";
    const std::string text = reportText(reportPage(r, "."));
    for (const char* part :
         {"Lot 7, \"blue\"\n", "2026-11-23 09:05 UTC\n", "R.I. low: 1.544\n", "  100%  Quartz\n",
          "Conclusion: Amethyst\n", "Notes: Inclusions: two-phase\n"}) {
        EXPECT_NE(text.find(part), std::string::npos) << part << " in\n" << text;
    }
}

TEST(SeriesChart, PlacesThePointsInTheUnitSquareOnAnAxisOfAtLeastTenThousandths) {
    const struct {
        const char* name;
        std::vector<double> values;
        std::vector<std::pair<double, double>> points;
        double axisLow;
        double axisHigh;
    } cases[] = {
        {"none", {}, {}, 0, 0},
        {"flat", {1.718, 1.718}, {{0, 0.5}, {1, 0.5}}, 1.713, 1.723},
        {"narrow", {1.544, 1.553}, {{0, 0.05}, {1, 0.95}}, 1.5435, 1.5535},
        {"wide", {1.658, 1.486, 1.572}, {{0, 1}, {0.5, 0}, {1, 0.5}}, 1.486, 1.658},
    };
    for (const auto& c : cases) {
        const SeriesChart chart = seriesChart(c.values, ".");
        ASSERT_EQ(chart.points.size(), c.points.size()) << c.name;
        EXPECT_NEAR(chart.axisLow, c.axisLow, 1e-9) << c.name;
        EXPECT_NEAR(chart.axisHigh, c.axisHigh, 1e-9) << c.name;
        for (std::size_t i = 0; i < c.points.size(); ++i) {
            EXPECT_NEAR(chart.points[i].first, c.points[i].first, 1e-9) << c.name << i;
            EXPECT_NEAR(chart.points[i].second, c.points[i].second, 1e-9) << c.name << i;
        }
    }
}

} // namespace
} // namespace velmora::test
