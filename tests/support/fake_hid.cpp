#include "tests/support/fake_hid.h"

#include <algorithm>
#include <cassert>
#include <cstdio>
#include <memory>

namespace velmora::test {

class FakeHidDevice final : public HidDevice {
public:
    explicit FakeHidDevice(FakeHidBus& bus) : bus_(bus) {}

    void registerInputReportCallback(InputReportCallback callback) override {
        bus_.calls_.emplace_back("registerInput");
        callback_ = std::move(callback);
    }

    std::optional<std::string> productProperty() const override {
        bus_.calls_.emplace_back("product");
        return bus_.productName;
    }

    void setOutputReport(std::uint8_t reportId, std::span<const std::uint8_t> report) override {
        bus_.sent_.push_back({reportId, Bytes(report.begin(), report.end())});
    }

    void deliver(const Bytes& report) const {
        // A copy: the callback may drop this device.
        if (auto callback = callback_) {
            callback(report);
        }
    }

private:
    FakeHidBus& bus_;
    InputReportCallback callback_;
};

class FakeHidManager final : public HidManager {
public:
    explicit FakeHidManager(FakeHidBus& bus) : bus_(bus) {
        bus_.calls_.emplace_back("create");
        bus_.managers_.push_back(this);
    }

    ~FakeHidManager() override {
        bus_.calls_.emplace_back("destroy");
        std::erase(bus_.managers_, this);
    }

    void scheduleWithRunLoop(RunLoop&) override {
        bus_.calls_.emplace_back("schedule");
        scheduled_ = true;
    }

    void unscheduleFromRunLoop() override {
        bus_.calls_.emplace_back("unschedule");
        scheduled_ = false;
    }

    void open() override { bus_.calls_.emplace_back("open"); }

    void setDeviceMatching(HidMatching matching) override {
        char text[32];
        std::snprintf(text, sizeof text, "match %04x:%04x", matching.vendorId, matching.productId);
        bus_.calls_.emplace_back(text);
    }

    std::vector<std::shared_ptr<HidDevice>> copyDevices() override {
        bus_.calls_.emplace_back("copyDevices");
        if (!bus_.instrumentAttached) {
            return {};
        }
        if (devices_.empty()) {
            devices_.push_back(std::make_shared<FakeHidDevice>(bus_));
        }
        return {devices_.begin(), devices_.end()};
    }

    void registerDeviceMatchingCallback(DeviceCallback callback) override {
        bus_.calls_.emplace_back(callback ? "registerMatching" : "unregisterMatching");
        matching_ = std::move(callback);
    }

    void registerDeviceRemovalCallback(DeviceCallback callback) override {
        bus_.calls_.emplace_back(callback ? "registerRemoval" : "unregisterRemoval");
        removal_ = std::move(callback);
    }

    bool scheduled() const { return scheduled_; }

    // Each of these may end with this manager dropped, so none touches it after the callback.
    void deliverInput(const Bytes& report) {
        const auto devices = devices_;
        for (const auto& device : devices) {
            device->deliver(report);
        }
    }
    void deliverAttach() {
        if (auto callback = matching_) {
            callback();
        }
    }
    void deliverRemoval() {
        devices_.clear();
        if (auto callback = removal_) {
            callback();
        }
    }

private:
    FakeHidBus& bus_;
    bool scheduled_ = false;
    std::vector<std::shared_ptr<FakeHidDevice>> devices_;
    DeviceCallback matching_;
    DeviceCallback removal_;
};

FakeHidBus::~FakeHidBus() {
    assert(managers_.empty() && "a manager outlives its bus");
}

HIDDeviceConnector::ManagerFactory FakeHidBus::managerFactory() {
    return [this] {
        return std::make_unique<FakeHidManager>(*this);
    };
}

std::size_t FakeHidBus::countSent(std::uint8_t byte0, std::uint8_t byte1) const {
    return static_cast<std::size_t>(std::count_if(sent_.begin(), sent_.end(), [&](const auto& r) {
        return r.bytes.size() >= 2 && r.bytes[0] == byte0 && r.bytes[1] == byte1;
    }));
}

template <typename Deliver> void FakeHidBus::forEachScheduledManager(Deliver deliver) {
    // A callback may drop any manager, so each is looked up again before it is used.
    const auto snapshot = managers_;
    for (auto* manager : snapshot) {
        if (std::find(managers_.begin(), managers_.end(), manager) != managers_.end() &&
            manager->scheduled()) {
            deliver(*manager);
        }
    }
}

void FakeHidBus::sendInputReport(const Bytes& report) {
    forEachScheduledManager([&](FakeHidManager& m) { m.deliverInput(report); });
}

void FakeHidBus::attach() {
    instrumentAttached = true;
    forEachScheduledManager([](FakeHidManager& m) { m.deliverAttach(); });
}

void FakeHidBus::unplug() {
    instrumentAttached = false;
    forEachScheduledManager([](FakeHidManager& m) { m.deliverRemoval(); });
}

} // namespace velmora::test
