#include "tests/support/fake_hid_watcher.h"

#include <algorithm>

namespace velmora::test {

class FakeHidWatcher::Device final : public WatchedHidDevice {
public:
    Device(FakeHidWatcher& watcher, FakeHidDeviceSpec spec)
        : watcher_(watcher), spec_(std::move(spec)) {}

    const FakeHidDeviceSpec& spec() const { return spec_; }

    void registerInputReportCallback(InputReportCallback callback) override {
        callback_ = std::move(callback);
    }
    std::optional<std::string> productProperty() const override { return spec_.product; }
    void setOutputReport(std::uint8_t reportId, std::span<const std::uint8_t> report) override {
        const std::lock_guard lock(watcher_.mutex_);
        watcher_.sent_[spec_.path].push_back({reportId, Bytes(report.begin(), report.end())});
    }
    Value property(const std::string& key) const override {
        if (key == "LocationID") {
            return spec_.locationId.isNone() ? Value(spec_.path) : spec_.locationId;
        }
        if (key == "VendorID") {
            return int{spec_.vendorId};
        }
        if (key == "ProductID") {
            return int{spec_.productId};
        }
        if (key == "Product" && spec_.product) {
            return *spec_.product;
        }
        if (key == "MaxInputReportSize" && spec_.maxInputReportSize) {
            return *spec_.maxInputReportSize;
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
    FakeHidDeviceSpec spec_;
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

bool FakeHidWatcher::matches(const FakeHidDeviceSpec& spec) const {
    return std::ranges::any_of(criteria_, [&](const HIDMonitorData& criterion) {
        return criterion.matches(spec.vendorId, spec.productId, spec.usagePage, spec.usage);
    });
}

void FakeHidWatcher::plug(const FakeHidDeviceSpec& spec) {
    const std::lock_guard lock(mutex_);
    const auto device = std::make_shared<Device>(*this, spec);
    plugged_.push_back(device);
    if (running_ && matches(spec)) {
        deliveries_.deliver([this, device] { attached_(device); });
    }
}

void FakeHidWatcher::unplug(const std::string& path) {
    const std::lock_guard lock(mutex_);
    const auto found =
        std::ranges::find(plugged_, path, [](const auto& d) { return d->spec().path; });
    if (found == plugged_.end()) {
        return;
    }
    const auto device = *found;
    plugged_.erase(found);
    if (running_ && matches(device->spec())) {
        deliveries_.deliver([this, device] { removed_(device); });
    }
}

void FakeHidWatcher::sendInputReport(const std::string& path, Bytes report) {
    const std::lock_guard lock(mutex_);
    const auto found =
        std::ranges::find(plugged_, path, [](const auto& d) { return d->spec().path; });
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
            if (matches(device->spec())) {
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
