#pragma once

// The steps that both raw-USB watchers take on each device, with the lines they print when a step
// fails. The lines go out one at a time and at once, so a technician watching sees each as it
// happens.

#include "device/usb_watcher.h"

#include <cstdint>
#include <iosfwd>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace velmora::usb {

void printLine(std::ostream& out, std::string_view line);

// The registry entry identifier, or 0 after printing "Error getting device id".
std::uint64_t registryEntryIdOrZero(UsbService& service, std::ostream& out);

// The registry name cut to 127 bytes (never inside a character), or empty after printing "Error
// getting device name".
std::string registryNameOrEmpty(UsbService& service, std::ostream& out);

struct ReachedDevice {
    std::shared_ptr<UsbPlugInInterface> plugIn;
    std::shared_ptr<UsbDeviceInterface> device;
};

// Creates the plug-in interface, lets go of the service and queries the device interface. A
// missing interface is always told; a request that failed only when tellFailures is set.
std::optional<ReachedDevice> reachDevice(UsbService& service, std::ostream& out, bool tellFailures);

void printOpenError(std::ostream& out, int code);

// Lets go of a removed device's service; false after printing the error.
bool releaseRemoved(UsbService& service, std::ostream& out);

} // namespace velmora::usb
