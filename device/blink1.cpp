#include "device/blink1.h"

#include <algorithm>
#include <array>
#include <ostream>
#include <string>

namespace velmora {

namespace {

constexpr std::uint8_t attachReport[] = {0x01, 0x6E, 0x00, 0xFF, 0x00};

// [1, 110, 0, 255, 0]
std::string decimalList(std::span<const std::uint8_t> bytes) {
    std::string text = "[";
    for (std::size_t k = 0; k < bytes.size(); ++k) {
        text += (k == 0 ? "" : ", ") + std::to_string(bytes[k]);
    }
    return text + "]";
}

} // namespace

Blink1::Blink1(HidWatcher& watcher, std::ostream& out, NotificationCenter& center)
    : watcher_(watcher), out_(out), center_(center) {}

void Blink1::initUsb() {
    watcher_.setDeviceMatchingMultiple({{vendorId, productId, std::nullopt, std::nullopt}});
    watcher_.registerDeviceMatchingCallback(
        [this](const std::shared_ptr<WatchedHidDevice>& attached) { deviceAttached(attached); });
    watcher_.registerDeviceRemovalCallback(
        [this](const std::shared_ptr<WatchedHidDevice>& removed) { deviceRemoved(removed); });
    watcher_.run();
}

void Blink1::send(std::span<const std::uint8_t> data) {
    if (data.size() > static_cast<std::size_t>(reportSize)) {
        out_ << "output data too large for USB report" << std::endl;
        return;
    }
    if (!device) {
        return;
    }
    out_ << "Senting output: " << decimalList(data) << std::endl;
    std::array<std::uint8_t, reportSize> report{};
    std::ranges::copy(data, report.begin());
    // The identifier goes out as the report's first byte, which the device takes as its own, so
    // the device is given it apart from the rest.
    device->setOutputReport(report[0], std::span(report).subspan(1));
}

void Blink1::deviceAttached(const std::shared_ptr<WatchedHidDevice>& attached) {
    if (!attached) {
        return;
    }
    out_ << "Device connected" << std::endl;
    device = attached;
    device->registerInputReportCallback(
        [this](std::span<const std::uint8_t> report) { inputReportReceived(report); });
    send(attachReport);
}

void Blink1::inputReportReceived(std::span<const std::uint8_t> report) {
    std::array<std::uint8_t, 4> shown{};
    std::copy_n(report.begin(), std::min(report.size(), shown.size()), shown.begin());
    out_ << "Input received: " << decimalList(shown) << std::endl;
}

void Blink1::deviceRemoved(const std::shared_ptr<WatchedHidDevice>& removed) {
    if (!removed) {
        return;
    }
    out_ << "Device removed" << std::endl;
    center_.post(DeviceDisconnected{className});
}

} // namespace velmora
