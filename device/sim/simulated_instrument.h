#pragma once

// The instrument without the instrument: a HID manager that always finds one Velmora and answers
// as it does. It says nothing until a start report (0x80 0x80) arrives, then answers every request
// report (0x31 0x00) with one input report carrying the next reading, delivered through the run
// loop as a real answer arrives. It is never plugged in or pulled out.

#include "device/hid_device_connector.h"
#include "device/hid_manager.h"
#include "device/sim/reading_source.h"

#include <memory>

namespace velmora::sim {

class SimulatedDevice;

class SimulatedInstrument final : public HidManager {
public:
    explicit SimulatedInstrument(std::shared_ptr<ReadingSource> readings);

    void scheduleWithRunLoop(RunLoop& runLoop) override;
    void unscheduleFromRunLoop() override;
    void open() override {}
    void setDeviceMatching(HidMatching matching) override;
    std::vector<std::shared_ptr<HidDevice>> copyDevices() override;
    void registerDeviceMatchingCallback(DeviceCallback) override {}
    void registerDeviceRemovalCallback(DeviceCallback) override {}

private:
    std::shared_ptr<SimulatedDevice> device_;
    bool matches_ = false;
};

// Managers for the connector that all read from the same source, so a new session carries on
// where the last one stopped.
HIDDeviceConnector::ManagerFactory
simulatedInstrumentFactory(std::shared_ptr<ReadingSource> readings);

} // namespace velmora::sim
