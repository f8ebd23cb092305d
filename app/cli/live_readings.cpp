#include "app/cli/live_readings.h"

#include "app/cli/output.h"
#include "app/cli/watch_platform.h"
#include "device/reading.h"
#include "foundation/posix/event_loop.h"

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
                             const Locale& locale, std::optional<int> count, bool json,
                             std::ostream& out) {
    bool connected = false;
    bool unplugged = false;
    int printed = 0;
    EventLoop loop;
    NotificationCenter center;
    center.addObserver<HIDDeviceConnected>([&](const HIDDeviceConnected&) { connected = true; });
    center.addObserver<HIDDeviceDisconnected>([&](const HIDDeviceDisconnected&) {
        unplugged = true;
        loop.stop();
    });
    center.addObserver<HIDDeviceDataReceived>([&](const HIDDeviceDataReceived& reading) {
        if (count && printed == *count) {
            return;
        }
        printRecord(out, json, {{"reading", formatReadingForDisplay(reading.data, locale)}});
        out.flush();
        ++printed;
        if (count && printed == *count) {
            loop.stop();
        }
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
