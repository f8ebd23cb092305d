#include "device/sim/simulated_session.h"

#include <array>

namespace velmora::sim {

namespace {

// Common stones, by their R.I. in thousandths.
constexpr std::array<int, 9> stoneIndices = {
    1544, // quartz
    1577, // beryl
    1619, // topaz
    1624, // tourmaline
    1654, // peridot
    1691, // tanzanite
    1718, // spinel
    1746, // chrysoberyl
    1762, // corundum
};

// In readings, at ten a second.
constexpr int settlingReadings = 20;
constexpr int steadyReadings = 40;
constexpr int liftedReadings = 15;
// The edge first appears this far below the stone's R.I., in thousandths.
constexpr int firstEdgeMin = 20;
constexpr int firstEdgeSpread = 40;

} // namespace

SimulatedSession::SimulatedSession(std::uint32_t seed) : random_(seed) {
    stone_ = random_() % stoneIndices.size();
    placeStone();
}

std::uint16_t SimulatedSession::next() {
    int reading = 0;
    switch (phase_) {
    case Phase::settling:
        // The edge closes a quarter of its distance each reading; the jitter calms as it sharpens.
        offset_ = offset_ * 3 / 4;
        reading = target_ + offset_ + noise(step_ < settlingReadings / 2 ? 3 : 1);
        if (++step_ == settlingReadings) {
            phase_ = Phase::steady;
            step_ = 0;
        }
        break;
    case Phase::steady:
        reading = target_;
        if (++step_ == steadyReadings) {
            phase_ = Phase::lifted;
            step_ = 0;
        }
        break;
    case Phase::lifted:
        if (++step_ == liftedReadings) {
            // Another stone, never the same one twice running.
            stone_ = (stone_ + 1 + random_() % (stoneIndices.size() - 1)) % stoneIndices.size();
            placeStone();
        }
        break;
    }
    return static_cast<std::uint16_t>(reading);
}

void SimulatedSession::placeStone() {
    phase_ = Phase::settling;
    step_ = 0;
    target_ = stoneIndices[stone_];
    offset_ = -(firstEdgeMin + static_cast<int>(random_() % (firstEdgeSpread + 1)));
}

int SimulatedSession::noise(int amplitude) {
    return static_cast<int>(random_() % static_cast<unsigned>(2 * amplitude + 1)) - amplitude;
}

} // namespace velmora::sim
