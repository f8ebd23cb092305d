#include "device/hidapi/hidapi_watcher.h"

#include "device/hid_report_descriptor.h"
#include "device/hidapi/hidapi_handle.h"
#include "device/hidapi/hidapi_text.h"
#include "device/hidapi/hidapi_watched_device.h"
#include "foundation/posix/event_loop.h"

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <hidapi.h>
#include <iterator>
#include <map>
#include <ostream>
#include <set>
#include <string>
#include <vector>

namespace velmora::hidapi {

namespace {

using namespace std::chrono_literals;

// Asking the notifier costs one system call; enumerating reads every HID device's description.
constexpr auto notifierInterval = 100ms;
constexpr auto enumerationInterval = 1s;

// hidapi 0.13 does not hand out the report descriptor; hidraw shows it among the device's
// attributes.
std::optional<std::int64_t> maxInputReportSizeOf(const char* path) {
#if defined(__linux__)
    const auto node = std::filesystem::path(path).filename();
    std::ifstream file(std::filesystem::path("/sys/class/hidraw") / node / "device" /
                           "report_descriptor",
                       std::ios::binary);
    const Bytes descriptor{std::istreambuf_iterator<char>(file), {}};
    if (!descriptor.empty()) {
        return maxInputReportSize(descriptor);
    }
#endif
    return std::nullopt;
}

HidProperties propertiesOf(const hid_device_info& info) {
    HidProperties properties{{"VendorID", std::int64_t{info.vendor_id}},
                             {"ProductID", std::int64_t{info.product_id}},
                             // The device node: what tells it apart from every other one attached.
                             {"LocationID", std::string(info.path)},
                             {"PrimaryUsagePage", std::int64_t{info.usage_page}},
                             {"PrimaryUsage", std::int64_t{info.usage}}};
    if (auto product = utf8(info.product_string)) {
        properties.emplace("Product", std::move(*product));
    }
    if (auto manufacturer = utf8(info.manufacturer_string)) {
        properties.emplace("Manufacturer", std::move(*manufacturer));
    }
    if (auto serialNumber = utf8(info.serial_number)) {
        properties.emplace("SerialNumber", std::move(*serialNumber));
    }
    if (const auto size = maxInputReportSizeOf(info.path)) {
        properties.emplace("MaxInputReportSize", *size);
    }
    return properties;
}

class HidapiWatcher final : public HidWatcher {
public:
    HidapiWatcher(std::unique_ptr<PlugNotifier> notifier, std::ostream& diagnostics)
        : notifier_(std::move(notifier)), diagnostics_(diagnostics) {}
    HidapiWatcher(const HidapiWatcher&) = delete;
    HidapiWatcher& operator=(const HidapiWatcher&) = delete;
    ~HidapiWatcher() override { closeAll(); }

    void setDeviceMatchingMultiple(std::vector<HIDMonitorData> criteria) override {
        criteria_ = std::move(criteria);
    }
    void registerDeviceMatchingCallback(DeviceCallback callback) override {
        attached_ = std::move(callback);
    }
    void registerDeviceRemovalCallback(DeviceCallback callback) override {
        removed_ = std::move(callback);
    }

    void run() override {
        hid_init();
        // Posted rather than called, so that a stop() that came first leaves the devices alone.
        loop_.post([this] { enumerate(); });
        const auto timer =
            loop_.scheduleRepeating(notifier_ ? notifierInterval : enumerationInterval, [this] {
                if (!notifier_ || notifier_->changed()) {
                    enumerate();
                }
            });
        loop_.run();
        loop_.cancel(timer);
        closeAll();
    }

    void stop() override { loop_.stop(); }

private:
    bool matches(const hid_device_info& info) const {
        return std::ranges::any_of(criteria_, [&](const HIDMonitorData& criterion) {
            return criterion.matches(info.vendor_id, info.product_id, info.usage_page, info.usage);
        });
    }

    void enumerate() {
        hid_device_info* all = hid_enumerate(0, 0);
        // hidapi lists a device once per top-level usage: the first entry that matches stands
        // for it.
        std::vector<const hid_device_info*> found;
        std::set<std::string> paths;
        for (const hid_device_info* info = all; info != nullptr; info = info->next) {
            if (matches(*info) && paths.insert(info->path).second) {
                found.push_back(info);
            }
        }
        std::vector<std::string> gone;
        for (const auto& entry : present_) {
            if (!paths.contains(entry.first)) {
                gone.push_back(entry.first);
            }
        }
        // Removals first, so that a device replaced at the same node is seen to go, then come.
        for (const auto& path : gone) {
            remove(path);
        }
        for (const hid_device_info* info : found) {
            if (!present_.contains(info->path)) {
                attach(*info);
            }
        }
        hid_free_enumeration(all);
    }

    void attach(const hid_device_info& info) {
        const std::string path = info.path;
        std::unique_ptr<HidapiDevice> opened;
        if (hid_device* handle = hid_open_path(info.path)) {
            // A failed read is the device going: it is reported then rather than at the next
            // enumeration. The worker stops before this watcher goes.
            opened = std::make_unique<HidapiDevice>(std::make_unique<HidapiHandle>(handle),
                                                    utf8(info.product_string), loop_,
                                                    [this, path] { remove(path); });
        } else {
            diagnostics_ << "Cannot read " << path << ": "
                         << utf8(hid_error(nullptr)).value_or("it cannot be opened") << std::endl;
        }
        const auto device =
            std::make_shared<HidapiWatchedDevice>(propertiesOf(info), std::move(opened));
        present_.emplace(path, device);
        if (const auto callback = attached_) {
            callback(device);
        }
    }

    void remove(const std::string& path) {
        const auto found = present_.find(path);
        if (found == present_.end()) {
            return;
        }
        const auto device = found->second;
        present_.erase(found);
        device->close();
        if (const auto callback = removed_) {
            callback(device);
        }
    }

    // Observers may hold on to the devices; their workers must stop while the loop lives.
    void closeAll() {
        for (const auto& entry : present_) {
            entry.second->close();
        }
        present_.clear();
    }

    EventLoop loop_;
    std::unique_ptr<PlugNotifier> notifier_;
    std::ostream& diagnostics_;
    std::vector<HIDMonitorData> criteria_;
    DeviceCallback attached_;
    DeviceCallback removed_;
    std::map<std::string, std::shared_ptr<HidapiWatchedDevice>> present_;
};

} // namespace

std::unique_ptr<HidWatcher> makeHidapiWatcher(std::unique_ptr<PlugNotifier> notifier,
                                              std::ostream& diagnostics) {
    return std::make_unique<HidapiWatcher>(std::move(notifier), diagnostics);
}

} // namespace velmora::hidapi
