#include "app/cli/watch_sources.h"

#include "app/cli/watch_platform.h"
#include "device/serial_device_monitor.h"
#include "device/usb_device_monitor.h"

#include <algorithm>
#include <any>
#include <cstdio>
#include <ostream>

namespace velmora::cli {

namespace {

// The instrument's identifiers, watched by `watch usb` unless others are given.
constexpr std::uint16_t instrumentVendorId = 0x04D8;
constexpr std::uint16_t instrumentProductId = 0xF9FF;

std::string hex(std::uint64_t value, int digits) {
    char text[24];
    std::snprintf(text, sizeof text, "0x%0*llX", digits, static_cast<unsigned long long>(value));
    return text;
}

std::string hex16(const std::optional<std::int64_t>& value) {
    return value ? hex(static_cast<std::uint64_t>(*value), 4) : std::string();
}

template <class T> const T* recordIn(const Value& object, const char* key) {
    const Value* value = object[key];
    const std::any* record = value ? value->asRecord() : nullptr;
    return record ? std::any_cast<T>(record) : nullptr;
}

class UsbWatch final : public Watch {
public:
    UsbWatch(std::unique_ptr<UsbWatcher> watcher, USBMonitorData criterion, std::ostream& lines)
        : watcher_(std::move(watcher)), monitor_({criterion}, *watcher_, lines) {}

    void start() override { monitor_.start(); }
    void stop() override { monitor_.stop(); }

private:
    std::unique_ptr<UsbWatcher> watcher_;
    USBDeviceMonitor monitor_;
};

class SerialWatch final : public Watch {
public:
    explicit SerialWatch(std::unique_ptr<SerialPortSource> source)
        : source_(std::move(source)), monitor_(*source_) {}

    SerialDeviceMonitor& monitor() { return monitor_; }
    void start() override { monitor_.start(); }
    void stop() override { monitor_.stop(); }

private:
    std::unique_ptr<SerialPortSource> source_;
    SerialDeviceMonitor monitor_;
};

WatchSource usbSource() {
    return {
        "usb",
        false,
        {{USBDeviceConnected,
          [](const Value& object) -> Fields {
              const auto* device = recordIn<USBDevice>(object, "device");
              if (device == nullptr) {
                  return {};
              }
              return {{"id", hex(device->id, 16)},
                      {"vendorId", hex(device->vendorId, 4)},
                      {"productId", hex(device->productId, 4)},
                      {"name", device->name}};
          }},
         {USBDeviceDisconnected,
          [](const Value& object) -> Fields {
              const auto* id = recordIn<std::uint64_t>(object, "id");
              return id ? Fields{{"id", hex(*id, 16)}} : Fields{};
          }}},
        [](const WatchOptions& options, Context& context,
           std::ostream& lines) -> std::unique_ptr<Watch> {
            std::string error;
            auto watcher = watchPlatform().usbWatcher(error);
            if (!watcher) {
                *context.err << "Cannot watch USB devices: " << error << '\n';
                context.exitCode = exitAlert;
                return nullptr;
            }
            return std::make_unique<UsbWatch>(
                std::move(watcher),
                USBMonitorData{options.vendorId.value_or(instrumentVendorId),
                               options.productId.value_or(instrumentProductId)},
                lines);
        },
    };
}

Fields serialFields(const Value& object) {
    const auto* device = recordIn<SerialDevice>(object, "device");
    if (device == nullptr) {
        return {};
    }
    return {{"path", device->path},
            {"name", device->name.value_or("")},
            {"vendorName", device->vendorName.value_or("")},
            {"serialNumber", device->serialNumber.value_or("")},
            {"vendorId", hex16(device->vendorId)},
            {"productId", hex16(device->productId)}};
}

WatchSource serialSource() {
    return {
        "serial",
        true,
        {{SerialDeviceRemoved, serialFields}, {SerialDeviceAdded, serialFields}},
        [](const WatchOptions& options, Context& context,
           std::ostream& /*lines*/) -> std::unique_ptr<Watch> {
            auto watch = std::make_unique<SerialWatch>(watchPlatform().serialPorts());
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

} // namespace

const std::vector<WatchSource>& watchSources() {
    static const std::vector<WatchSource> sources{usbSource(), serialSource()};
    return sources;
}

} // namespace velmora::cli
