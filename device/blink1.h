#pragma once

// A small HID client of the instrument: it waits for the instrument, sends it one fixed output
// report as it attaches, prints every input report it receives, and announces removal with
// "deviceDisconnected". It shares nothing with the instrument session. Nothing in the application
// starts it.

#include "device/hid_watcher.h"
#include "device/instrument_usb_ids.h"
#include "foundation/notification_center.h"

#include <cstdint>
#include <iostream>
#include <memory>
#include <span>
#include <string>
#include <string_view>

namespace velmora {

struct DeviceDisconnected {
    static constexpr std::string_view name = "deviceDisconnected";
    std::string className; // whose device it was: "Velmora_Software.Blink1"
};

class Blink1 {
public:
    // Printed lines go to out; notifications to center, posted from the thread of initUsb().
    explicit Blink1(HidWatcher& watcher, std::ostream& out = std::cout,
                    NotificationCenter& center = NotificationCenter::defaultCenter());
    virtual ~Blink1() = default;
    Blink1(const Blink1&) = delete;
    Blink1& operator=(const Blink1&) = delete;

    // Watches for the instrument until stop(): meant for a thread of its own. Call once.
    void initUsb();
    // Safe from any thread; initUsb() returns soon after, or at once if it has not begun yet.
    void stop() { watcher_.stop(); }

    // Sends data of at most reportSize bytes to the device as one output report of reportSize
    // bytes, its first byte being the report identifier. On the thread of initUsb().
    void send(std::span<const std::uint8_t> data);

    virtual void deviceAttached(const std::shared_ptr<WatchedHidDevice>& attached);
    virtual void inputReportReceived(std::span<const std::uint8_t> report);
    virtual void deviceRemoved(const std::shared_ptr<WatchedHidDevice>& removed);

    static constexpr std::int64_t vendorId = instrumentVendorId;
    static constexpr std::int64_t productId = instrumentProductId;
    static constexpr std::int64_t reportSize = 8;
    // The name the "class" of deviceDisconnected gives.
    static constexpr char className[] = "Velmora_Software.Blink1";

    // The device last attached; kept after its removal.
    std::shared_ptr<WatchedHidDevice> device;

private:
    HidWatcher& watcher_;
    std::ostream& out_;
    NotificationCenter& center_;
};

} // namespace velmora
