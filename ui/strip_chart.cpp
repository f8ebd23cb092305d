#include "ui/strip_chart.h"

#include <algorithm>

namespace velmora {

void StripChart::addReading(time_point time, std::optional<double> value) {
    now_ = std::max(now_, time);
    readings_.push_back({time, value});
    dropBefore(now_ - span);
    changed(Property::Content);
}

void StripChart::markCapture(time_point time, double value) {
    captures_.push_back({time, value});
    dropBefore(now_ - span);
    changed(Property::Content);
}

void StripChart::setBand(std::optional<ChartRange> band) {
    update(band_, band, Property::Content);
}

void StripChart::dropBefore(time_point time) {
    for (auto* points : {&readings_, &captures_}) {
        while (!points->empty() && points->front().time < time) {
            points->pop_front();
        }
    }
}

std::optional<ChartRange> StripChart::valueRange() const {
    std::optional<ChartRange> range = band_;
    const auto include = [&range](double value) {
        if (!range) {
            range = ChartRange{value, value};
        }
        range->low = std::min(range->low, value);
        range->high = std::max(range->high, value);
    };
    // The stone on the prism fills the height: a stone before it, read tenths away, would
    // flatten its turn to a line. With none on it, all that is shown counts.
    time_point from = now_ - span;
    if (!readings_.empty() && readings_.back().value) {
        const auto gap = std::find_if(readings_.rbegin(), readings_.rend(),
                                      [](const ChartPoint& point) { return !point.value; });
        if (gap != readings_.rend()) {
            from = gap->time;
        }
    }
    for (const auto* points : {&readings_, &captures_}) {
        for (const ChartPoint& point : *points) {
            if (point.value && point.time >= from) {
                include(*point.value);
            }
        }
    }
    if (!range) {
        return std::nullopt;
    }
    // A fifth of the height spare above and below, so the line does not run along the edges.
    const double spread = std::max(range->high - range->low, smallestRange * 0.6);
    const double middle = (range->low + range->high) / 2;
    return ChartRange{middle - spread / 1.2, middle + spread / 1.2};
}

} // namespace velmora
