#include "device/serial_device_monitor.h"

#include <chrono>
#include <cmath>
#include <string>
#include <unordered_set>

namespace velmora {

namespace {

std::unordered_set<std::string> pathsOf(const std::vector<SerialDevice>& devices) {
    std::unordered_set<std::string> paths;
    for (const auto& device : devices) {
        paths.insert(device.path);
    }
    return paths;
}

template <class Change>
void postEach(NotificationCenter& center, const std::vector<SerialDevice>& devices,
              const std::unordered_set<std::string>& except) {
    for (const auto& device : devices) {
        if (!except.contains(device.path)) {
            center.post(Change{device});
        }
    }
}

} // namespace

SerialDeviceMonitor::SerialDeviceMonitor(SerialPortSource& source, NotificationCenter& center)
    : source_(source), center_(center) {}

void SerialDeviceMonitor::start() {
    std::unique_lock lock(mutex_);
    while (!stopped_) {
        lock.unlock();
        poll();
        lock.lock();
        wake_.wait_for(lock, std::chrono::microseconds(pauseMicroseconds()),
                       [this] { return stopped_; });
    }
}

void SerialDeviceMonitor::stop() {
    {
        const std::lock_guard lock(mutex_);
        stopped_ = true;
    }
    wake_.notify_all();
}

void SerialDeviceMonitor::poll() {
    std::vector<SerialDevice> snapshot;
    for (auto& port : source_.availablePorts()) {
        // A port that cannot be opened by path is of no use to anyone.
        if (!port.path.empty()) {
            snapshot.push_back(std::move(port));
        }
    }
    if (filterDevices) {
        snapshot = filterDevices(std::move(snapshot));
    }
    postEach<SerialDeviceRemoved>(center_, serialDevices, pathsOf(snapshot));
    postEach<SerialDeviceAdded>(center_, snapshot, pathsOf(serialDevices));
    serialDevices = std::move(snapshot);
}

bool SerialDeviceMonitor::setPortUsageIntervalTime(double seconds) {
    constexpr double limit = 4294.967296; // 2^32 microseconds
    if (!std::isfinite(seconds) || seconds < 0 || seconds >= limit) {
        return false;
    }
    portUsageIntervalTime_ = static_cast<float>(seconds);
    return true;
}

std::uint32_t SerialDeviceMonitor::pauseMicroseconds() const {
    return static_cast<std::uint32_t>(
        std::llround(static_cast<double>(portUsageIntervalTime_) * 1'000'000.0));
}

} // namespace velmora
