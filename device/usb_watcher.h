#pragma once

// How the raw-USB watchers see the bus: a watcher that reports, per vendor/product pair, the
// devices that attach and go, each handed over as a UsbService through which the watcher takes hold
// of the device step by step. Every step can fail on its own, and the watchers tell each failure
// apart, so each is a call of its own here.

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace velmora {

// One vendor/product pair to watch.
struct USBMonitorData {
    std::uint16_t vendorId = 0;
    std::uint16_t productId = 0;
};

// The outcome of opening a device: code 0 is success, any other is the platform's error code,
// printed as it stands; busy marks the case of another client holding the device exclusively.
struct UsbOpenResult {
    int code = 0;
    bool busy = false;
};

// What asking for one of a device's interfaces gave: a non-zero code when the request failed, and
// otherwise the interface, which the platform may still leave out.
template <class Interface> struct UsbInterfaceResult {
    int code = 0;
    std::shared_ptr<Interface> interface;
};

// The device itself, once reached: opened, then asked for its identifiers. Whoever holds it keeps
// the device open; letting go of the last holder closes it.
class UsbDeviceInterface {
public:
    virtual ~UsbDeviceInterface() = default;
    virtual UsbOpenResult open() = 0;
    virtual std::optional<std::uint16_t> vendorId() = 0;
    virtual std::optional<std::uint16_t> productId() = 0;
};

// The watcher's own hold on the device, from which the device interface is reached.
class UsbPlugInInterface {
public:
    virtual ~UsbPlugInInterface() = default;
    virtual UsbInterfaceResult<UsbDeviceInterface> queryDeviceInterface() = 0;
};

// One attached or removed device as a notification hands it over.
class UsbService {
public:
    virtual ~UsbService() = default;
    // A stable identifier of the device's place on the bus; none when the platform cannot say.
    virtual std::optional<std::uint64_t> registryEntryId() = 0;
    // The product string; none when it cannot be read.
    virtual std::optional<std::string> registryName() = 0;
    virtual UsbInterfaceResult<UsbPlugInInterface> createPlugInInterface() = 0;
    // Lets go of the service object: 0 or the platform's error code.
    virtual int release() = 0;
};

using UsbServices = std::vector<std::unique_ptr<UsbService>>;

class UsbWatcher {
public:
    using Handler = std::function<void(UsbServices& services)>;

    virtual ~UsbWatcher() = default;

    // Asks to hear of the devices matching the pair. The devices already present come first, as
    // one attached batch; later arrivals and removals follow as they happen. The handlers run on
    // the thread of run(), never on the platform's own event thread.
    virtual void watch(USBMonitorData criterion, Handler attached, Handler removed) = 0;

    // Delivers the notifications on the calling thread until stop(); returns at once when stop()
    // came first.
    virtual void run() = 0;

    // Safe from any thread, and from a handler.
    virtual void stop() = 0;
};

} // namespace velmora
