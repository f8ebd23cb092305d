#include "device/dfu_device.h"

#include "device/usb_service_steps.h"

namespace velmora {

void DFUDevice::devicesAttached(UsbServices& services) {
    for (auto& service : services) {
        usb::printLine(out_, "usb Device Name: " + usb::registryNameOrEmpty(*service, out_));
        auto reached = usb::reachDevice(*service, out_, true);
        if (!reached) {
            continue;
        }
        plugInInterfacePtrPtr = std::move(reached->plugIn);
        deviceInterfacePtrPtr = std::move(reached->device);
        const UsbOpenResult opened = deviceInterfacePtrPtr->open();
        if (opened.code != 0) {
            usb::printOpenError(out_, opened.code);
            continue;
        }
        center_.post(DFUDeviceConnected{});
        usb::printLine(out_, "DFU device has been device connected");
    }
}

void DFUDevice::devicesRemoved(UsbServices& services) {
    for (auto& service : services) {
        if (usb::releaseRemoved(*service, out_)) {
            center_.post(DFUDeviceDisconnected{});
            usb::printLine(out_, "DFU device has been disconnected");
        }
    }
}

} // namespace velmora
