#include "device/capture_model.h"

namespace velmora {

CaptureModel::CaptureModel(CaptureSettings settings)
    : steadiness_(settings.steadiness), tolerance_(settings.tolerance),
      automatic_(settings.automatic), series_(settings.tolerance) {
    steadiness_.onStateChange([this](SteadinessState state) {
        if (state == SteadinessState::noStone) {
            liftedSinceCapture_ = true;
        }
        if (stateObserver_) {
            stateObserver_(state);
        }
    });
    steadiness_.onSteadyReading([this](const SteadyReading& reading) {
        if (steadyObserver_) {
            steadyObserver_(reading);
        }
        if (automatic_) {
            take(reading.value);
        }
    });
}

void CaptureModel::onStateChange(std::function<void(SteadinessState)> observer) {
    stateObserver_ = std::move(observer);
}

void CaptureModel::onSteadyReading(std::function<void(const SteadyReading&)> observer) {
    steadyObserver_ = std::move(observer);
}

void CaptureModel::onSeriesChange(std::function<void(const RotationSeries&)> observer) {
    seriesObserver_ = std::move(observer);
}

void CaptureModel::add(Steadiness::time_point time, double value) {
    steadiness_.add(time, value);
}

CaptureResult CaptureModel::capture() {
    switch (steadiness_.state()) {
    case SteadinessState::noStone:
        return {std::nullopt, "no stone on the prism"};
    case SteadinessState::settling:
        return {std::nullopt, "the reading is still settling"};
    case SteadinessState::steady:
        break;
    }
    // The window's median now, not the steady reading handed out when it settled: the stone may
    // have been turned by less than the band since, and this is the position captured.
    const double value = steadiness_.current()->value;
    take(value);
    return {value, {}};
}

void CaptureModel::newStone() {
    liftedSinceCapture_ = false;
    series_ = RotationSeries(tolerance_);
    if (seriesObserver_) {
        seriesObserver_(series_);
    }
}

void CaptureModel::take(double value) {
    if (automatic_ && liftedSinceCapture_ && !series_.empty()) {
        series_ = RotationSeries(tolerance_);
    }
    liftedSinceCapture_ = false;
    series_.add(value);
    if (seriesObserver_) {
        seriesObserver_(series_);
    }
}

} // namespace velmora
