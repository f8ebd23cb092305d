#pragma once

// One open HID device, as the instrument session uses it: its input reports, its product name and
// its output reports. Obtained from a HidManager, whose run loop all its callbacks run on.

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace velmora {

using Bytes = std::vector<std::uint8_t>;

class HidDevice {
public:
    using InputReportCallback = std::function<void(std::span<const std::uint8_t> report)>;

    virtual ~HidDevice() = default;

    // The callback receives every input report that arrives after it is registered. It may drop
    // the manager and the device that call it.
    virtual void registerInputReportCallback(InputReportCallback callback) = 0;

    // The device's "Product" property: its product string, none when it has none.
    virtual std::optional<std::string> productProperty() const = 0;

    // Sends an output report. A failed send is silent: the next request simply goes unanswered.
    virtual void setOutputReport(std::uint8_t reportId, std::span<const std::uint8_t> report) = 0;
};

} // namespace velmora
