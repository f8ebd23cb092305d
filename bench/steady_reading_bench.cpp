// From one input report of the instrument to what the live panel shows: the reading decoded and
// posted, its display text, the steadiness over the last second, automatic capture and the
// rotation series' verdict. The readings are a simulated gemmologist's, stones placed, turned
// and lifted. Target: far under a frame (16 ms) a report at ten reports a second.

#include "device/capture_model.h"
#include "device/device_notifications.h"
#include "device/reading.h"
#include "device/sim/simulated_session.h"
#include "foundation/c_number.h"
#include "foundation/notification_center.h"

#include <benchmark/benchmark.h>
#include <cstdint>
#include <string>
#include <vector>

namespace {

using namespace velmora;

// What the panel would show after a report.
struct Panel {
    std::string figure;
    SteadinessState state = SteadinessState::noStone;
    std::vector<std::string> captured;
    std::string verdict;
};

std::vector<std::uint16_t> gemmologistAtWork(std::size_t count) {
    sim::SimulatedSession session(1);
    std::vector<std::uint16_t> readings(count);
    for (auto& reading : readings) {
        reading = session.next();
    }
    return readings;
}

void BM_ReportToPanelWithSteadinessAndSeries(benchmark::State& state) {
    // A session of 20 minutes, played over and over.
    const auto readings = gemmologistAtWork(12000);
    const FixedLocale locale(",");
    NotificationCenter center;
    CaptureModel model({.automatic = true});
    Panel panel;
    std::chrono::milliseconds now{0};
    model.onStateChange([&](SteadinessState s) { panel.state = s; });
    model.onSeriesChange([&](const RotationSeries& series) {
        panel.captured.clear();
        for (const double value : series.values()) {
            panel.captured.push_back(formatValueForDisplay(value, locale));
        }
        panel.verdict = series.verdict(locale);
    });
    center.addObserver<HIDDeviceDataReceived>([&](const HIDDeviceDataReceived& reading) {
        panel.figure = formatReadingForDisplay(reading.data, locale);
        model.add(now, parseCNumber(reading.data).value_or(0));
    });

    const auto report = [&](std::uint16_t raw) {
        now += std::chrono::milliseconds(100);
        center.post(HIDDeviceDataReceived{decodeReading(static_cast<std::uint8_t>(raw & 0xFF),
                                                        static_cast<std::uint8_t>(raw >> 8))});
    };
    // Once through first, so the series hold what a session's do.
    for (const std::uint16_t raw : readings) {
        report(raw);
    }
    if (panel.verdict.empty()) {
        state.SkipWithError("no series reached the panel");
        return;
    }
    std::size_t next = 0;
    for (auto _ : state) {
        report(readings[next]);
        next = (next + 1) % readings.size();
        benchmark::DoNotOptimize(panel.figure.data());
    }
}
BENCHMARK(BM_ReportToPanelWithSteadinessAndSeries);

// The steadiness alone, over a window of a second and of ten seconds.
void BM_SteadinessPerReading(benchmark::State& state) {
    const auto readings = gemmologistAtWork(12000);
    Steadiness steadiness({.window = std::chrono::milliseconds(state.range(0))});
    std::chrono::milliseconds now{0};
    std::size_t next = 0;
    for (auto _ : state) {
        now += std::chrono::milliseconds(100);
        steadiness.add(now, readings[next] / 1000.0);
        next = (next + 1) % readings.size();
    }
    benchmark::DoNotOptimize(steadiness.state());
}
BENCHMARK(BM_SteadinessPerReading)->Arg(1000)->Arg(10000);

} // namespace
