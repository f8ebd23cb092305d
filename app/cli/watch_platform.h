#pragma once

// Where velmora-cli's long-running commands, `watch` and `read`, find the devices and learn that
// they are to end. The defaults are the machine's own: hidapi (with udev on Linux), libusb,
// QtSerialPort, Ctrl-C or SIGTERM, and the machine's clock. Tests put fakes in their place.

#include "app/cli/stop_signal.h"
#include "device/hid_device_connector.h"
#include "device/hid_watcher.h"
#include "device/serial_port_source.h"
#include "device/usb_watcher.h"
#include "foundation/posix/event_loop.h"

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
    // The instrument that `read` connects to without --simulate. accessDenied is called when it
    // is plugged in but this user may not open it.
    std::function<HIDDeviceConnector::ManagerFactory(Log& log, std::function<void()> accessDenied)>
        instrument;
    // Arranges for stop.request() when the command is to end, for as long as the result lives.
    std::function<std::shared_ptr<void>(StopSignal& stop)> endOn;
    // The clock `read`'s session runs on.
    EventLoop::Time sessionTime = EventLoop::Time::real;
};

WatchPlatform& watchPlatform();

} // namespace velmora::cli
