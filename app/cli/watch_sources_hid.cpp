#include "app/cli/watch_platform.h"
#include "app/cli/watch_sources.h"
#include "device/blink1.h"
#include "device/hid_device_monitor.h"

#include <cstdio>
#include <ostream>

namespace velmora::cli {

namespace {

// The longest report a full-speed device sends: nothing a device reports is cut.
constexpr std::int64_t inputBufferSize = 64;

// "04 06 00 00"
std::string hexBytes(const Bytes& bytes) {
    std::string text;
    for (const std::uint8_t byte : bytes) {
        char digits[4];
        std::snprintf(digits, sizeof digits, text.empty() ? "%02X" : " %02X", byte);
        text += digits;
    }
    return text;
}

std::unique_ptr<HidWatcher> hidWatcher(Context& context) {
    return watchPlatform().hidWatcher(*context.err);
}

} // namespace

WatchSource hidSource() {
    return {
        "hid",
        {"--vendor", "--product", "--usage-page", "--usage"},
        {printed<HIDMonitorDeviceConnected>([](const HIDMonitorDeviceConnected& notification) {
             const HIDDevice& device = notification.device;
             return Fields{{"id", device.id},
                           {"vendorId", hex(static_cast<std::uint64_t>(device.vendorId), 4)},
                           {"productId", hex(static_cast<std::uint64_t>(device.productId), 4)},
                           {"reportSize", std::to_string(device.reportSize)},
                           {"name", device.name}};
         }),
         printed<HIDMonitorDataReceived>([](const HIDMonitorDataReceived& notification) {
             return Fields{{"data", hexBytes(notification.data)}};
         }),
         printed<HIDDeviceDisconnected>([](const HIDDeviceDisconnected& notification) {
             return Fields{{"id", notification.id}};
         })},
        [](const WatchOptions& options, Context& context,
           std::ostream& /*lines*/) -> std::unique_ptr<Watch> {
            const HIDMonitorData criterion{options.vendorId.value_or(instrumentVendorId),
                                           options.productId.value_or(instrumentProductId),
                                           options.usagePage, options.usage};
            return std::make_unique<MonitorWatch<HidWatcher, HIDDeviceMonitor>>(
                hidWatcher(context), [&](HidWatcher& source) {
                    return HIDDeviceMonitor({criterion}, inputBufferSize, source);
                });
        },
    };
}

WatchSource blink1Source() {
    return {
        "blink1",
        {},
        {printed<DeviceDisconnected>([](const DeviceDisconnected& notification) {
            return Fields{{"class", notification.className}};
        })},
        [](const WatchOptions& /*options*/, Context& context,
           std::ostream& lines) -> std::unique_ptr<Watch> {
            return std::make_unique<MonitorWatch<HidWatcher, Blink1, &Blink1::initUsb>>(
                hidWatcher(context), [&](HidWatcher& source) { return Blink1(source, lines); });
        },
    };
}

} // namespace velmora::cli
