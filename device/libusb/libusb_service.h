#pragma once

// A device that libusb reported, seen through the raw-USB watchers' UsbService.

#include "device/usb_watcher.h"

#include <libusb.h>
#include <memory>

namespace velmora {

// Every object handed out keeps the context alive, so an observer may hold an opened device for
// longer than the watcher lives.
using LibusbContext = std::shared_ptr<libusb_context>;

// One counted reference on a libusb device.
class LibusbDeviceReference {
public:
    // Takes over a reference the caller already holds.
    LibusbDeviceReference(LibusbContext context, libusb_device* adopted);
    LibusbDeviceReference(const LibusbDeviceReference& other);
    LibusbDeviceReference(LibusbDeviceReference&& other) noexcept;
    LibusbDeviceReference& operator=(const LibusbDeviceReference&) = delete;
    LibusbDeviceReference& operator=(LibusbDeviceReference&&) = delete;
    ~LibusbDeviceReference();

    libusb_device* get() const { return device_; }

private:
    LibusbContext context_;
    libusb_device* device_;
};

std::unique_ptr<UsbService> makeLibusbService(LibusbDeviceReference device);

} // namespace velmora
