#include "device/sim/simulated_instrument.h"

namespace velmora::sim {

class SimulatedDevice final : public HidDevice,
                              public std::enable_shared_from_this<SimulatedDevice> {
public:
    explicit SimulatedDevice(std::shared_ptr<ReadingSource> readings)
        : readings_(std::move(readings)) {}

    void setRunLoop(RunLoop* runLoop) { runLoop_ = runLoop; }

    void registerInputReportCallback(InputReportCallback callback) override {
        callback_ = std::move(callback);
    }

    std::optional<std::string> productProperty() const override {
        return "Velmora Refractometer (simulated)";
    }

    void setOutputReport(std::uint8_t, std::span<const std::uint8_t> report) override {
        if (report.size() < 2) {
            return;
        }
        if (report[0] == 0x80 && report[1] == 0x80) {
            started_ = true;
        } else if (report[0] == 0x31 && report[1] == 0x00 && started_ && runLoop_ != nullptr) {
            answer(readings_->next());
        }
    }

private:
    void answer(std::uint16_t reading) {
        const Bytes input{static_cast<std::uint8_t>(reading & 0xFF),
                          static_cast<std::uint8_t>(reading >> 8),
                          0,
                          0,
                          0,
                          0,
                          0,
                          0};
        // An answer still on its way when the session ends is lost with the device.
        runLoop_->post([device = weak_from_this(), input] {
            if (const auto self = device.lock()) {
                if (const auto callback = self->callback_) {
                    callback(input);
                }
            }
        });
    }

    std::shared_ptr<ReadingSource> readings_;
    RunLoop* runLoop_ = nullptr;
    InputReportCallback callback_;
    bool started_ = false;
};

SimulatedInstrument::SimulatedInstrument(std::shared_ptr<ReadingSource> readings)
    : device_(std::make_shared<SimulatedDevice>(std::move(readings))) {}

void SimulatedInstrument::scheduleWithRunLoop(RunLoop& runLoop) {
    device_->setRunLoop(&runLoop);
}

void SimulatedInstrument::unscheduleFromRunLoop() {
    device_->setRunLoop(nullptr);
}

void SimulatedInstrument::setDeviceMatching(HidMatching matching) {
    matches_ = matching == HidMatching{HIDDeviceConnector::vendorId, HIDDeviceConnector::productId};
}

std::vector<std::shared_ptr<HidDevice>> SimulatedInstrument::copyDevices() {
    if (!matches_) {
        return {};
    }
    return {device_};
}

HIDDeviceConnector::ManagerFactory
simulatedInstrumentFactory(std::shared_ptr<ReadingSource> readings) {
    return [readings = std::move(readings)] {
        return std::make_unique<SimulatedInstrument>(readings);
    };
}

} // namespace velmora::sim
