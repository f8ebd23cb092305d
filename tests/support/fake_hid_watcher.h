#pragma once

// Scripted HID devices for the HID watchers. The test plugs and unplugs devices and has them send
// input reports; every output report a device is sent is recorded. run() first reports the
// matching devices already plugged in; then it and later() are those of ScriptedDeliveries.

#include "device/hid_watcher.h"
#include "foundation/value.h"
#include "tests/support/scripted_deliveries.h"

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace velmora::test {

struct FakeHidDeviceDescription {
    std::string path = "/dev/hidraw0"; // how the test names it
    std::uint16_t vendorId = 0x04D8;
    std::uint16_t productId = 0xF9FF;
    std::uint16_t usagePage = 0xFF00;
    std::uint16_t usage = 0x0001;
    std::optional<std::string> product = "Velmora Refractometer";
    std::optional<std::int64_t> maxInputReportSize = 8;
    // Its "LocationID"; none gives the path, as the real watcher does.
    Value locationId{};
};

// One output report as the device received it: the identifier, then the rest.
struct FakeSentReport {
    std::uint8_t reportId = 0;
    Bytes bytes;
    bool operator==(const FakeSentReport&) const = default;
};

class FakeHidWatcher final : public HidWatcher {
public:
    void setDeviceMatchingMultiple(std::vector<HIDMonitorData> criteria) override;
    void registerDeviceMatchingCallback(DeviceCallback callback) override;
    void registerDeviceRemovalCallback(DeviceCallback callback) override;
    void run() override;
    void stop() override;

    void plug(const FakeHidDeviceDescription& description);
    void unplug(const std::string& path);
    // The device sends a report; it reaches its input callback if the device was reported.
    void sendInputReport(const std::string& path, Bytes report);
    void later(std::function<void()> step) { deliveries_.later(std::move(step)); }

    // The criteria given last, as the watcher received them.
    std::vector<HIDMonitorData> criteria();
    std::vector<FakeSentReport> sentTo(const std::string& path);

private:
    class Device;

    // With mutex_ held.
    bool matches(const FakeHidDeviceDescription& description) const;

    std::mutex mutex_;
    std::vector<HIDMonitorData> criteria_;
    DeviceCallback attached_;
    DeviceCallback removed_;
    // Plugged in, in plugging order; reported once run() has begun.
    std::vector<std::shared_ptr<Device>> plugged_;
    std::map<std::string, std::vector<FakeSentReport>> sent_;
    bool running_ = false;
    ScriptedDeliveries deliveries_;
};

} // namespace velmora::test
