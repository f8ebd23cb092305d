#pragma once

// The instrument opened through hidapi. Its worker thread does the device calls; this object
// lives on the loop's thread.

#include "device/hid_device.h"
#include "device/hidapi/hid_device_worker.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace velmora::hidapi {

class HidapiDevice final : public HidDevice {
public:
    // removed runs on the loop's thread when the device goes away.
    HidapiDevice(std::unique_ptr<HidHandle> handle, std::optional<std::string> product,
                 RunLoop& runLoop, std::function<void()> removed);

    void registerInputReportCallback(InputReportCallback callback) override;
    std::optional<std::string> productProperty() const override { return product_; }
    // hidapi takes the report identifier as the first byte of what it writes.
    void setOutputReport(std::uint8_t reportId, std::span<const std::uint8_t> report) override;

    // Stops the worker and closes the device; nothing is read or written after.
    void stop();

private:
    std::optional<std::string> product_;
    InputReportCallback callback_;
    std::unique_ptr<HidDeviceWorker> worker_; // last: its handlers use the members above
};

} // namespace velmora::hidapi
