#pragma once

// The HID manager of the application on Linux: hidapi over hidraw, which leaves the kernel's
// driver attached (hidapi's libusb backend would detach it). It opens the first device that
// matches; hidapi tells of removal (a failed read) but not of attachment, so the matching callback
// never runs, which the session does not need.
//
// An instrument that is plugged in but may not be opened, for lack of a udev rule, is told on
// standard error and in the system log: that is not the same as no instrument.

#include "device/hid_device_connector.h"
#include "device/hid_manager.h"
#include "device/hidapi/hidapi_device.h"
#include "foundation/log.h"

#include <functional>
#include <memory>
#include <optional>

namespace velmora::hidapi {

class HidapiManager final : public HidManager {
public:
    // accessDenied, when given, runs after the message about a device this user may not open.
    explicit HidapiManager(Log& log, std::function<void()> accessDenied = {});
    ~HidapiManager() override;

    void scheduleWithRunLoop(RunLoop& runLoop) override { runLoop_ = &runLoop; }
    void unscheduleFromRunLoop() override;
    void open() override;
    void setDeviceMatching(HidMatching matching) override { matching_ = matching; }
    std::vector<std::shared_ptr<HidDevice>> copyDevices() override;
    void registerDeviceMatchingCallback(DeviceCallback) override {}
    void registerDeviceRemovalCallback(DeviceCallback callback) override {
        removal_ = std::move(callback);
    }

private:
    std::shared_ptr<HidapiDevice> openFirstMatching();
    void reportOpenFailure(const std::string& path);

    Log& log_;
    std::function<void()> accessDenied_;
    RunLoop* runLoop_ = nullptr;
    std::optional<HidMatching> matching_;
    DeviceCallback removal_;
    std::shared_ptr<HidapiDevice> device_;
};

HIDDeviceConnector::ManagerFactory hidapiManagerFactory(Log& log,
                                                        std::function<void()> accessDenied = {});

} // namespace velmora::hidapi
