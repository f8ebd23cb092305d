#include "app/cli/watch_platform.h"

#include "device/libusb/libusb_watcher.h"
#include "device/serial/qt_serial_port_source.h"

namespace velmora::cli {

WatchPlatform& watchPlatform() {
    static WatchPlatform platform{
        makeLibusbWatcher,
        [] { return std::make_unique<QtSerialPortSource>(); },
        [](StopSignal& stop) { return std::make_shared<InterruptRequestsStop>(stop); },
    };
    return platform;
}

} // namespace velmora::cli
