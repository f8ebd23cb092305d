#pragma once

// What the live panel measures from the reading stream: whether it is steady, the readings the
// user captures from it (the Capture button, or automatic capture of every steady reading), and
// the rotation series of the stone on the prism that they make up. Fed each reading with its time
// on the run loop's clock, as the panel receives them.
//
// A series belongs to one stone. New stone starts the next; so, with automatic capture, does the
// first capture after the stone was lifted. Captured by hand, a lift does not end the series: the
// gemmologist may lift the stone to turn it.

#include "device/rotation_series.h"
#include "device/steadiness.h"

#include <functional>
#include <optional>
#include <string_view>

namespace velmora {

struct CaptureSettings {
    SteadinessSettings steadiness = {};
    // The largest spread over a turn that still reads as singly refractive.
    double tolerance = 0.002;
    bool automatic = false;
};

struct CaptureResult {
    std::optional<double> value; // the reading taken
    std::string_view whyNot;     // when none was: "no stone on the prism", ...
};

class CaptureModel {
public:
    explicit CaptureModel(CaptureSettings settings = {});
    // Its steadiness calls back into it.
    CaptureModel(const CaptureModel&) = delete;
    CaptureModel& operator=(const CaptureModel&) = delete;

    void onStateChange(std::function<void(SteadinessState)> observer);
    void onSteadyReading(std::function<void(const SteadyReading&)> observer);
    // After every capture and every new series.
    void onSeriesChange(std::function<void(const RotationSeries&)> observer);

    void add(Steadiness::time_point time, double value);

    // Takes the current steady reading into the series.
    CaptureResult capture();
    void newStone();
    void setAutomatic(bool automatic) { automatic_ = automatic; }
    bool automatic() const { return automatic_; }

    const Steadiness& steadiness() const { return steadiness_; }
    const RotationSeries& series() const { return series_; }

private:
    void take(double value);

    Steadiness steadiness_;
    double tolerance_;
    bool automatic_;
    bool liftedSinceCapture_ = false;
    RotationSeries series_;
    std::function<void(SteadinessState)> stateObserver_;
    std::function<void(const SteadyReading&)> steadyObserver_;
    std::function<void(const RotationSeries&)> seriesObserver_;
};

} // namespace velmora
