#include "tests/support/fake_hid_watcher.h"

#include <algorithm>

namespace velmora::test {

class FakeHidWatcher::Device final : public WatchedHidDevice {
public:
    Device(FakeHidWatcher& watcher, FakeHidDeviceDescription description)
        : watcher_(watcher), description_(std::move(description)) {}

    const FakeHidDeviceDescription& description() const { return description_; }

    void registerInputReportCallback(InputReportCallback callback) override {
        callback_ = std::move(callback);
    }
    std::optional<std::string> productProperty() const override { return description_.product; }
    void setOutputReport(std::uint8_t reportId, std::span<const std::uint8_t> report) override {
        const std::lock_guard lock(watcher_.mutex_);
        watcher_.sent_[description_.path].push_back(
            {reportId, Bytes(report.begin(), report.end())});
    }
    Value property(const std::string& key) const override {
        if (key == "LocationID") {
            return description_.locationId.isNone() ? Value(description_.path)
                                                    : description_.locationId;
        }
        if (key == "VendorID") {
            return int{description_.vendorId};
        }
        if (key == "ProductID") {
            return int{description_.productId};
        }
        if (key == "Product" && description_.product) {
            return *description_.product;
        }
        if (key == "MaxInputReportSize" && description_.maxInputReportSize) {
            return *description_.maxInputReportSize;
        }
        return {};
    }

    void deliver(const Bytes& report) const {
        if (const auto callback = callback_) {
            callback(report);
        }
    }

private:
    FakeHidWatcher& watcher_;
    FakeHidDeviceDescription description_;
    InputReportCallback callback_;
};

void FakeHidWatcher::setDeviceMatchingMultiple(std::vector<HIDMonitorData> criteria) {
    const std::lock_guard lock(mutex_);
    criteria_ = std::move(criteria);
}

void FakeHidWatcher::registerDeviceMatchingCallback(DeviceCallback callback) {
    const std::lock_guard lock(mutex_);
    attached_ = std::move(callback);
}

void FakeHidWatcher::registerDeviceRemovalCallback(DeviceCallback callback) {
    const std::lock_guard lock(mutex_);
    removed_ = std::move(callback);
}

std::vector<HIDMonitorData> FakeHidWatcher::criteria() {
    const std::lock_guard lock(mutex_);
    return criteria_;
}

std::vector<FakeSentReport> FakeHidWatcher::sentTo(const std::string& path) {
    const std::lock_guard lock(mutex_);
    return sent_[path];
}

bool FakeHidWatcher::matches(const FakeHidDeviceDescription& description) const {
    return std::ranges::any_of(criteria_, [&](const HIDMonitorData& criterion) {
        return criterion.matches(description.vendorId, description.productId, description.usagePage,
                                 description.usage);
    });
}

void FakeHidWatcher::plug(const FakeHidDeviceDescription& description) {
    const std::lock_guard lock(mutex_);
    const auto device = std::make_shared<Device>(*this, description);
    plugged_.push_back(device);
    if (running_ && matches(description)) {
        deliveries_.deliver([this, device] { attached_(device); });
    }
}

void FakeHidWatcher::unplug(const std::string& path) {
    const std::lock_guard lock(mutex_);
    const auto found =
        std::ranges::find(plugged_, path, [](const auto& d) { return d->description().path; });
    if (found == plugged_.end()) {
        return;
    }
    const auto device = *found;
    plugged_.erase(found);
    if (running_ && matches(device->description())) {
        deliveries_.deliver([this, device] { removed_(device); });
    }
}

void FakeHidWatcher::sendInputReport(const std::string& path, Bytes report) {
    const std::lock_guard lock(mutex_);
    const auto found =
        std::ranges::find(plugged_, path, [](const auto& d) { return d->description().path; });
    if (found != plugged_.end()) {
        deliveries_.deliver(
            [device = *found, report = std::move(report)] { device->deliver(report); });
    }
}

void FakeHidWatcher::run() {
    {
        const std::lock_guard lock(mutex_);
        running_ = true;
        // The initial drain.
        for (const auto& device : plugged_) {
            if (matches(device->description())) {
                deliveries_.deliver([this, device] { attached_(device); });
            }
        }
    }
    deliveries_.run();
    const std::lock_guard lock(mutex_);
    running_ = false;
}

void FakeHidWatcher::stop() {
    deliveries_.stop();
}

} // namespace velmora::test
