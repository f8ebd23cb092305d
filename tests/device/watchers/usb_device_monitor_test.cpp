// The raw-USB watchers' handling of attached and removed devices: what each failure prints, which
// devices are announced, and the busy case that the monitor accepts and the DFU device refuses.

#include "device/dfu_device.h"
#include "device/usb_device_monitor.h"

#include <gtest/gtest.h>
#include <sstream>

namespace velmora {
namespace {

// One device, with the outcome of each step the watchers take on it.
struct Step {
    std::optional<std::uint64_t> id = 0x0103000000000000;
    std::optional<std::string> name = "Velmora";
    bool plugIn = true;
    UsbOpenResult open = {};
    int release = 0;
};

class Device final : public UsbDeviceInterface, public UsbPlugInInterface {
public:
    explicit Device(Step step) : step_(std::move(step)) {}
    UsbOpenResult open() override { return step_.open; }
    std::optional<std::uint16_t> vendorId() override { return 0x04D8; }
    std::optional<std::uint16_t> productId() override { return 0xF9FF; }
    UsbInterfaceResult<UsbDeviceInterface> queryDeviceInterface() override {
        return {0, std::make_shared<Device>(step_)};
    }

private:
    Step step_;
};

class Service final : public UsbService {
public:
    explicit Service(Step step) : step_(std::move(step)) {}
    std::optional<std::uint64_t> registryEntryId() override { return step_.id; }
    std::optional<std::string> registryName() override { return step_.name; }
    UsbInterfaceResult<UsbPlugInInterface> createPlugInInterface() override {
        return {0, step_.plugIn ? std::make_shared<Device>(step_) : nullptr};
    }
    int release() override { return step_.release; }

private:
    Step step_;
};

class NoWatcher final : public UsbWatcher {
    void watch(USBMonitorData, Handler, Handler) override {}
    void run() override {}
    void stop() override {}
};

UsbServices services(const std::vector<Step>& steps) {
    UsbServices out;
    for (const auto& step : steps) {
        out.push_back(std::make_unique<Service>(step));
    }
    return out;
}

// Each notification as a line: its name, then the device's id, name and vendor.
struct Watching {
    NoWatcher watcher;
    std::ostringstream out;
    NotificationCenter center;
    std::vector<std::string> posted;
    Watching() {
        center.addObserver<USBDeviceConnected>([this](const USBDeviceConnected& n) {
            posted.push_back("connected " + std::to_string(n.device.id) + " " + n.device.name +
                             " " + std::to_string(n.device.vendorId));
        });
        center.addObserver<USBDeviceDisconnected>([this](const USBDeviceDisconnected& n) {
            posted.push_back("disconnected " + std::to_string(n.id));
        });
        center.addObserver<DFUDeviceConnected>(
            [this](auto&) { posted.emplace_back("DFU connected"); });
        center.addObserver<DFUDeviceDisconnected>(
            [this](auto&) { posted.emplace_back("DFU disconnected"); });
    }
};

using Lines = std::vector<std::string>;
const std::string velmoraId = std::to_string(0x0103000000000000);

TEST(USBDeviceMonitor, AnnouncesOpenedAndBusyDevicesAndTellsEachFailure) {
    Watching run;
    USBDeviceMonitor monitor({{0x04D8, 0xF9FF}}, run.watcher, run.out, run.center);
    auto attached =
        services({{},
                  {.id = std::nullopt, .name = std::nullopt, .open = {-536870203, true}},
                  {.plugIn = false},
                  {.open = {-3, false}}});
    monitor.devicesAttached(attached);
    EXPECT_EQ(run.out.str(),
              "Error getting device id\nError getting device name\n"
              "Unable to get Plug-In Interface\nCould not open device (error: -3)\n");
    // The busy one is announced without the id and name it could not give.
    EXPECT_EQ(run.posted, (Lines{"connected " + velmoraId + " Velmora 1240", "connected 0  1240"}));

    run.out.str("");
    auto removed = services({{}, {.release = 5}});
    monitor.devicesRemoved(removed);
    EXPECT_EQ(run.out.str(), "Couldn\u2019t release raw device object (error: 5)\n");
    EXPECT_EQ(run.posted.back(), "disconnected " + velmoraId);
    EXPECT_EQ(run.posted.size(), 3u);
}

TEST(DFUDevice, ABusyInstrumentIsAnErrorAndAnOpenedOneIsAnnounced) {
    Watching run;
    DFUDevice dfu(run.watcher, run.out, run.center);
    auto attached = services({{.open = {-536870203, true}}, {}});
    dfu.devicesAttached(attached);
    EXPECT_EQ(run.out.str(), "usb Device Name: Velmora\nCould not open device (error: -536870203)\n"
                             "usb Device Name: Velmora\nDFU device has been device connected\n");
    auto removed = services({{}});
    dfu.devicesRemoved(removed);
    EXPECT_EQ(run.posted, (Lines{"DFU connected", "DFU disconnected"}));
}

} // namespace
} // namespace velmora
