#pragma once

// A watcher of the instrument itself on the raw USB bus, as its firmware updater needs it: it
// opens every instrument that attaches and posts DFUDeviceConnected once it is open, and
// DFUDeviceDisconnected when it goes. Unlike USBDeviceMonitor it counts a device held exclusively
// by another client as a failure, since it cannot update a device it does not hold. Nothing in the
// application starts it.

#include "device/instrument_usb_ids.h"
#include "device/usb_service_handler.h"
#include "device/usb_watcher.h"
#include "foundation/notification_center.h"

#include <cstdint>
#include <iostream>
#include <memory>
#include <string_view>

namespace velmora {

// Both carry nothing: there is only the instrument to watch.
struct DFUDeviceConnected {
    static constexpr std::string_view name = "DFUDeviceConnected";
};
struct DFUDeviceDisconnected {
    static constexpr std::string_view name = "DFUDeviceDisconnected";
};

class DFUDevice : public UsbServiceHandler {
public:
    // Diagnostic lines go to out; notifications to center, posted from the thread of initUsb().
    explicit DFUDevice(UsbWatcher& watcher, std::ostream& out = std::cout,
                       NotificationCenter& center = NotificationCenter::defaultCenter())
        : UsbServiceHandler(watcher, out, center) {}

    // Watches for the instrument until stop(): meant for a thread of its own. Call once.
    void initUsb() { watchUntilStopped({{vendorId, productId}}); }

    void devicesAttached(UsbServices& services) override;
    void devicesRemoved(UsbServices& services) override;

    // The instrument's identifiers, the only pair watched.
    static constexpr std::uint16_t vendorId = instrumentVendorId;
    static constexpr std::uint16_t productId = instrumentProductId;

    // The interfaces of the instrument last opened; it stays open while they are held.
    std::shared_ptr<UsbDeviceInterface> deviceInterfacePtrPtr;
    std::shared_ptr<UsbPlugInInterface> plugInInterfacePtrPtr;
};

} // namespace velmora
