#include "tests/support/fake_usb_watcher.h"

#include <algorithm>
#include <memory>

namespace velmora::test {

namespace {

class FakeDeviceInterface final : public UsbDeviceInterface {
public:
    explicit FakeDeviceInterface(FakeUsbDevice device) : device_(std::move(device)) {}
    UsbOpenResult open() override { return device_.openResult; }
    std::optional<std::uint16_t> vendorId() override {
        return device_.idsReadable ? std::optional(device_.vendorId) : std::nullopt;
    }
    std::optional<std::uint16_t> productId() override {
        return device_.idsReadable ? std::optional(device_.productId) : std::nullopt;
    }

private:
    FakeUsbDevice device_;
};

class FakePlugInInterface final : public UsbPlugInInterface {
public:
    explicit FakePlugInInterface(FakeUsbDevice device) : device_(std::move(device)) {}
    UsbInterfaceResult<UsbDeviceInterface> queryDeviceInterface() override {
        if (device_.deviceInterfaceCode != 0 || device_.deviceInterfaceMissing) {
            return {device_.deviceInterfaceCode, nullptr};
        }
        return {0, std::make_shared<FakeDeviceInterface>(device_)};
    }

private:
    FakeUsbDevice device_;
};

class FakeService final : public UsbService {
public:
    explicit FakeService(FakeUsbDevice device) : device_(std::move(device)) {}
    std::optional<std::uint64_t> registryEntryId() override {
        return device_.idReadable ? std::optional(device_.location) : std::nullopt;
    }
    std::optional<std::string> registryName() override { return device_.name; }
    UsbInterfaceResult<UsbPlugInInterface> createPlugInInterface() override {
        if (device_.plugInCode != 0 || device_.plugInMissing) {
            return {device_.plugInCode, nullptr};
        }
        return {0, std::make_shared<FakePlugInInterface>(device_)};
    }
    int release() override { return device_.releaseCode; }

private:
    FakeUsbDevice device_;
};

bool matches(const USBMonitorData& criterion, const FakeUsbDevice& device) {
    return criterion.vendorId == device.vendorId && criterion.productId == device.productId;
}

} // namespace

void FakeUsbWatcher::deliver(const Watch& watch, bool attached,
                             std::vector<FakeUsbDevice> devices) {
    std::erase_if(devices, [&](const FakeUsbDevice& d) { return !matches(watch.criterion, d); });
    if (devices.empty()) {
        return;
    }
    deliveries_.deliver([&watch, attached, devices = std::move(devices)] {
        UsbServices services;
        for (const auto& device : devices) {
            services.push_back(std::make_unique<FakeService>(device));
        }
        (attached ? watch.attached : watch.removed)(services);
    });
}

void FakeUsbWatcher::watch(USBMonitorData criterion, Handler attached, Handler removed) {
    const std::lock_guard lock(mutex_);
    watches_.push_back({criterion, std::move(attached), std::move(removed)});
    deliver(watches_.back(), true, present_);
}

void FakeUsbWatcher::plug(const FakeUsbDevice& device) {
    const std::lock_guard lock(mutex_);
    present_.push_back(device);
    for (const auto& watch : watches_) {
        deliver(watch, true, {device});
    }
}

void FakeUsbWatcher::unplug(std::uint64_t location) {
    const std::lock_guard lock(mutex_);
    const auto found = std::ranges::find(present_, location, &FakeUsbDevice::location);
    if (found == present_.end()) {
        return;
    }
    const FakeUsbDevice device = *found;
    present_.erase(found);
    for (const auto& watch : watches_) {
        deliver(watch, false, {device});
    }
}

void FakeUsbWatcher::run() {
    deliveries_.run();
}

void FakeUsbWatcher::stop() {
    deliveries_.stop();
}

} // namespace velmora::test
