#pragma once

// When the live reading has settled. A stone placed on the prism draws its shadow edge in from
// below, the edge wavers for a moment and then holds still; a gemmologist takes the reading only
// then. Fed every reading with its time on the run loop's clock, this tells whether there is a
// stone at all, whether its reading is still settling, or whether it is steady: the last window
// of readings (a second by default) all within the band (+-0.001) of their median.
//
// Each time the stream becomes steady at a new value (a new stone, or the stone turned so the
// reading moved by more than the band) it hands out one steady reading, the median of that
// window; noise within the band, or the reading wavering and coming back, hands out none.

#include <chrono>
#include <deque>
#include <functional>
#include <optional>

namespace velmora {

struct SteadinessSettings {
    std::chrono::milliseconds window{1000};
    double band = 0.001;
    // Without a stone the instrument sees no shadow edge and reads 0.000; no gem lies this low.
    double noStoneBelow = 1.300;
};

enum class SteadinessState { noStone, settling, steady };

struct SteadyReading {
    double value = 0;                 // the window's median, a reading the instrument gave
    double spread = 0;                // the window's highest reading minus its lowest
    std::chrono::milliseconds time{}; // of the window's latest reading
};

class Steadiness {
public:
    using time_point = std::chrono::milliseconds;

    explicit Steadiness(SteadinessSettings settings = {});

    // Called with the new state whenever it changes; the state before the first reading is
    // noStone.
    void onStateChange(std::function<void(SteadinessState)> observer);
    // Called once for each steady reading, after the change to steady when there is one.
    void onSteadyReading(std::function<void(const SteadyReading&)> observer);

    // Readings come in the order of their times; one older than the last is ignored.
    void add(time_point time, double value);

    SteadinessState state() const { return state_; }
    // While steady, the current window's median and spread.
    std::optional<SteadyReading> current() const;
    const SteadinessSettings& settings() const { return settings_; }

private:
    struct Reading {
        time_point time;
        double value;
    };

    void setState(SteadinessState state);
    SteadyReading window(time_point time) const;
    bool steady(time_point time, const SteadyReading& window) const;

    SteadinessSettings settings_;
    std::function<void(SteadinessState)> stateObserver_;
    std::function<void(const SteadyReading&)> steadyObserver_;
    SteadinessState state_ = SteadinessState::noStone;
    std::optional<time_point> last_;
    std::deque<Reading> readings_;     // those within the window, oldest first
    std::optional<time_point> placed_; // when the stone's first reading came
    std::optional<double> handedOut_;  // the last steady reading of this stone
    std::optional<SteadyReading> current_;
};

} // namespace velmora
