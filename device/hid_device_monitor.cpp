#include "device/hid_device_monitor.h"

#include <algorithm>

namespace velmora {

namespace {

std::int64_t numberOr0(const WatchedHidDevice& device, const char* key) {
    const HidProperty value = device.property(key);
    const std::int64_t* number = std::get_if<std::int64_t>(&value);
    return number ? *number : 0;
}

std::string textOrEmpty(const WatchedHidDevice& device, const char* key) {
    const HidProperty value = device.property(key);
    const std::string* text = std::get_if<std::string>(&value);
    return text ? *text : std::string();
}

} // namespace

HIDDevice HIDDevice::from(const std::shared_ptr<WatchedHidDevice>& device) {
    return {textOrEmpty(*device, "LocationID"),
            numberOr0(*device, "VendorID"),
            numberOr0(*device, "ProductID"),
            numberOr0(*device, "MaxInputReportSize"),
            device,
            textOrEmpty(*device, "Product")};
}

HIDDeviceMonitor::HIDDeviceMonitor(std::vector<HIDMonitorData> vp, std::int64_t reportSize,
                                   HidWatcher& watcher, NotificationCenter& center)
    : vp(std::move(vp)), reportSize(reportSize), watcher_(watcher), center_(center) {}

void HIDDeviceMonitor::start() {
    watcher_.setDeviceMatchingMultiple(vp);
    watcher_.registerDeviceMatchingCallback(
        [this](const std::shared_ptr<WatchedHidDevice>& device) { deviceAttached(device); });
    watcher_.registerDeviceRemovalCallback(
        [this](const std::shared_ptr<WatchedHidDevice>& device) { deviceRemoved(device); });
    watcher_.run();
}

void HIDDeviceMonitor::inputReportReceived(std::span<const std::uint8_t> report) {
    const auto length =
        std::min(report.size(), static_cast<std::size_t>(std::max<std::int64_t>(reportSize, 0)));
    center_.post(HIDMonitorDataReceived{Bytes(report.begin(), report.begin() + length)});
}

void HIDDeviceMonitor::deviceAttached(const std::shared_ptr<WatchedHidDevice>& device) {
    if (!device) {
        return;
    }
    device->registerInputReportCallback(
        [this](std::span<const std::uint8_t> report) { inputReportReceived(report); });
    center_.post(HIDMonitorDeviceConnected{HIDDevice::from(device)});
}

void HIDDeviceMonitor::deviceRemoved(const std::shared_ptr<WatchedHidDevice>& device) {
    if (!device) {
        return;
    }
    center_.post(HIDDeviceDisconnected{HIDDevice::from(device).id});
}

} // namespace velmora
