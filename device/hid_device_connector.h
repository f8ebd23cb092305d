#pragma once

// The one session with the instrument. Connect opens it and starts the data flow: two start
// reports (0x80 0x80), HIDDeviceConnected, then a request report (0x31 0x00) every 0.1 s, each
// answered by an input report that is decoded and posted as HIDDeviceDataReceived. Disconnect, or
// unplugging the instrument, ends the session with HIDDeviceDisconnected.
//
// Everything runs on the run loop's thread; the HID manager's callbacks and the timer are
// scheduled on it.

#include "device/device_notifications.h"
#include "device/hid_manager.h"
#include "device/instrument_link.h"
#include "device/instrument_usb_ids.h"
#include "foundation/log.h"
#include "foundation/notification_center.h"
#include "foundation/run_loop.h"

#include <array>
#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>

namespace velmora {

class HIDDeviceConnector final : public InstrumentLink {
public:
    using ManagerFactory = std::function<std::unique_ptr<HidManager>()>;

    static constexpr std::uint16_t vendorId = instrumentVendorId;
    static constexpr std::uint16_t productId = instrumentProductId;
    static constexpr std::size_t reportSize = 8;
    static constexpr std::chrono::milliseconds updateInterval{100};

    // Every session gets a new manager from the factory.
    HIDDeviceConnector(ManagerFactory managerFactory, RunLoop& runLoop,
                       NotificationCenter& notificationCenter, Log& log);
    // Releases the session without a notification; stops being the shared instance.
    ~HIDDeviceConnector() override;
    HIDDeviceConnector(const HIDDeviceConnector&) = delete;
    HIDDeviceConnector& operator=(const HIDDeviceConnector&) = delete;

    // The application's main makes its one connector, owns it and makes it the shared instance
    // for as long as it lives. Only one connector is shared at a time.
    void becomeSharedInstance();
    // The application's connector; safe to call from any thread while main's connector lives.
    static HIDDeviceConnector& sharedInstance();

    void connectDataToDevice() override;
    void disconnectDataToDevice() override;

    void initHID();
    void termHID();
    void update_toDevice();
    void deviceMatchingResult();
    void deviceRemovalResult();
    // Stops the manager's callbacks as the application quits; posts and sends nothing.
    void applicationTerminated();

private:
    void inputReportReceived(std::span<const std::uint8_t> report);
    void sendOutputReport(std::uint8_t byte0, std::uint8_t byte1);
    void cancelUpdateTimer();
    void releaseSession();

    ManagerFactory managerFactory_;
    RunLoop& runLoop_;
    NotificationCenter& notificationCenter_;
    Log& log_;

    bool isDataConnected = false;
    bool isDeviceFound = false;
    std::unique_ptr<HidManager> hidManager;
    std::shared_ptr<HidDevice> hidDevice;
    MatchedHIDDevice matchingDict;
    std::array<std::uint8_t, reportSize> inputReport{};
    std::array<std::uint8_t, reportSize> outputReport{};
    std::optional<RunLoop::TimerId> updateTimer;
};

} // namespace velmora
