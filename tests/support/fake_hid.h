#pragma once

// The USB side of the instrument session as a test scripts it: whether the instrument is plugged
// in and what it calls itself; every report the host sends it, byte by byte; and the instrument's
// input reports, attach and removal, delivered to the managers that are scheduled, as the HID
// layer delivers them on the run loop.

#include "device/hid_device_connector.h"
#include "foundation/value.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace velmora::test {

struct SentReport {
    std::uint8_t reportId = 0;
    Bytes bytes;
    bool operator==(const SentReport&) const = default;
};

class FakeHidManager;

class FakeHidBus {
public:
    FakeHidBus() = default;
    ~FakeHidBus();
    FakeHidBus(const FakeHidBus&) = delete;
    FakeHidBus& operator=(const FakeHidBus&) = delete;

    // What the next copyDevices() finds.
    bool instrumentAttached = true;
    std::optional<std::string> productName = "Velmora Refractometer";

    // Each manager it makes sees this bus; the bus must outlive them.
    HIDDeviceConnector::ManagerFactory managerFactory();

    const std::vector<SentReport>& sentReports() const { return sent_; }
    // How many reports began with these bytes.
    std::size_t countSent(std::uint8_t byte0, std::uint8_t byte1) const;

    // Every call the managers received, in order: "create", "schedule", "open",
    // "match 04d8:f9ff", "copyDevices", "registerInput", "product", "registerMatching",
    // "registerRemoval", "unregisterMatching", "unregisterRemoval", "unschedule", "destroy".
    const std::vector<std::string>& calls() const { return calls_; }
    std::size_t liveManagers() const { return managers_.size(); }

    // The instrument sends an input report to every open device.
    void sendInputReport(const Bytes& report);
    // The instrument is plugged in / pulled out.
    void attach();
    void unplug();

private:
    friend class FakeHidManager;
    friend class FakeHidDevice;

    template <typename Deliver> void forEachScheduledManager(Deliver deliver);

    std::vector<SentReport> sent_;
    std::vector<std::string> calls_;
    std::vector<FakeHidManager*> managers_;
};

} // namespace velmora::test
