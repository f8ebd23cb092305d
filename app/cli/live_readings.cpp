#include "app/cli/live_readings.h"

#include "app/cli/output.h"
#include "device/reading.h"
#include "foundation/event_loop.h"

#include <atomic>
#include <csignal>
#include <ostream>

namespace velmora::cli {

namespace {

// Ctrl-C ends the session as --count does, so the instrument is still told Disconnect.
class StopOnInterrupt {
public:
    explicit StopOnInterrupt(EventLoop& loop) {
        loop_.store(&loop);
        struct sigaction action {};
        action.sa_handler = [](int) {
            if (auto* loop = loop_.load()) {
                loop->stop();
            }
        };
        sigemptyset(&action.sa_mask);
        sigaction(SIGINT, &action, &previous_);
    }
    ~StopOnInterrupt() {
        sigaction(SIGINT, &previous_, nullptr);
        loop_.store(nullptr);
    }
    StopOnInterrupt(const StopOnInterrupt&) = delete;
    StopOnInterrupt& operator=(const StopOnInterrupt&) = delete;

private:
    static inline std::atomic<EventLoop*> loop_{nullptr};
    struct sigaction previous_ {};
};

} // namespace

bool printLiveReadings(const HIDDeviceConnector::ManagerFactory& managers, Log& log,
                       const Locale& locale, std::optional<int> count, bool json,
                       std::ostream& out) {
    bool connected = false;
    int printed = 0;
    EventLoop loop;
    NotificationCenter center;
    center.addObserver<HIDDeviceConnected>([&](const HIDDeviceConnected&) { connected = true; });
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
    if (connected) {
        const StopOnInterrupt interrupt(loop);
        loop.run();
    }
    connector.disconnectDataToDevice();
    return connected;
}

} // namespace velmora::cli
