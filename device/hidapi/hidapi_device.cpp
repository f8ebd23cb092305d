#include "device/hidapi/hidapi_device.h"

namespace velmora::hidapi {

HidapiDevice::HidapiDevice(std::unique_ptr<HidHandle> handle, std::optional<std::string> product,
                           RunLoop& runLoop, std::function<void()> removed)
    : product_(std::move(product)) {
    HidDeviceWorker::Handlers handlers{// A copy: the callback may drop this device.
                                       [this](std::span<const std::uint8_t> report) {
                                           if (const auto callback = callback_) {
                                               callback(report);
                                           }
                                       },
                                       std::move(removed)};
    worker_ = std::make_unique<HidDeviceWorker>(std::move(handle), runLoop, std::move(handlers));
}

void HidapiDevice::registerInputReportCallback(InputReportCallback callback) {
    callback_ = std::move(callback);
}

void HidapiDevice::setOutputReport(std::uint8_t reportId, std::span<const std::uint8_t> report) {
    if (!worker_) {
        return;
    }
    Bytes bytes{reportId};
    bytes.insert(bytes.end(), report.begin(), report.end());
    worker_->write(std::move(bytes));
}

void HidapiDevice::stop() {
    worker_.reset();
}

} // namespace velmora::hidapi
