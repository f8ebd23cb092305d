#pragma once

// The HID layer beneath the instrument session: one method per HID manager call the session makes.
// The application's manager is hidapi (device/hidapi/), --simulate's is the simulated instrument
// (device/sim/), the tests' a scripted fake.
//
// Every callback of a manager and of its devices runs on the run loop it is scheduled with, and a
// callback may drop the manager that calls it (a removal ends the session). Dropping a manager
// releases it: its callbacks stop and its devices are closed.

#include "device/hid_device.h"
#include "foundation/run_loop.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

namespace velmora {

// The devices a manager looks at: those with this USB vendor and product identifier.
struct HidMatching {
    std::uint16_t vendorId = 0;
    std::uint16_t productId = 0;
    bool operator==(const HidMatching&) const = default;
};

class HidManager {
public:
    using DeviceCallback = std::function<void()>;

    virtual ~HidManager() = default;

    virtual void scheduleWithRunLoop(RunLoop& runLoop) = 0;
    virtual void unscheduleFromRunLoop() = 0;
    virtual void open() = 0;
    virtual void setDeviceMatching(HidMatching matching) = 0;

    // The matching devices, open; empty when there is none.
    virtual std::vector<std::shared_ptr<HidDevice>> copyDevices() = 0;

    // Called when a matching device is attached / removed. An empty callback unregisters.
    virtual void registerDeviceMatchingCallback(DeviceCallback callback) = 0;
    virtual void registerDeviceRemovalCallback(DeviceCallback callback) = 0;
};

} // namespace velmora
