#pragma once

// A watcher of raw USB devices by vendor/product pairs. It posts USBDeviceConnected for every
// matching device present at start and every one attached later, and USBDeviceDisconnected for
// every one removed. Nothing in the application starts it: it is what a technician runs to see
// what is plugged in.

#include "device/usb_service_handler.h"
#include "device/usb_watcher.h"
#include "foundation/notification_center.h"

#include <cstdint>
#include <iostream>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace velmora {

struct USBDevice {
    std::uint64_t id = 0;
    std::uint16_t vendorId = 0;
    std::uint16_t productId = 0;
    std::string name;
    // The device is kept open for as long as someone holds these.
    std::shared_ptr<UsbDeviceInterface> deviceInterfacePtrPtr;
    std::shared_ptr<UsbPlugInInterface> plugInInterfacePtrPtr;
};

struct USBDeviceConnected {
    static constexpr std::string_view name = "USBDeviceConnected";
    USBDevice device;
};

struct USBDeviceDisconnected {
    static constexpr std::string_view name = "USBDeviceDisconnected";
    std::uint64_t id = 0; // the registry entry identifier
};

class USBDeviceMonitor : public UsbServiceHandler {
public:
    // Diagnostic lines go to out; notifications to center, posted from the thread of start().
    USBDeviceMonitor(std::vector<USBMonitorData> vp, UsbWatcher& watcher,
                     std::ostream& out = std::cout,
                     NotificationCenter& center = NotificationCenter::defaultCenter());

    // Watches every pair and reports until stop(): meant for a thread of its own. Call once.
    void start() { watchUntilStopped(vp); }

    void devicesAttached(UsbServices& services) override;
    void devicesRemoved(UsbServices& services) override;

    const std::vector<USBMonitorData> vp;
};

} // namespace velmora
