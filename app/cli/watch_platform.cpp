#include "app/cli/watch_platform.h"

#include "device/hidapi/hidapi_manager.h"
#include "device/hidapi/hidapi_watcher.h"
#include "device/libusb/libusb_watcher.h"
#include "device/serial/qt_serial_port_source.h"

#include <ostream>

#if defined(__linux__)
#include "device/udev/udev_hidraw_notifier.h"
#endif

namespace velmora::cli {

namespace {

std::unique_ptr<HidWatcher> machineHidWatcher(std::ostream& diagnostics) {
#if defined(__linux__)
    std::string error;
    if (auto notifier = makeUdevHidrawNotifier(error)) {
        return hidapi::makeHidapiWatcher(std::move(notifier), diagnostics);
    }
    diagnostics << "Cannot follow udev (" << error
                << "): looking for HID devices every second instead" << std::endl;
#endif
    return hidapi::makeHidapiWatcher(nullptr, diagnostics);
}

} // namespace

WatchPlatform& watchPlatform() {
    static WatchPlatform platform{
        machineHidWatcher,
        makeLibusbWatcher,
        [] { return std::make_unique<QtSerialPortSource>(); },
        [](Log& log, std::function<void()> accessDenied) {
            return hidapi::hidapiManagerFactory(log, std::move(accessDenied));
        },
        [](StopSignal& stop) { return std::make_shared<InterruptRequestsStop>(stop); },
    };
    return platform;
}

} // namespace velmora::cli
