#include "device/sim/simulated_session.h"

#include <array>
#include <cmath>

namespace velmora::sim {

namespace {

// Common stones, by their lowest and highest R.I. in thousandths.
struct Indices {
    int low;
    int high;
};
constexpr std::array<Indices, 9> stones = {{
    {1544, 1553}, // quartz
    {1577, 1583}, // beryl
    {1619, 1627}, // topaz
    {1624, 1644}, // tourmaline
    {1654, 1690}, // peridot
    {1691, 1700}, // tanzanite
    {1718, 1718}, // spinel: singly refractive
    {1746, 1755}, // chrysoberyl
    {1762, 1770}, // corundum
}};

// Where between its two indices the stone reads at each position it is turned to: both extremes
// first, then between them. Every step moves the reading of even beryl's 0.006 by more than the
// 0.001 a steady reading may waver, so each position is a reading of its own.
constexpr std::array<double, 5> positions = {0, 0.5, 1, 0.25, 0.75};

// In readings, at ten a second.
constexpr int placedSettlingReadings = 20;
constexpr int turnedSettlingReadings = 10;
constexpr int steadyReadings = 15;
constexpr int liftedReadings = 15;
// The edge first appears this far below the stone's R.I., in thousandths.
constexpr int firstEdgeMin = 20;
constexpr int firstEdgeSpread = 40;

} // namespace

SimulatedSession::SimulatedSession(std::uint32_t seed) : random_(seed) {
    stone_ = random_() % stones.size();
    placeStone();
}

std::uint16_t SimulatedSession::next() {
    int reading = 0;
    switch (phase_) {
    case Phase::settling:
        // The edge closes a quarter of its distance each reading; the jitter calms as it sharpens.
        offset_ = offset_ * 3 / 4;
        reading = target_ + offset_ + noise(step_ < settlingReadings_ / 2 ? 3 : 1);
        if (++step_ == settlingReadings_) {
            phase_ = Phase::steady;
            step_ = 0;
        }
        break;
    case Phase::steady:
        reading = target_;
        if (++step_ == steadyReadings) {
            if (++position_ < positions.size()) {
                turnStone();
            } else {
                phase_ = Phase::lifted;
                step_ = 0;
            }
        }
        break;
    case Phase::lifted:
        if (++step_ == liftedReadings) {
            // Another stone, never the same one twice running.
            stone_ = (stone_ + 1 + random_() % (stones.size() - 1)) % stones.size();
            placeStone();
        }
        break;
    }
    return static_cast<std::uint16_t>(reading);
}

void SimulatedSession::placeStone() {
    phase_ = Phase::settling;
    step_ = 0;
    settlingReadings_ = placedSettlingReadings;
    position_ = 0;
    target_ = stones[stone_].low;
    offset_ = -(firstEdgeMin + static_cast<int>(random_() % (firstEdgeSpread + 1)));
}

void SimulatedSession::turnStone() {
    const Indices stone = stones[stone_];
    const int from = target_;
    target_ =
        stone.low + static_cast<int>(std::lround(positions[position_] * (stone.high - stone.low)));
    phase_ = Phase::settling;
    step_ = 0;
    settlingReadings_ = turnedSettlingReadings;
    // The edge sets off from where it stood.
    offset_ = from - target_;
}

int SimulatedSession::noise(int amplitude) {
    return static_cast<int>(random_() % static_cast<unsigned>(2 * amplitude + 1)) - amplitude;
}

} // namespace velmora::sim
