#pragma once

// The readings of a gemmologist at work: a stone is placed on the prism and its shadow edge
// settles to the stone's R.I., jittering by a few thousandths, then holds steady; the stone is
// turned on the prism to four more positions, each settling and holding in turn, then lifted (no
// edge: 0.000) and another is placed. A doubly refractive stone reads between its two indices as
// it turns, a singly refractive one the same at every position. The same seed gives the same
// session.

#include "device/sim/reading_source.h"

#include <cstdint>
#include <random>

namespace velmora::sim {

class SimulatedSession final : public ReadingSource {
public:
    explicit SimulatedSession(std::uint32_t seed);
    std::uint16_t next() override;

private:
    enum class Phase { settling, steady, lifted };

    void placeStone();
    void turnStone();
    int noise(int amplitude);

    std::mt19937 random_;
    Phase phase_ = Phase::lifted;
    int step_ = 0;
    int settlingReadings_ = 0;
    std::size_t stone_ = 0;
    std::size_t position_ = 0;
    int target_ = 0;
    int offset_ = 0;
};

} // namespace velmora::sim
