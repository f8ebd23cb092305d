// From one input report of the instrument to the text of the live reading field: decoding, the
// HIDDeviceDataReceived notification and the display formatting, on their own and through the
// whole session with the simulated instrument. Target: under 20 microseconds a report.

#include "device/device_notifications.h"
#include "device/hid_device_connector.h"
#include "device/reading.h"
#include "device/sim/replayed_readings.h"
#include "device/sim/simulated_instrument.h"

#include <benchmark/benchmark.h>
#include <cstdint>
#include <deque>
#include <string>

namespace {

using namespace velmora;

// The session's deferred work, run when the benchmark says; its timer never fires, the benchmark
// sends each request itself.
class QueueLoop final : public RunLoop {
public:
    void post(Task task) override { tasks_.push_back(std::move(task)); }
    TimerId scheduleRepeating(std::chrono::milliseconds, Task) override { return 1; }
    void cancel(TimerId) override {}
    std::chrono::milliseconds now() const override { return {}; }

    void runPending() {
        while (!tasks_.empty()) {
            const Task task = std::move(tasks_.front());
            tasks_.pop_front();
            task();
        }
    }

private:
    std::deque<Task> tasks_;
};

class NoLog final : public Log {
public:
    void info(std::string_view) override {}
    void error(std::string_view) override {}
};

// What the live reading panel does with each reading.
NotificationCenter::Token showReadings(NotificationCenter& center, const Locale& locale,
                                       std::string& field) {
    return center.addObserver<HIDDeviceDataReceived>([&](const HIDDeviceDataReceived& reading) {
        field = formatReadingForDisplay(reading.data, locale);
    });
}

void BM_ReportToDisplayText(benchmark::State& state) {
    NotificationCenter center;
    const FixedLocale locale(",");
    std::string field;
    showReadings(center, locale, field);
    std::uint8_t report[8] = {0x04, 0x06, 0, 0, 0, 0, 0, 0};
    for (auto _ : state) {
        report[0] = static_cast<std::uint8_t>(report[0] + 1);
        center.post(HIDDeviceDataReceived{decodeReading(report[0], report[1])});
        benchmark::DoNotOptimize(field.data());
    }
}
BENCHMARK(BM_ReportToDisplayText);

void BM_RequestToDisplayTextThroughTheSession(benchmark::State& state) {
    QueueLoop loop;
    NotificationCenter center;
    NoLog log;
    const FixedLocale locale(",");
    std::string field;
    showReadings(center, locale, field);
    HIDDeviceConnector connector(
        sim::simulatedInstrumentFactory(std::make_shared<sim::ReplayedReadings>(
            std::vector<std::uint16_t>{1540, 1541, 1542, 1005, 999})),
        loop, center, log);
    connector.connectDataToDevice();
    for (auto _ : state) {
        connector.update_toDevice();
        loop.runPending();
        benchmark::DoNotOptimize(field.data());
    }
    if (field.empty()) {
        state.SkipWithError("no reading reached the field");
    }
}
BENCHMARK(BM_RequestToDisplayTextThroughTheSession);

} // namespace
