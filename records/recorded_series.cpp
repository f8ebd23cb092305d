#include "records/recorded_series.h"

namespace velmora {

RecordedSeries recordedSeries(const RotationSeries& series) {
    RecordedSeries recorded;
    recorded.values = series.values();
    recorded.low = series.low();
    recorded.high = series.high();
    if (!series.empty()) {
        recorded.birefringence = series.birefringence();
    }
    recorded.verdict = series.verdict(FixedLocale("."));
    return recorded;
}

} // namespace velmora
