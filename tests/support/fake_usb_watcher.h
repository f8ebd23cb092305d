#pragma once

// A scripted bus for the raw-USB watchers. The test plugs and unplugs devices, and can make any
// step of taking hold of a device fail. run() and later() are those of ScriptedDeliveries.

#include "device/usb_watcher.h"
#include "tests/support/scripted_deliveries.h"

#include <cstdint>
#include <deque>
#include <functional>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace velmora::test {

struct FakeUsbDevice {
    std::uint64_t location = 0;
    std::uint16_t vendorId = 0x04D8;
    std::uint16_t productId = 0xF9FF;
    std::optional<std::string> name = "Velmora"; // none: the name cannot be read
    bool idReadable = true;
    // Each interface request fails with a non-zero code, or succeeds but comes without the
    // interface when missing.
    int plugInCode = 0;
    bool plugInMissing = false;
    int deviceInterfaceCode = 0;
    bool deviceInterfaceMissing = false;
    UsbOpenResult openResult{};
    bool idsReadable = true;
    int releaseCode = 0;
};

class FakeUsbWatcher final : public UsbWatcher {
public:
    void watch(USBMonitorData criterion, Handler attached, Handler removed) override;
    void run() override;
    void stop() override;

    // Puts a device on the bus: the watches that match it hear of it, in their initial drain
    // when they begin later.
    void plug(const FakeUsbDevice& device);
    void unplug(std::uint64_t location);
    void later(std::function<void()> step) { deliveries_.later(std::move(step)); }

private:
    struct Watch {
        USBMonitorData criterion;
        Handler attached;
        Handler removed;
    };

    // With mutex_ held.
    void deliver(const Watch& watch, bool attached, std::vector<FakeUsbDevice> devices);

    std::mutex mutex_;
    std::deque<Watch> watches_;
    std::vector<FakeUsbDevice> present_;
    ScriptedDeliveries deliveries_;
};

} // namespace velmora::test
