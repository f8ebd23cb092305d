#pragma once

// What the two raw-USB watchers share: they ask the watcher for their vendor/product pairs, run it
// on the calling thread until stopped, and take each device it hands over in their two handlers.

#include "device/usb_watcher.h"
#include "foundation/notification_center.h"

#include <iosfwd>
#include <vector>

namespace velmora {

class UsbServiceHandler {
public:
    UsbServiceHandler(const UsbServiceHandler&) = delete;
    UsbServiceHandler& operator=(const UsbServiceHandler&) = delete;
    virtual ~UsbServiceHandler() = default;

    // Safe from any thread; the watching returns soon after.
    void stop() { watcher_.stop(); }

    virtual void devicesAttached(UsbServices& services) = 0;
    virtual void devicesRemoved(UsbServices& services) = 0;

protected:
    // Diagnostic lines go to out; notifications to center, posted from the watching thread.
    UsbServiceHandler(UsbWatcher& watcher, std::ostream& out, NotificationCenter& center)
        : out_(out), center_(center), watcher_(watcher) {}

    // Blocks until stop(): meant for a thread of its own. Call once.
    void watchUntilStopped(const std::vector<USBMonitorData>& criteria);

    std::ostream& out_;
    NotificationCenter& center_;

private:
    UsbWatcher& watcher_;
};

} // namespace velmora
