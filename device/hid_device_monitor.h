#pragma once

// A general watcher of HID devices by vendor/product, and optionally usage, criteria. It posts
// HIDDeviceConnected for every matching device present at start and every one attached later,
// HIDDeviceDataReceived with the raw bytes of each of their input reports, and
// HIDDeviceDisconnected for every one removed: the instrument session's three names, with payloads
// of their own. Nothing in the application starts it: it is what a technician runs to see what is
// plugged in.

#include "device/device_notifications.h"
#include "device/hid_watcher.h"
#include "foundation/notification_center.h"

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

namespace velmora {

// One attached device, as the monitor's HIDDeviceConnected carries it; its HIDDeviceDisconnected
// carries the id.
struct HIDDevice {
    std::string id; // the "LocationID" when it is text, else empty
    std::int64_t vendorId = 0;
    std::int64_t productId = 0;
    std::int64_t reportSize = 0; // the device's largest input report
    std::shared_ptr<WatchedHidDevice> device = nullptr;
    std::string name = {};

    static HIDDevice from(const std::shared_ptr<WatchedHidDevice>& device);
};

// The monitor's payloads under the session's names: the window, which observes the session's,
// does not see these.
struct HIDMonitorDeviceConnected {
    static constexpr std::string_view name = HIDDeviceConnected::name;
    HIDDevice device;
};
// The report's bytes, exactly as many as it has (up to the monitor's reportSize).
struct HIDMonitorDataReceived {
    static constexpr std::string_view name = HIDDeviceDataReceived::name;
    Bytes data;
};

class HIDDeviceMonitor {
public:
    // reportSize is the length of the input buffer each device gets: longer reports are cut to
    // it. Notifications go to center, posted from the thread of start().
    HIDDeviceMonitor(std::vector<HIDMonitorData> vp, std::int64_t reportSize, HidWatcher& watcher,
                     NotificationCenter& center = NotificationCenter::defaultCenter());
    virtual ~HIDDeviceMonitor() = default;
    HIDDeviceMonitor(const HIDDeviceMonitor&) = delete;
    HIDDeviceMonitor& operator=(const HIDDeviceMonitor&) = delete;

    // Watches and reports until stop(): meant for a thread of its own. Call once.
    void start();
    // Safe from any thread; start() returns soon after, or at once if it has not begun yet.
    void stop() { watcher_.stop(); }

    virtual void inputReportReceived(std::span<const std::uint8_t> report);
    virtual void deviceAttached(const std::shared_ptr<WatchedHidDevice>& device);
    virtual void deviceRemoved(const std::shared_ptr<WatchedHidDevice>& device);

    const std::vector<HIDMonitorData> vp;
    const std::int64_t reportSize;

private:
    HidWatcher& watcher_;
    NotificationCenter& center_;
};

} // namespace velmora
