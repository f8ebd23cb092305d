#pragma once

// How the HID watchers see the devices: a watcher that, given criteria, reports the matching HID
// devices as they come and go, each open for its input reports, and delivers everything on the
// thread that runs it. The application's watcher is hidapi's (device/hidapi/), the tests' a
// scripted fake.

#include "device/hid_device.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace velmora {

// One matching criterion: a device matches on its vendor and product identifiers, and on the
// usage page and usage when they are given.
struct HIDMonitorData {
    std::int64_t vendorId = 0;
    std::int64_t productId = 0;
    std::optional<std::int64_t> usagePage;
    std::optional<std::int64_t> usage;

    // A device with several top-level usages matches when any one of them does.
    bool matches(std::uint16_t deviceVendorId, std::uint16_t deviceProductId,
                 std::uint16_t deviceUsagePage, std::uint16_t deviceUsage) const {
        return vendorId == deviceVendorId && productId == deviceProductId &&
               (!usagePage || *usagePage == deviceUsagePage) && (!usage || *usage == deviceUsage);
    }
};

// A device property as the HID manager keeps it: a number, a text, or none when the device lacks
// it.
using HidProperty = std::variant<std::monostate, std::int64_t, std::string>;

// A device as a watcher hands it over: besides its reports, the properties it was found with.
class WatchedHidDevice : public HidDevice {
public:
    // By the HID manager's keys: "VendorID", "ProductID" and "MaxInputReportSize" are numbers,
    // "Product" is text, and "LocationID", which tells the device apart from every other one
    // attached, is whatever the platform gives.
    virtual HidProperty property(const std::string& key) const = 0;
};

class HidWatcher {
public:
    using DeviceCallback = std::function<void(const std::shared_ptr<WatchedHidDevice>& device)>;

    virtual ~HidWatcher() = default;

    // The devices to report: those matching any criterion. An empty list matches none.
    virtual void setDeviceMatchingMultiple(std::vector<HIDMonitorData> criteria) = 0;
    // Called when a matching device is attached / removed.
    virtual void registerDeviceMatchingCallback(DeviceCallback callback) = 0;
    virtual void registerDeviceRemovalCallback(DeviceCallback callback) = 0;

    // Reports on the calling thread until stop(): first the matching devices already present,
    // then arrivals, removals and the input reports of the devices reported, as they happen.
    // Returns at once when stop() came first. The devices are closed when it returns.
    virtual void run() = 0;
    // Safe from any thread, and from a callback.
    virtual void stop() = 0;
};

} // namespace velmora
