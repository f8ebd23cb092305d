#pragma once

// The raw-USB watchers' UsbWatcher over libusb.

#include "device/usb_watcher.h"

#include <memory>
#include <string>

namespace velmora {

// None, with libusb's reason in error, when libusb cannot start.
std::unique_ptr<UsbWatcher> makeLibusbWatcher(std::string& error);

} // namespace velmora
