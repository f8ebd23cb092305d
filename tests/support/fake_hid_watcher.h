#pragma once

// Scripted HID devices for the HID watchers. The test plugs and unplugs devices and has them send
// input reports. run() first reports the matching devices already plugged in, then plays the
// test's script, then waits for stop(); from the start of run() on, plugging, unplugging and
// sending are delivered at once.

#include "device/hid_watcher.h"

#include <algorithm>
#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
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
    HidProperty locationId{};
};

class FakeHidWatcher final : public HidWatcher {
public:
    void setDeviceMatchingMultiple(std::vector<HIDMonitorData> criteria) override {
        criteria_ = std::move(criteria);
    }
    void registerDeviceMatchingCallback(DeviceCallback callback) override {
        attached_ = std::move(callback);
    }
    void registerDeviceRemovalCallback(DeviceCallback callback) override {
        removed_ = std::move(callback);
    }
    void run() override {
        running_ = true;
        for (const auto& device : std::vector(plugged_)) { // the initial drain
            if (reported(*device)) {
                attached_(device);
            }
        }
        if (script) {
            script();
        }
        stopped_.wait(false);
        running_ = false;
    }
    // Safe from any thread.
    void stop() override {
        stopped_ = true;
        stopped_.notify_all();
    }

    void plug(const FakeHidDeviceDescription& description) {
        plugged_.push_back(std::make_shared<Device>(description));
        if (reported(*plugged_.back())) {
            attached_(plugged_.back());
        }
    }
    void unplug(const std::string& path) {
        const auto found =
            std::ranges::find(plugged_, path, [](auto& d) { return d->description.path; });
        if (found != plugged_.end()) {
            const auto device = *found;
            plugged_.erase(found);
            if (reported(*device)) {
                removed_(device);
            }
        }
    }
    // Reaches the device's input callback if the device was reported.
    void sendInputReport(const std::string& path, const Bytes& report) {
        for (const auto& device : plugged_) {
            if (device->description.path == path && device->input) {
                device->input(report);
            }
        }
    }
    std::function<void()> script; // played once the devices present are reported

private:
    struct Device final : WatchedHidDevice {
        explicit Device(FakeHidDeviceDescription description)
            : description(std::move(description)) {}

        void registerInputReportCallback(InputReportCallback callback) override {
            input = std::move(callback);
        }
        std::optional<std::string> productProperty() const override { return description.product; }
        void setOutputReport(std::uint8_t, std::span<const std::uint8_t>) override {}
        HidProperty property(const std::string& key) const override {
            const auto& d = description;
            if (key == "LocationID") {
                const bool none = std::holds_alternative<std::monostate>(d.locationId);
                return none ? HidProperty(d.path) : d.locationId;
            }
            if (key == "VendorID" || key == "ProductID") {
                return std::int64_t{key == "VendorID" ? d.vendorId : d.productId};
            }
            if (key == "Product" && d.product) {
                return *d.product;
            }
            if (key == "MaxInputReportSize" && d.maxInputReportSize) {
                return *d.maxInputReportSize;
            }
            return {};
        }

        const FakeHidDeviceDescription description;
        InputReportCallback input;
    };

    bool reported(const Device& device) const {
        const auto& d = device.description;
        return running_ && std::ranges::any_of(criteria_, [&](const HIDMonitorData& c) {
                   return c.matches(d.vendorId, d.productId, d.usagePage, d.usage);
               });
    }

    std::vector<HIDMonitorData> criteria_;
    DeviceCallback attached_;
    DeviceCallback removed_;
    std::vector<std::shared_ptr<Device>> plugged_; // in plugging order
    bool running_ = false;
    std::atomic<bool> stopped_{false};
};

} // namespace velmora::test
