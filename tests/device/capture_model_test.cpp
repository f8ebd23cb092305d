#include "device/capture_model.h"
#include "tests/device/reading_stream.h"

#include <gmock/gmock.h>

namespace velmora::test {
namespace {

using ::testing::DoubleEq, ::testing::ElementsAre;

class CaptureModelTest : public ::testing::Test {
protected:
    void SetUp() override {
        model.onSeriesChange(
            [this](const RotationSeries& series) { shown.push_back(series.values()); });
    }

    CaptureModel model;
    ReadingStream stream;
    // The series after each change, as the window would show it.
    std::vector<std::vector<double>> shown;
};

TEST_F(CaptureModelTest, AutomaticCaptureTakesEverySteadyReadingAndStartsASeriesPerStone) {
    model.setAutomatic(true);
    stream.play(model, settleOn(1544) + Thousandths{1550} + hold(1553, 15));
    // The lift leaves the last stone's series in view until the next stone is steady.
    stream.play(model, hold(0, 3));
    EXPECT_THAT(model.series().values(), ElementsAre(1.544, 1.553));
    stream.play(model, settleOn(1718));
    // A capture by hand at the same position adds to the new stone's series.
    model.capture();
    EXPECT_THAT(shown, ElementsAre(ElementsAre(1.544), ElementsAre(1.544, 1.553),
                                   ElementsAre(1.718), ElementsAre(1.718, 1.718)));
}

TEST_F(CaptureModelTest, QuartzTurnedShowsItsBirefringenceAndTheLowAndHighForRanking) {
    model.setAutomatic(true);
    stream.play(model, settleOn(1544) + hold(1549, 12) + hold(1553, 12) + hold(1546, 12));
    const RotationSeries& series = model.series();
    EXPECT_THAT(series.low(), ::testing::Optional(DoubleEq(1.544)));
    EXPECT_THAT(series.high(), ::testing::Optional(DoubleEq(1.553)));
    EXPECT_DOUBLE_EQ(series.birefringence(), 0.009);
    EXPECT_EQ(series.verdict(FixedLocale(".")), "doubly refractive, birefringence 0.009");
}

TEST(RotationSeries, TheVerdictAsAGemmologistWritesIt) {
    struct Case {
        std::vector<double> values;
        const char* verdict;
    };
    const Case cases[] = {
        {{}, "no reading captured"},
        // Within the tolerance of 0.002, even at its edge.
        {{1.544, 1.546, 1.545}, "more positions needed: 3 of 4 taken"},
        {{1.544, 1.546, 1.545, 1.544, 1.546}, "singly refractive or aggregate"},
        // Beyond it, two positions are enough.
        {{1.544, 1.547}, "doubly refractive, birefringence 0.003"},
    };
    const FixedLocale locale;
    for (const auto& c : cases) {
        RotationSeries series;
        for (const double value : c.values) {
            series.add(value);
        }
        EXPECT_EQ(series.verdict(locale), c.verdict) << c.values.size();
    }
}

} // namespace
} // namespace velmora::test
