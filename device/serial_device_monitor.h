#pragma once

// A watcher of the system's serial ports. It takes a fresh snapshot at every interval and compares
// it with the previous one: every port present at the first poll is reported as added, and at
// each later poll the ports that went are reported before those that came. Nothing in the
// application starts it.

#include "device/serial_device.h"
#include "device/serial_port_source.h"
#include "foundation/notification_center.h"

#include <condition_variable>
#include <cstdint>
#include <functional>
#include <mutex>
#include <string_view>
#include <vector>

namespace velmora {

struct SerialDeviceAdded {
    static constexpr std::string_view name = "SerialDeviceAdded";
    SerialDevice device;
};
struct SerialDeviceRemoved {
    static constexpr std::string_view name = "SerialDeviceRemoved";
    SerialDevice device;
};

class SerialDeviceMonitor {
public:
    using Filter = std::function<std::vector<SerialDevice>(std::vector<SerialDevice>)>;

    // Notifications go to center, posted from the thread of start().
    explicit SerialDeviceMonitor(SerialPortSource& source,
                                 NotificationCenter& center = NotificationCenter::defaultCenter());

    // Polls, pausing the port usage interval (0.25 s until set) between polls, until stop():
    // meant for a thread of its own.
    void start();
    // Safe from any thread; start() returns soon after, or at once if it has not begun yet.
    void stop();

    // One poll: a fresh snapshot, filtered, compared with serialDevices, which it then replaces.
    void poll();

    // Refuses, keeping the interval it had, a value that is not finite, is negative, or is
    // 4294.967296 s or more: the pause must count in an unsigned 32-bit number of microseconds.
    // Checked before narrowing to float, which would round 4294.967296 itself down into range.
    bool setPortUsageIntervalTime(double seconds);
    // The pause to the nearest microsecond, so that 0.7 s pauses 700,000 and not 699,999.
    std::uint32_t pauseMicroseconds() const;

    // The ports of the previous poll, after filtering. The polling thread reads this and the
    // filter without a lock: change them only while the monitor is not running.
    std::vector<SerialDevice> serialDevices;
    // Applied to each fresh snapshot; empty keeps every port.
    Filter filterDevices;

private:
    SerialPortSource& source_;
    NotificationCenter& center_;
    float portUsageIntervalTime_ = 0.25f;
    std::mutex mutex_;
    std::condition_variable wake_;
    bool stopped_ = false;
};

} // namespace velmora
