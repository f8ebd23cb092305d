#include "records/record_from_measurement.h"
#include "ui/view_controller.h"

#include <chrono>

namespace velmora {

StoneRecord ViewController::recordOfMeasurement(std::string label) const {
    const auto now = std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now());
    return recordFromMeasurement(std::move(label), now, capture_.series(), rankingForm(),
                                 decimalSeparators(), bestMatches_.rows());
}

void ViewController::setRecordsServices(RecordsServices services) {
    records_.setServices(std::move(services));
}

void ViewController::showRecords() {
    records_.reload();
}

} // namespace velmora
