#include "device/hidapi/hidapi_manager.h"

#include "device/hidapi/hidapi_handle.h"
#include "device/hidapi/hidapi_text.h"

#include <cerrno>
#include <cstdio>
#include <hidapi.h>
#include <unistd.h>

namespace velmora::hidapi {

HidapiManager::HidapiManager(Log& log, std::function<void()> accessDenied)
    : log_(log), accessDenied_(std::move(accessDenied)) {}

HidapiManager::~HidapiManager() {
    // The device's worker calls back into this manager, so it stops here even if someone still
    // holds the device.
    if (device_) {
        device_->stop();
    }
}

void HidapiManager::unscheduleFromRunLoop() {
    if (device_) {
        device_->stop();
    }
    runLoop_ = nullptr;
}

void HidapiManager::open() {
    hid_init();
}

std::vector<std::shared_ptr<HidDevice>> HidapiManager::copyDevices() {
    if (!device_ && runLoop_ != nullptr && matching_) {
        device_ = openFirstMatching();
    }
    if (!device_) {
        return {};
    }
    return {device_};
}

std::shared_ptr<HidapiDevice> HidapiManager::openFirstMatching() {
    hid_device_info* found = hid_enumerate(matching_->vendorId, matching_->productId);
    if (found == nullptr) {
        return nullptr;
    }
    const std::string path = found->path;
    auto product = utf8(found->product_string);
    hid_free_enumeration(found);

    hid_device* opened = hid_open_path(path.c_str());
    if (opened == nullptr) {
        reportOpenFailure(path);
        return nullptr;
    }
    // The device's worker stops before this manager goes, so the callback never outlives it.
    return std::make_shared<HidapiDevice>(std::make_unique<HidapiHandle>(opened),
                                          std::move(product), *runLoop_, [this] {
                                              if (const auto callback = removal_) {
                                                  callback();
                                              }
                                          });
}

void HidapiManager::reportOpenFailure(const std::string& path) {
    const bool denied =
        access(path.c_str(), R_OK | W_OK) != 0 && (errno == EACCES || errno == EPERM);
    std::string message = "velmora: the Velmora instrument is plugged in (" + path + ") but ";
    if (denied) {
        message += "this user may not open it. Install the udev rule 70-velmora.rules into "
                   "/etc/udev/rules.d, reload udev (udevadm control --reload-rules && udevadm "
                   "trigger) and plug the instrument in again.";
    } else {
        message += "cannot be opened: " + utf8(hid_error(nullptr)).value_or("unknown error");
    }
    std::fprintf(stderr, "%s\n", message.c_str());
    log_.error(message);
    if (denied && accessDenied_) {
        accessDenied_();
    }
}

HIDDeviceConnector::ManagerFactory hidapiManagerFactory(Log& log,
                                                        std::function<void()> accessDenied) {
    return [&log, accessDenied = std::move(accessDenied)] {
        return std::make_unique<HidapiManager>(log, accessDenied);
    };
}

} // namespace velmora::hidapi
