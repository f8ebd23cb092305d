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

} // namespace
} // namespace velmora::test
