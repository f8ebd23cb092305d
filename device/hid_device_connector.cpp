#include "device/hid_device_connector.h"

#include "device/device_notifications.h"
#include "device/reading.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <mutex>

namespace velmora {

namespace {

constexpr std::uint8_t connectReport[] = {0x80, 0x80};
constexpr std::uint8_t updateReport[] = {0x31, 0x00};

struct SharedSetUp {
    HIDDeviceConnector::ManagerFactory managerFactory;
    RunLoop* mainLoop;
    Log* log;
};

std::mutex sharedSetUpMutex;
std::optional<SharedSetUp> sharedSetUp;

} // namespace

HIDDeviceConnector::HIDDeviceConnector(ManagerFactory managerFactory, RunLoop& runLoop,
                                       NotificationCenter& notificationCenter, Log& log)
    : managerFactory_(std::move(managerFactory)), runLoop_(runLoop),
      notificationCenter_(notificationCenter), log_(log) {}

HIDDeviceConnector::~HIDDeviceConnector() {
    releaseSession();
}

void HIDDeviceConnector::setUpSharedInstance(ManagerFactory managerFactory, RunLoop& mainLoop,
                                             Log& log) {
    const std::lock_guard lock(sharedSetUpMutex);
    sharedSetUp = SharedSetUp{std::move(managerFactory), &mainLoop, &log};
}

HIDDeviceConnector& HIDDeviceConnector::sharedInstance() {
    // Never destroyed: the loop and the log it was given may be gone when statics are destroyed.
    static HIDDeviceConnector* const instance = [] {
        const std::lock_guard lock(sharedSetUpMutex);
        if (!sharedSetUp) {
            std::fputs("velmora: HIDDeviceConnector::sharedInstance() used before "
                       "setUpSharedInstance()\n",
                       stderr);
            std::abort();
        }
        return new HIDDeviceConnector(sharedSetUp->managerFactory, *sharedSetUp->mainLoop,
                                      NotificationCenter::defaultCenter(), *sharedSetUp->log);
    }();
    return *instance;
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
