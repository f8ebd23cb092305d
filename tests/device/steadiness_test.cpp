#include "device/steadiness.h"
#include "tests/device/reading_stream.h"

#include <gmock/gmock.h>

namespace velmora::test {
namespace {

using namespace std::chrono_literals;
using ::testing::DoubleNear, ::testing::ElementsAre;
using State = SteadinessState;

class SteadinessTest : public ::testing::Test {
protected:
    void SetUp() override { watch(steadiness); }

    void watch(Steadiness& s) {
        s.onStateChange([this](State state) { states.push_back(state); });
        s.onSteadyReading([this](const SteadyReading& r) { readings.push_back(r); });
    }
    std::vector<int> values() const {
        std::vector<int> thousandths;
        for (const auto& r : readings) {
            thousandths.push_back(static_cast<int>(std::lround(r.value * 1000)));
        }
        return thousandths;
    }

    Steadiness steadiness;
    ReadingStream stream;
    std::vector<State> states;
    std::vector<SteadyReading> readings;
};

TEST_F(SteadinessTest, ASettlingStreamGivesExactlyOneSteadyReadingOnceASecondHeldStill) {
    EXPECT_EQ(steadiness.state(), State::noStone);
    stream.play(steadiness, settleOn(1544) + hold(1544, 50));
    ASSERT_EQ(readings.size(), 1u);
    EXPECT_DOUBLE_EQ(readings[0].value, 1.544);
    // 1.543 at 0.4 s is the first reading within the band, 1.4 s closes its second.
    EXPECT_EQ(readings[0].time, 1400ms);
    EXPECT_THAT(readings[0].spread, DoubleNear(0.001, 1e-12));
    EXPECT_THAT(states, ElementsAre(State::settling, State::steady));
    ASSERT_TRUE(steadiness.current());
    EXPECT_DOUBLE_EQ(steadiness.current()->value, 1.544);
    EXPECT_DOUBLE_EQ(steadiness.current()->spread, 0);
}

TEST_F(SteadinessTest, NoiseWithinTheBandGivesNoFurtherReading) {
    // The instrument's last digit flickering, for a minute.
    const int flicker[] = {1, 0, -1, 0, 0, 1, -1, 1, 0, -1, -1, 0, 1};
    Thousandths noisy;
    for (int i = 0; i < 600; ++i) {
        noisy.push_back(1544 + flicker[i % std::size(flicker)]);
    }
    stream.play(steadiness, settleOn(1544) + noisy);
    EXPECT_THAT(values(), ElementsAre(1544));
    EXPECT_EQ(steadiness.state(), State::steady);
}

TEST_F(SteadinessTest, TurningTheStoneGivesANewReadingOnlyWhenItMovedBeyondTheBand) {
    struct Case {
        int turnedTo;
        std::vector<int> expected;
    };
    for (const auto& c : {Case{1546, {1544, 1546}}, Case{1545, {1544}}}) {
        Steadiness s;
        watch(s);
        readings.clear();
        // Turning: the edge wanders while the stone moves, then holds at its new place.
        stream.play(s, settleOn(1544) + Thousandths{1551, 1537, 1547} + hold(c.turnedTo, 20));
        EXPECT_EQ(values(), c.expected) << c.turnedTo;
    }
}

TEST_F(SteadinessTest, ALiftEndsTheStoneAndTheSameStonePutBackIsReadAgain) {
    stream.play(steadiness, settleOn(1544) + hold(0, 5));
    EXPECT_EQ(steadiness.state(), State::noStone);
    EXPECT_FALSE(steadiness.current());
    stream.play(steadiness, settleOn(1544));
    EXPECT_THAT(values(), ElementsAre(1544, 1544));
    EXPECT_THAT(states, ElementsAre(State::settling, State::steady, State::noStone, State::settling,
                                    State::steady));
    // Below the lowest gem, no edge: as good as no stone.
    stream.play(steadiness, Thousandths{1299});
    EXPECT_EQ(steadiness.state(), State::noStone);
}

} // namespace
} // namespace velmora::test
