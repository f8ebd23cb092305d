#include "device/hid_device_connector.h"

#include "device/device_notifications.h"
#include "device/reading.h"

#include <algorithm>
#include <atomic>
#include <cassert>

namespace velmora {

namespace {

constexpr std::uint8_t connectReport[] = {0x80, 0x80};
constexpr std::uint8_t updateReport[] = {0x31, 0x00};

std::atomic<HIDDeviceConnector*> sharedConnector = nullptr;

} // namespace

HIDDeviceConnector::HIDDeviceConnector(ManagerFactory managerFactory, RunLoop& runLoop,
                                       NotificationCenter& notificationCenter, Log& log)
    : managerFactory_(std::move(managerFactory)), runLoop_(runLoop),
      notificationCenter_(notificationCenter), log_(log) {}

HIDDeviceConnector::~HIDDeviceConnector() {
    HIDDeviceConnector* self = this;
    sharedConnector.compare_exchange_strong(self, nullptr);
    releaseSession();
}

void HIDDeviceConnector::becomeSharedInstance() {
    [[maybe_unused]] HIDDeviceConnector* none = nullptr;
    [[maybe_unused]] const bool first = sharedConnector.compare_exchange_strong(none, this);
    assert(first && "one shared HIDDeviceConnector at a time");
}

HIDDeviceConnector& HIDDeviceConnector::sharedInstance() {
    HIDDeviceConnector* const connector = sharedConnector.load();
    assert(connector && "sharedInstance() outside the life of main's connector");
    return *connector;
}

void HIDDeviceConnector::connectDataToDevice() {
    initHID();
    if (isDeviceFound && !isDataConnected) {
        isDataConnected = true;
        sendOutputReport(connectReport[0], connectReport[1]);
        notificationCenter_.post(HIDDeviceConnected{matchingDict});
        log_.info("[INFO] Send (50,100) is Data to Device");
    }
    log_.info("[INFO] Connect >> ");
}

void HIDDeviceConnector::disconnectDataToDevice() {
    termHID();
    log_.info("[INFO] terminated >> ");
}

void HIDDeviceConnector::initHID() {
    // The previous session's manager is released before the new one opens the device, so that its
    // reports stop and the device is never open twice.
    releaseSession();

    hidManager = managerFactory_();
    hidManager->scheduleWithRunLoop(runLoop_);
    hidManager->open();
    matchingDict = {.productId = productId, .vendorId = vendorId};
    hidManager->setDeviceMatching({vendorId, productId});

    const auto devices = hidManager->copyDevices();
    if (devices.empty()) {
        hidDevice = nullptr;
        isDataConnected = false;
        isDeviceFound = false;
    } else {
        hidDevice = devices.front();
        inputReport = {};
        outputReport = {};
        hidDevice->registerInputReportCallback(
            [this](std::span<const std::uint8_t> report) { inputReportReceived(report); });
        if (auto name = hidDevice->productProperty()) {
            matchingDict.name = std::move(*name);
        }
        sendOutputReport(connectReport[0], connectReport[1]);
        isDeviceFound = true;
    }

    updateTimer = runLoop_.scheduleRepeating(updateInterval, [this] { update_toDevice(); });
    hidManager->registerDeviceMatchingCallback([this] { deviceMatchingResult(); });
    hidManager->registerDeviceRemovalCallback([this] { deviceRemovalResult(); });
}

void HIDDeviceConnector::termHID() {
    if (!hidManager) {
        return;
    }
    isDataConnected = false;
    isDeviceFound = false;
    releaseSession();
    matchingDict = {};
    notificationCenter_.post(HIDDeviceDisconnected{});
}

void HIDDeviceConnector::update_toDevice() {
    if (isDataConnected && hidDevice) {
        sendOutputReport(updateReport[0], updateReport[1]);
    }
}

void HIDDeviceConnector::deviceMatchingResult() {
    // Attaching the instrument does not start the data flow: the user presses Connect again.
}

void HIDDeviceConnector::deviceRemovalResult() {
    termHID();
}

void HIDDeviceConnector::applicationTerminated() {
    if (hidManager) {
        hidManager->registerDeviceMatchingCallback({});
        hidManager->registerDeviceRemovalCallback({});
        hidManager->unscheduleFromRunLoop();
    }
    matchingDict = {};
    cancelUpdateTimer();
}

void HIDDeviceConnector::inputReportReceived(std::span<const std::uint8_t> report) {
    // A short report leaves the rest of the buffer as the previous one left it.
    std::copy_n(report.begin(), std::min(report.size(), inputReport.size()), inputReport.begin());
    notificationCenter_.post(HIDDeviceDataReceived{decodeReading(inputReport[0], inputReport[1])});
}

void HIDDeviceConnector::sendOutputReport(std::uint8_t byte0, std::uint8_t byte1) {
    outputReport[0] = byte0;
    outputReport[1] = byte1;
    hidDevice->setOutputReport(0, outputReport);
}

void HIDDeviceConnector::cancelUpdateTimer() {
    if (updateTimer) {
        runLoop_.cancel(*updateTimer);
        updateTimer.reset();
    }
}

void HIDDeviceConnector::releaseSession() {
    cancelUpdateTimer();
    // The device first: dropping the manager may close it.
    hidDevice = nullptr;
    hidManager = nullptr;
}

} // namespace velmora
