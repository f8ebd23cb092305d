#include "device/usb_device_monitor.h"

#include "device/usb_service_steps.h"

namespace velmora {

USBDeviceMonitor::USBDeviceMonitor(std::vector<USBMonitorData> vp, UsbWatcher& watcher,
                                   std::ostream& out, NotificationCenter& center)
    : UsbServiceHandler(watcher, out, center), vp(std::move(vp)) {}

void USBDeviceMonitor::devicesAttached(UsbServices& services) {
    for (auto& service : services) {
        USBDevice device;
        device.id = usb::registryEntryIdOrZero(*service, out_);
        device.name = usb::registryNameOrEmpty(*service, out_);
        auto reached = usb::reachDevice(*service, out_, false);
        if (!reached) {
            continue;
        }
        // A device that another client holds exclusively is still reported: it is there.
        const UsbOpenResult opened = reached->device->open();
        if (opened.code != 0 && !opened.busy) {
            usb::printOpenError(out_, opened.code);
            continue;
        }
        const auto vendorId = reached->device->vendorId();
        const auto productId = reached->device->productId();
        if (!vendorId || !productId) {
            continue;
        }
        device.vendorId = *vendorId;
        device.productId = *productId;
        device.deviceInterfacePtrPtr = std::move(reached->device);
        device.plugInInterfacePtrPtr = std::move(reached->plugIn);
        center_.post(USBDeviceConnected{std::move(device)});
    }
}

void USBDeviceMonitor::devicesRemoved(UsbServices& services) {
    for (auto& service : services) {
        const std::uint64_t id = usb::registryEntryIdOrZero(*service, out_);
        if (usb::releaseRemoved(*service, out_)) {
            center_.post(USBDeviceDisconnected{id});
        }
    }
}

} // namespace velmora
