#include "device/udev/udev_hidraw_notifier.h"

#include <libudev.h>
#include <poll.h>
#include <unistd.h>

namespace velmora {

namespace {

// udev's own events rather than the kernel's: they come once the device node exists and its
// rules, which give the user access to it, have been applied.
class UdevHidrawNotifier final : public hidapi::PlugNotifier {
public:
    UdevHidrawNotifier(udev* context, udev_monitor* monitor)
        : context_(context), monitor_(monitor) {}
    UdevHidrawNotifier(const UdevHidrawNotifier&) = delete;
    UdevHidrawNotifier& operator=(const UdevHidrawNotifier&) = delete;
    ~UdevHidrawNotifier() override {
        udev_monitor_unref(monitor_);
        udev_unref(context_);
    }

    bool changed() override {
        bool any = false;
        pollfd ready{udev_monitor_get_fd(monitor_), POLLIN, 0};
        while (poll(&ready, 1, 0) > 0 && (ready.revents & POLLIN) != 0) {
            udev_device* device = udev_monitor_receive_device(monitor_);
            if (device == nullptr) {
                break;
            }
            udev_device_unref(device);
            any = true;
        }
        return any;
    }

private:
    udev* context_;
    udev_monitor* monitor_;
};

} // namespace

std::unique_ptr<hidapi::PlugNotifier> makeUdevHidrawNotifier(std::string& error) {
    // Without the daemon, udev hands out a monitor that never hears of anything.
    if (access("/run/udev/control", F_OK) != 0) {
        error = "the udev daemon is not running";
        return nullptr;
    }
    udev* context = udev_new();
    if (context == nullptr) {
        error = "udev cannot be reached";
        return nullptr;
    }
    udev_monitor* monitor = udev_monitor_new_from_netlink(context, "udev");
    if (monitor == nullptr ||
        udev_monitor_filter_add_match_subsystem_devtype(monitor, "hidraw", nullptr) < 0 ||
        udev_monitor_enable_receiving(monitor) < 0) {
        error = "udev's device events cannot be received";
        udev_monitor_unref(monitor);
        udev_unref(context);
        return nullptr;
    }
    return std::make_unique<UdevHidrawNotifier>(context, monitor);
}

} // namespace velmora
