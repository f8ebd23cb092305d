#include "device/rotation_series.h"

#include "device/reading.h"
#include "device/thousandths.h"

#include <algorithm>

namespace velmora {

void RotationSeries::add(double value) {
    values_.push_back(value);
    low_ = std::min(low_.value_or(value), value);
    high_ = std::max(high_.value_or(value), value);
}

double RotationSeries::birefringence() const {
    return empty() ? 0 : roundToThousandths(*high_ - *low_);
}

OpticCharacter RotationSeries::character() const {
    if (!empty() && differBeyond(*high_, *low_, tolerance_)) {
        return OpticCharacter::doublyRefractive;
    }
    return values_.size() >= positionsForSinglyRefractive ? OpticCharacter::singlyRefractive
                                                          : OpticCharacter::undetermined;
}

std::string RotationSeries::verdict(const Locale& locale) const {
    switch (character()) {
    case OpticCharacter::doublyRefractive:
        return "doubly refractive, birefringence " + formatValueForDisplay(birefringence(), locale);
    case OpticCharacter::singlyRefractive:
        return "singly refractive or aggregate";
    case OpticCharacter::undetermined:
        break;
    }
    if (empty()) {
        return "no reading captured";
    }
    return "more positions needed: " + std::to_string(values_.size()) + " of " +
           std::to_string(positionsForSinglyRefractive) + " taken";
}

} // namespace velmora
