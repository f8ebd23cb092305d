// From one input report of the instrument to the window's figure and strip chart: the reading
// decoded and posted, the controller showing it, the steadiness beside it, the chart's readings
// and band, automatic capture into the series and its verdict, and what a repaint of the chart
// reads from its model. The window is the platform-free one the Qt widgets mirror; its element
// observers stand for the widgets. Target: far under a frame (16 ms) a report at ten reports a
// second; bench/frame_latency measures the painted frame on the real window.

#include "device/device_notifications.h"
#include "device/reading.h"
#include "device/sim/simulated_session.h"
#include "foundation/locale.h"
#include "foundation/notification_center.h"
#include "ui/main_window.h"
#include "ui/view_controller.h"

#include <benchmark/benchmark.h>
#include <cstdint>
#include <sstream>
#include <vector>

namespace {

using namespace velmora;

// Nothing queued is run while measuring: the readings' path queues nothing.
class ClockOnly final : public RunLoop {
public:
    void post(Task) override {}
    TimerId scheduleRepeating(std::chrono::milliseconds, Task) override { return 0; }
    void cancel(TimerId) override {}
    std::chrono::milliseconds now() const override { return now_; }
    std::chrono::milliseconds now_{0};
};

struct Nobody final : AlertPresenter, ScreenPresenter, InstrumentLink {
    std::size_t runModal(const std::string&, const std::string&, AlertStyle,
                         const std::vector<std::string>&) override {
        return 0;
    }
    void presentTutorialScreen() override {}
    void presentContactScreen() override {}
    void connectDataToDevice() override {}
    void disconnectDataToDevice() override {}
};

void BM_ReportToFigureAndChart(benchmark::State& state) {
    sim::SimulatedSession session(1);
    std::vector<std::uint16_t> readings(12000); // twenty minutes at the bench
    for (auto& reading : readings) {
        reading = session.next();
    }
    ClockOnly runLoop;
    NotificationCenter center;
    Nobody nobody;
    const FixedLocale locale(".");
    std::ostringstream output;
    MainWindow window;
    ViewController controller(
        window, {runLoop, center, nobody, locale, std::nullopt, output, nobody, nobody});
    controller.viewDidLoad();
    center.post(HIDDeviceConnected{});
    window.check_autoCapture.performClick();

    // What the widgets would read on their next paint.
    std::string figure;
    std::size_t painted = 0;
    window.usb_device_reading.setObserver(
        [&](Property) { figure = window.usb_device_reading.text(); });
    window.chart_reading.setObserver([&](Property) {
        const auto range = window.chart_reading.valueRange();
        painted += window.chart_reading.readings().size() + (range ? 1 : 0);
    });

    const auto report = [&](std::uint16_t raw) {
        runLoop.now_ += std::chrono::milliseconds(100);
        center.post(HIDDeviceDataReceived{decodeReading(static_cast<std::uint8_t>(raw & 0xFF),
                                                        static_cast<std::uint8_t>(raw >> 8))});
    };
    for (const std::uint16_t raw : readings) { // the chart full and series taken
        report(raw);
    }
    if (window.lbl_seriesValues.text().empty()) {
        state.SkipWithError("no capture reached the series");
        return;
    }
    std::size_t next = 0;
    for (auto _ : state) {
        report(readings[next]);
        next = (next + 1) % readings.size();
        benchmark::DoNotOptimize(figure.data());
    }
    benchmark::DoNotOptimize(painted);
}
BENCHMARK(BM_ReportToFigureAndChart);

// The chart model alone: a reading in and the oldest out, with the height worked out as each
// repaint does.
void BM_StripChartReading(benchmark::State& state) {
    StripChart chart;
    std::chrono::milliseconds now{0};
    std::size_t next = 0;
    for (auto _ : state) {
        now += std::chrono::milliseconds(100);
        chart.addReading(now, 1.62 + static_cast<double>(next++ % 20) / 1000.0);
        benchmark::DoNotOptimize(chart.valueRange());
    }
}
BENCHMARK(BM_StripChartReading);

} // namespace
