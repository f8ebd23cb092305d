#include "app/cli/live_readings.h"

#include "app/cli/output.h"
#include "app/cli/watch_platform.h"
#include "device/reading.h"
#include "device/steadiness.h"
#include "foundation/c_number.h"
#include "foundation/posix/event_loop.h"

#include <limits>
#include <nlohmann/json.hpp>
#include <ostream>
#include <thread>

namespace velmora::cli {

namespace {

// Runs the loop on this thread until it is stopped, or until Ctrl-C or SIGTERM, which end the
// session as --count does, so the instrument is still told Disconnect.
void runUntilInterrupted(EventLoop& loop) {
    StopSignal interrupted;
    // Without a pipe to wait on, Ctrl-C and SIGTERM keep their default: they end the process.
    if (!interrupted.valid()) {
        loop.run();
        return;
    }
    const auto ending = watchPlatform().endOn(interrupted);
    const std::jthread waiter([&] {
        interrupted.wait();
        loop.stop();
    });
    loop.run();
    // Releases the waiter; the stop it then gives the loop is never seen, the loop is done.
    interrupted.request();
}

} // namespace

SessionEnd printLiveReadings(const HIDDeviceConnector::ManagerFactory& managers, Log& log,
                             const Locale& locale, const PrintedReadings& options,
                             std::ostream& out) {
    const auto count = options.count;
    bool connected = false;
    bool unplugged = false;
    int lines = 0;
    EventLoop loop(watchPlatform().sessionTime);
    NotificationCenter center;
    center.addObserver<HIDDeviceConnected>([&](const HIDDeviceConnected&) { connected = true; });
    center.addObserver<HIDDeviceDisconnected>([&](const HIDDeviceDisconnected&) {
        unplugged = true;
        loop.stop();
    });
    const auto linePrinted = [&] {
        out.flush();
        ++lines;
        if (count && lines == *count) {
            loop.stop();
        }
    };

    const auto connectedAt = loop.now();
    Steadiness steadiness;
    steadiness.onSteadyReading([&](const SteadyReading& reading) {
        const std::string shown = formatValueForDisplay(reading.value, locale);
        if (!options.json) {
            printRecord(out, false, {{"reading", shown}});
        } else {
            // Numbers, in seconds since Connect on the loop's clock for the time.
            const nlohmann::ordered_json line = {
                {"reading", shown},
                {"spread", reading.spread},
                {"time", std::chrono::duration<double>(reading.time - connectedAt).count()}};
            out << line.dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace)
                << '\n';
        }
        linePrinted();
    });
    center.addObserver<HIDDeviceDataReceived>([&](const HIDDeviceDataReceived& reading) {
        if (count && lines == *count) {
            return;
        }
        if (options.steady) {
            steadiness.add(
                loop.now(),
                parseCNumber(reading.data).value_or(std::numeric_limits<double>::quiet_NaN()));
            return;
        }
        printRecord(out, options.json,
                    {{"reading", formatReadingForDisplay(reading.data, locale)}});
        linePrinted();
    });

    HIDDeviceConnector connector(managers, loop, center, log);
    connector.connectDataToDevice();
    if (!connected) {
        connector.disconnectDataToDevice();
        return SessionEnd::NoInstrument;
    }
    runUntilInterrupted(loop);
    // Only an unplugging ends the session by itself: taken before Disconnect posts its own.
    const bool wasUnplugged = unplugged;
    connector.disconnectDataToDevice();
    return wasUnplugged ? SessionEnd::Unplugged : SessionEnd::Stopped;
}

} // namespace velmora::cli
