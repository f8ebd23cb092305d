#include "device/steadiness.h"

#include "device/thousandths.h"

#include <algorithm>
#include <vector>

namespace velmora {

Steadiness::Steadiness(SteadinessSettings settings) : settings_(settings) {}

void Steadiness::onStateChange(std::function<void(SteadinessState)> observer) {
    stateObserver_ = std::move(observer);
}

void Steadiness::onSteadyReading(std::function<void(const SteadyReading&)> observer) {
    steadyObserver_ = std::move(observer);
}

void Steadiness::add(time_point time, double value) {
    if (last_ && time < *last_) {
        return;
    }
    last_ = time;
    // NaN too: a reading that is no number shows no edge either.
    if (!(value >= settings_.noStoneBelow)) {
        readings_.clear();
        placed_.reset();
        handedOut_.reset();
        current_.reset();
        setState(SteadinessState::noStone);
        return;
    }
    if (!placed_) {
        placed_ = time;
    }
    readings_.push_back({time, value});
    while (readings_.front().time < time - settings_.window) {
        readings_.pop_front();
    }

    const SteadyReading latest = window(time);
    if (!steady(time, latest)) {
        current_.reset();
        setState(SteadinessState::settling);
        return;
    }
    current_ = latest;
    setState(SteadinessState::steady);
    // Also catches a reading that creeps away while every window stays steady on its own.
    if (!handedOut_ || differBeyond(latest.value, *handedOut_, settings_.band)) {
        handedOut_ = latest.value;
        if (steadyObserver_) {
            steadyObserver_(latest);
        }
    }
}

std::optional<SteadyReading> Steadiness::current() const {
    return current_;
}

void Steadiness::setState(SteadinessState state) {
    if (state == state_) {
        return;
    }
    state_ = state;
    if (stateObserver_) {
        stateObserver_(state);
    }
}

SteadyReading Steadiness::window(time_point time) const {
    std::vector<double> values;
    values.reserve(readings_.size());
    for (const auto& reading : readings_) {
        values.push_back(reading.value);
    }
    // Of an even count the lower middle one: the median stays a reading the instrument gave,
    // in its thousandths.
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>((values.size() - 1) / 2);
    std::nth_element(values.begin(), middle, values.end());
    const auto [lowest, highest] = std::minmax_element(values.begin(), values.end());
    return {*middle, roundToThousandths(*highest - *lowest), time};
}

bool Steadiness::steady(time_point time, const SteadyReading& window) const {
    if (time - *placed_ < settings_.window) {
        return false;
    }
    return std::ranges::none_of(readings_, [&](const Reading& reading) {
        return differBeyond(reading.value, window.value, settings_.band);
    });
}

} // namespace velmora
