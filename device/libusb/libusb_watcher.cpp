#include "device/libusb/libusb_watcher.h"

#include "device/libusb/libusb_service.h"

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <deque>
#include <map>
#include <mutex>
#include <set>
#include <thread>

namespace velmora {

namespace {

// libusb reports arrivals and removals on whichever thread handles its events, and a device may be
// reported twice when it arrives while its watch is being registered. So the callbacks only note
// what happened, dropping the repeats, and the watcher's own loop takes each device in hand.
class LibusbWatcher final : public UsbWatcher {
public:
    explicit LibusbWatcher(LibusbContext context) : context_(std::move(context)) {}
    LibusbWatcher(const LibusbWatcher&) = delete;
    LibusbWatcher& operator=(const LibusbWatcher&) = delete;
    ~LibusbWatcher() override;

    void watch(USBMonitorData criterion, Handler attached, Handler removed) override;
    void run() override;
    void stop() override;

private:
    struct Watch {
        LibusbWatcher* owner;
        USBMonitorData criterion;
        Handler attached;
        Handler removed;
        // Without hot-plug the watch is kept by enumerating the bus now and then.
        std::optional<libusb_hotplug_callback_handle> hotplug;
        // The devices reported attached and not yet removed, each held so its address stays its
        // own.
        std::map<libusb_device*, LibusbDeviceReference> present;
    };

    struct Event {
        Watch* watch;
        bool attached;
        LibusbDeviceReference device;
    };

    static int LIBUSB_CALL hotplugCallback(libusb_context* context, libusb_device* device,
                                           libusb_hotplug_event event, void* watch);
    // Both with mutex_ held.
    void arrived(Watch& watch, libusb_device* device);
    void left(Watch& watch, libusb_device* device);

    void enumerate(Watch& watch);
    void serviceEvents();
    bool matches(const Watch& watch, libusb_device* device) const;

    LibusbContext context_;
    std::mutex mutex_;
    std::condition_variable wake_;
    std::vector<std::unique_ptr<Watch>> watches_;
    std::deque<Event> events_;
    bool stopped_ = false;
    std::atomic<bool> servicing_ = false;
};

LibusbWatcher::~LibusbWatcher() {
    for (const auto& watch : watches_) {
        if (watch->hotplug) {
            libusb_hotplug_deregister_callback(context_.get(), *watch->hotplug);
        }
    }
}

void LibusbWatcher::watch(USBMonitorData criterion, Handler attached, Handler removed) {
    auto owned = std::make_unique<Watch>(
        Watch{this, criterion, std::move(attached), std::move(removed), std::nullopt, {}});
    Watch& watch = *owned;
    {
        const std::lock_guard lock(mutex_);
        watches_.push_back(std::move(owned));
    }
    // With LIBUSB_HOTPLUG_ENUMERATE the devices already present arrive before registering
    // returns, on this thread: the callback must not find mutex_ held.
    libusb_hotplug_callback_handle handle = 0;
    if (libusb_has_capability(LIBUSB_CAP_HAS_HOTPLUG) != 0 &&
        libusb_hotplug_register_callback(
            context_.get(), LIBUSB_HOTPLUG_EVENT_DEVICE_ARRIVED | LIBUSB_HOTPLUG_EVENT_DEVICE_LEFT,
            LIBUSB_HOTPLUG_ENUMERATE, criterion.vendorId, criterion.productId,
            LIBUSB_HOTPLUG_MATCH_ANY, &hotplugCallback, &watch, &handle) == LIBUSB_SUCCESS) {
        const std::lock_guard lock(mutex_);
        watch.hotplug = handle;
        return;
    }
    // No hot-plug on this system (or it refused the watch): the bus is enumerated now for the
    // devices already present, and then every second by the event thread.
    enumerate(watch);
}

int LIBUSB_CALL LibusbWatcher::hotplugCallback(libusb_context* /*context*/, libusb_device* device,
                                               libusb_hotplug_event event, void* watch) {
    auto& w = *static_cast<Watch*>(watch);
    {
        const std::lock_guard lock(w.owner->mutex_);
        if (event == LIBUSB_HOTPLUG_EVENT_DEVICE_ARRIVED) {
            w.owner->arrived(w, device);
        } else {
            w.owner->left(w, device);
        }
    }
    w.owner->wake_.notify_all();
    return 0; // stay registered
}

void LibusbWatcher::arrived(Watch& watch, libusb_device* device) {
    const LibusbDeviceReference reference(context_, libusb_ref_device(device));
    if (watch.present.try_emplace(device, reference).second) {
        events_.push_back({&watch, true, reference});
    }
}

void LibusbWatcher::left(Watch& watch, libusb_device* device) {
    const auto found = watch.present.find(device);
    if (found == watch.present.end()) {
        return;
    }
    events_.push_back({&watch, false, std::move(found->second)});
    watch.present.erase(found);
}

bool LibusbWatcher::matches(const Watch& watch, libusb_device* device) const {
    libusb_device_descriptor descriptor{};
    return libusb_get_device_descriptor(device, &descriptor) == 0 &&
           descriptor.idVendor == watch.criterion.vendorId &&
           descriptor.idProduct == watch.criterion.productId;
}

void LibusbWatcher::enumerate(Watch& watch) {
    libusb_device** list = nullptr;
    const ssize_t count = libusb_get_device_list(context_.get(), &list);
    if (count < 0) {
        return; // try again at the next round
    }
    std::set<libusb_device*> found;
    for (ssize_t k = 0; k < count; ++k) {
        if (matches(watch, list[k])) {
            found.insert(list[k]);
        }
    }
    {
        const std::lock_guard lock(mutex_);
        std::vector<libusb_device*> gone;
        for (const auto& entry : watch.present) {
            if (!found.contains(entry.first)) {
                gone.push_back(entry.first);
            }
        }
        for (libusb_device* device : gone) {
            left(watch, device);
        }
        for (libusb_device* device : found) {
            arrived(watch, device);
        }
    }
    libusb_free_device_list(list, 1);
    wake_.notify_all();
}

void LibusbWatcher::serviceEvents() {
    using Clock = std::chrono::steady_clock;
    auto nextEnumeration = Clock::now() + std::chrono::seconds(1);
    while (servicing_) {
        timeval timeout{1, 0};
        libusb_handle_events_timeout_completed(context_.get(), &timeout, nullptr);
        if (Clock::now() < nextEnumeration) {
            continue;
        }
        nextEnumeration = Clock::now() + std::chrono::seconds(1);
        std::vector<Watch*> polled;
        {
            const std::lock_guard lock(mutex_);
            for (const auto& watch : watches_) {
                if (!watch->hotplug) {
                    polled.push_back(watch.get());
                }
            }
        }
        for (Watch* watch : polled) {
            enumerate(*watch);
        }
    }
}

void LibusbWatcher::run() {
    servicing_ = true;
    std::thread eventThread([this] { serviceEvents(); });
    std::unique_lock lock(mutex_);
    while (true) {
        wake_.wait(lock, [this] { return stopped_ || !events_.empty(); });
        if (stopped_) {
            break;
        }
        Event event = std::move(events_.front());
        events_.pop_front();
        lock.unlock();
        UsbServices services;
        services.push_back(makeLibusbService(std::move(event.device)));
        (event.attached ? event.watch->attached : event.watch->removed)(services);
        lock.lock();
    }
    lock.unlock();
    servicing_ = false;
    libusb_interrupt_event_handler(context_.get());
    eventThread.join();
}

void LibusbWatcher::stop() {
    {
        const std::lock_guard lock(mutex_);
        stopped_ = true;
    }
    wake_.notify_all();
}

} // namespace

std::unique_ptr<UsbWatcher> makeLibusbWatcher(std::string& error) {
    libusb_context* context = nullptr;
    if (const int code = libusb_init(&context); code != LIBUSB_SUCCESS) {
        error = libusb_strerror(code);
        return nullptr;
    }
    return std::make_unique<LibusbWatcher>(LibusbContext(context, libusb_exit));
}

} // namespace velmora
