#include "ui/strip_chart.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

using namespace std::chrono_literals;

TEST(StripChart, KeepsHalfAMinuteOfReadingsAndCaptures) {
    StripChart chart;
    int changes = 0;
    chart.setObserver([&](Property property) { changes += property == Property::Content; });
    for (int tenth = 0; tenth <= 400; ++tenth) {
        chart.addReading(tenth * 100ms, 1.5 + tenth / 1000.0);
    }
    chart.markCapture(5s, 1.55);
    chart.markCapture(39s, 1.89);
    EXPECT_EQ(changes, 403);
    EXPECT_EQ(chart.now(), 40s);
    ASSERT_EQ(chart.readings().size(), 301u);
    EXPECT_EQ(chart.readings().front().time, 10s);
    ASSERT_EQ(chart.captures().size(), 1u); // the one at 5 s had scrolled off
    EXPECT_EQ(chart.captures().front().time, 39s);
}

TEST(StripChart, TheHeightSpansWhatIsShownPaddedAndNeverLessThanTheSmallestRange) {
    using Readings = std::vector<std::optional<double>>;
    const struct {
        const char* shown;
        Readings readings;
        std::optional<ChartRange> band;
        std::optional<ChartRange> range;
    } cases[] = {
        {"nothing", {}, std::nullopt, std::nullopt},
        {"one reading", {1.624}, std::nullopt, ChartRange{1.619, 1.629}},
        {"the stone on the prism only, padded a fifth each side",
         {1.544, 1.553, std::nullopt, 1.624, 1.644},
         std::nullopt,
         ChartRange{1.6173333, 1.6506667}},
        {"the band counts too",
         {1.624},
         ChartRange{1.620, 1.640},
         ChartRange{1.6133333, 1.6466667}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.shown);
        StripChart chart;
        auto time = 0ms;
        for (const auto& reading : c.readings) {
            chart.addReading(time += 100ms, reading);
        }
        chart.setBand(c.band);
        const auto range = chart.valueRange();
        ASSERT_EQ(range.has_value(), c.range.has_value());
        if (range) {
            EXPECT_NEAR(range->low, c.range->low, 1e-6);
            EXPECT_NEAR(range->high, c.range->high, 1e-6);
        }
    }
}

TEST(StripChart, AnUnchangedBandTellsNobody) {
    StripChart chart;
    int changes = 0;
    chart.setObserver([&](Property) { ++changes; });
    chart.setBand(ChartRange{1.623, 1.625});
    chart.setBand(ChartRange{1.623, 1.625});
    chart.setBand(std::nullopt);
    chart.setBand(std::nullopt);
    EXPECT_EQ(changes, 2);
}

} // namespace
} // namespace velmora
