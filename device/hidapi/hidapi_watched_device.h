#pragma once

// A device the hidapi watcher reports: the properties it was enumerated with and, when it could be
// opened, the device read and written by its worker thread.

#include "device/hid_watcher.h"
#include "device/hidapi/hidapi_device.h"

#include <map>
#include <memory>
#include <string>

namespace velmora::hidapi {

using HidProperties = std::map<std::string, HidProperty, std::less<>>;

class HidapiWatchedDevice final : public WatchedHidDevice {
public:
    // opened is none for a device that could not be opened: it is there, but tells nothing.
    HidapiWatchedDevice(HidProperties properties, std::unique_ptr<HidapiDevice> opened)
        : properties_(std::move(properties)), opened_(std::move(opened)) {}

    void registerInputReportCallback(InputReportCallback callback) override {
        if (opened_) {
            opened_->registerInputReportCallback(std::move(callback));
        }
    }
    std::optional<std::string> productProperty() const override {
        const HidProperty product = property("Product");
        const auto* text = std::get_if<std::string>(&product);
        return text ? std::optional(*text) : std::nullopt;
    }
    void setOutputReport(std::uint8_t reportId, std::span<const std::uint8_t> report) override {
        if (opened_) {
            opened_->setOutputReport(reportId, report);
        }
    }
    HidProperty property(const std::string& key) const override {
        const auto it = properties_.find(key);
        return it != properties_.end() ? it->second : HidProperty();
    }

    // Stops reading and closes the device; its properties stay.
    void close() {
        if (opened_) {
            opened_->stop();
        }
    }

private:
    HidProperties properties_;
    std::unique_ptr<HidapiDevice> opened_;
};

} // namespace velmora::hidapi
