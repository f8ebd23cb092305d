#include "app/cli/watch_sources.h"

#include "app/cli/watch_platform.h"
#include "device/serial_device_monitor.h"
#include "device/usb_device_monitor.h"

#include <algorithm>
#include <cstdio>
#include <ostream>

namespace velmora::cli {

std::string hex(std::uint64_t value, int digits) {
    char text[24];
    std::snprintf(text, sizeof text, "0x%0*llX", digits, static_cast<unsigned long long>(value));
    return text;
}

namespace {

std::string hex16(const std::optional<std::int64_t>& value) {
    return value ? hex(static_cast<std::uint64_t>(*value), 4) : std::string();
}

Fields serialFields(const SerialDevice& device) {
    return {{"path", device.path},
            {"name", device.name.value_or("")},
            {"vendorName", device.vendorName.value_or("")},
            {"serialNumber", device.serialNumber.value_or("")},
            {"vendorId", hex16(device.vendorId)},
            {"productId", hex16(device.productId)}};
}

} // namespace

WatchSource usbSource() {
    return {
        "usb",
        {"--vendor", "--product"},
        {printed<USBDeviceConnected>([](const USBDeviceConnected& notification) -> Fields {
             const USBDevice& device = notification.device;
             return {{"id", hex(device.id, 16)},
                     {"vendorId", hex(device.vendorId, 4)},
                     {"productId", hex(device.productId, 4)},
                     {"name", device.name}};
         }),
         printed<USBDeviceDisconnected>([](const USBDeviceDisconnected& notification) -> Fields {
             return {{"id", hex(notification.id, 16)}};
         })},
        [](const WatchOptions& options, Context& context,
           std::ostream& lines) -> std::unique_ptr<Watch> {
            std::string error;
            auto watcher = watchPlatform().usbWatcher(error);
            if (!watcher) {
                *context.err << "Cannot watch USB devices: " << error << '\n';
                context.exitCode = exitAlert;
                return nullptr;
            }
            const USBMonitorData criterion{options.vendorId.value_or(instrumentVendorId),
                                           options.productId.value_or(instrumentProductId)};
            return std::make_unique<MonitorWatch<UsbWatcher, USBDeviceMonitor>>(
                std::move(watcher),
                [&](UsbWatcher& source) { return USBDeviceMonitor({criterion}, source, lines); });
        },
    };
}

WatchSource serialSource() {
    return {
        "serial",
        {"--vendor", "--product", "--interval"},
        {printed<SerialDeviceRemoved>(
             [](const SerialDeviceRemoved& removed) { return serialFields(removed.device); }),
         printed<SerialDeviceAdded>(
             [](const SerialDeviceAdded& added) { return serialFields(added.device); })},
        [](const WatchOptions& options, Context& context,
           std::ostream& /*lines*/) -> std::unique_ptr<Watch> {
            auto watch = std::make_unique<MonitorWatch<SerialPortSource, SerialDeviceMonitor>>(
                watchPlatform().serialPorts(),
                [](SerialPortSource& source) { return SerialDeviceMonitor(source); });
            SerialDeviceMonitor& monitor = watch->monitor();
            if (options.interval && !monitor.setPortUsageIntervalTime(*options.interval)) {
                *context.err << "--interval must be a number of seconds from 0 up to below "
                                "4294.967296\n";
                context.exitCode = exitUsage;
                return nullptr;
            }
            // Without a filter every port is listed, USB or not.
            if (options.vendorId || options.productId) {
                monitor.filterDevices = [vendorId = options.vendorId,
                                         productId =
                                             options.productId](std::vector<SerialDevice> ports) {
                    std::erase_if(ports, [&](const SerialDevice& port) {
                        return (vendorId && port.vendorId != *vendorId) ||
                               (productId && port.productId != *productId);
                    });
                    return ports;
                };
            }
            return watch;
        },
    };
}

const std::vector<WatchSource>& watchSources() {
    static const std::vector<WatchSource> sources{hidSource(), usbSource(), serialSource(),
                                                  blink1Source()};
    return sources;
}

} // namespace velmora::cli
