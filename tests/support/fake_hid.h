#pragma once

// The USB side of the instrument session as a test scripts it: whether the instrument is plugged
// in; every report the host sends it, byte by byte; and the instrument's input reports and
// removal, delivered to the newest manager while it is scheduled, as the HID layer delivers them
// on the run loop.

#include "device/hid_device_connector.h"

#include <algorithm>
#include <cassert>
#include <cstdint>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace velmora::test {

struct SentReport {
    std::uint8_t reportId = 0;
    Bytes bytes;
    bool operator==(const SentReport&) const = default;
};

class FakeHidBus {
public:
    FakeHidBus() = default;
    ~FakeHidBus() { assert(live_ == 0 && "a manager outlives its bus"); }
    FakeHidBus(const FakeHidBus&) = delete;
    FakeHidBus& operator=(const FakeHidBus&) = delete;

    // What the next copyDevices() finds.
    bool instrumentAttached = true;
    // The instrument's side: called with every report the host sends, from a task that the send
    // queues on the manager's run loop, so it may answer, or be unplugged, as a device would.
    std::function<void(const SentReport& report)> answer;

    // Each manager it makes sees this bus; the bus must outlive them.
    HIDDeviceConnector::ManagerFactory managerFactory() {
        return [this] {
            return std::make_unique<Manager>(*this);
        };
    }

    const std::vector<SentReport>& sentReports() const { return sent_; }
    // How many reports began with these bytes.
    std::size_t countSent(std::uint8_t byte0, std::uint8_t byte1) const {
        return std::ranges::count_if(sent_, [&](const SentReport& r) {
            return r.bytes.size() >= 2 && r.bytes[0] == byte0 && r.bytes[1] == byte1;
        });
    }
    std::size_t liveManagers() const { return live_; }

    // The instrument sends an input report to the open device.
    void sendInputReport(const Bytes& report) {
        if (auto* manager = scheduledManager(); manager && manager->device) {
            const auto input = manager->device->input; // a copy: it may drop the manager
            if (input) {
                input(report);
            }
        }
    }
    // The instrument is pulled out.
    void unplug() {
        instrumentAttached = false;
        if (auto* manager = scheduledManager()) {
            manager->device.reset();
            deliver(manager->removal);
        }
    }

private:
    struct Device final : HidDevice {
        explicit Device(FakeHidBus& bus) : bus(bus) {}
        void registerInputReportCallback(InputReportCallback callback) override {
            input = std::move(callback);
        }
        std::optional<std::string> productProperty() const override {
            return "Velmora Refractometer";
        }
        void setOutputReport(std::uint8_t reportId, std::span<const std::uint8_t> report) override {
            bus.sent_.push_back({reportId, Bytes(report.begin(), report.end())});
            if (bus.answer && bus.runLoop_) {
                bus.runLoop_->post([&bus = bus, sent = bus.sent_.back()] { bus.answer(sent); });
            }
        }

        FakeHidBus& bus;
        InputReportCallback input;
    };

    struct Manager final : HidManager {
        explicit Manager(FakeHidBus& bus) : bus(bus) {
            bus.newest_ = this;
            ++bus.live_;
        }
        ~Manager() override {
            --bus.live_;
            if (bus.newest_ == this) {
                bus.newest_ = nullptr;
            }
        }

        void scheduleWithRunLoop(RunLoop& runLoop) override {
            bus.runLoop_ = &runLoop;
            scheduled = true;
        }
        void unscheduleFromRunLoop() override { scheduled = false; }
        void open() override {}
        void setDeviceMatching(HidMatching matching) override {
            EXPECT_TRUE((matching == HidMatching{0x04D8, 0xF9FF})) << "not the instrument";
        }
        std::vector<std::shared_ptr<HidDevice>> copyDevices() override {
            if (bus.instrumentAttached && !device) {
                device = std::make_shared<Device>(bus);
            }
            return bus.instrumentAttached ? std::vector<std::shared_ptr<HidDevice>>{device}
                                          : std::vector<std::shared_ptr<HidDevice>>{};
        }
        void registerDeviceMatchingCallback(DeviceCallback) override {}
        void registerDeviceRemovalCallback(DeviceCallback callback) override {
            removal = std::move(callback);
        }

        FakeHidBus& bus;
        bool scheduled = false;
        std::shared_ptr<Device> device;
        DeviceCallback removal;
    };

    Manager* scheduledManager() const { return newest_ && newest_->scheduled ? newest_ : nullptr; }
    // A copy: the callback may drop the manager that holds it.
    static void deliver(HidManager::DeviceCallback callback) {
        if (callback) {
            callback();
        }
    }

    std::vector<SentReport> sent_;
    Manager* newest_ = nullptr;
    std::size_t live_ = 0;
    RunLoop* runLoop_ = nullptr; // the last one a manager was scheduled on
};

} // namespace velmora::test
