#include "device/usb_service_handler.h"

namespace velmora {

void UsbServiceHandler::watchUntilStopped(const std::vector<USBMonitorData>& criteria) {
    for (const auto& criterion : criteria) {
        watcher_.watch(
            criterion, [this](UsbServices& services) { devicesAttached(services); },
            [this](UsbServices& services) { devicesRemoved(services); });
    }
    watcher_.run();
}

} // namespace velmora
