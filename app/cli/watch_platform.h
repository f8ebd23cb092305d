#pragma once

// Where `velmora-cli watch` finds the devices and learns that it is to end. The defaults are the
// machine's own: hidapi (with udev on Linux), libusb, QtSerialPort, and Ctrl-C or SIGTERM. Tests
// put fakes in their place.

#include "app/cli/stop_signal.h"
#include "device/hid_watcher.h"
#include "device/serial_port_source.h"
#include "device/usb_watcher.h"

#include <functional>
#include <iosfwd>
#include <memory>
#include <string>

namespace velmora::cli {

struct WatchPlatform {
    // Tells on diagnostics of what it cannot do as well as it would, and of devices it cannot
    // read.
    std::function<std::unique_ptr<HidWatcher>(std::ostream& diagnostics)> hidWatcher;
    // None, with the reason in error, when the machine's USB cannot be watched.
    std::function<std::unique_ptr<UsbWatcher>(std::string& error)> usbWatcher;
    std::function<std::unique_ptr<SerialPortSource>()> serialPorts;
    // Arranges for stop.request() when the watch is to end, for as long as the result lives.
    std::function<std::shared_ptr<void>(StopSignal& stop)> endOn;
};

WatchPlatform& watchPlatform();

} // namespace velmora::cli
