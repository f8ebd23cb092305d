#pragma once

// The strip chart under the live figure: the last half minute of readings, the band a steady
// reading holds to, and the readings captured into the series. The widget only paints what this
// holds; every change tells it once, so at ten readings a second it repaints ten times.

#include "ui/view.h"

#include <chrono>
#include <deque>
#include <optional>

namespace velmora {

struct ChartPoint {
    std::chrono::milliseconds time;
    // Nothing: no stone on the prism, a gap in the line.
    std::optional<double> value;
};

struct ChartRange {
    double low = 0;
    double high = 0;

    bool operator==(const ChartRange&) const = default;
};

class StripChart : public View {
public:
    using time_point = std::chrono::milliseconds;

    static constexpr time_point span{30000};
    // The chart never spans less than this vertically, so the instrument's jitter of a
    // thousandth or two does not fill the height.
    static constexpr double smallestRange = 0.010;

    // Readings come in the order of their times; older ones scroll off.
    void addReading(time_point time, std::optional<double> value);
    void markCapture(time_point time, double value);
    void setBand(std::optional<ChartRange> band);

    const std::deque<ChartPoint>& readings() const { return readings_; }
    const std::deque<ChartPoint>& captures() const { return captures_; }
    const std::optional<ChartRange>& band() const { return band_; }
    // The latest reading's time: the chart's right edge.
    time_point now() const { return now_; }
    // What the height shows, padded: the band and the readings and captures of the stone on the
    // prism (since the last gap), or of the whole span when there is none; nothing while none
    // has a value.
    std::optional<ChartRange> valueRange() const;

private:
    void dropBefore(time_point time);

    std::deque<ChartPoint> readings_;
    std::deque<ChartPoint> captures_;
    std::optional<ChartRange> band_;
    time_point now_{0};
};

} // namespace velmora
