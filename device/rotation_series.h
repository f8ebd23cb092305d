#pragma once

// The readings captured from one stone as the gemmologist turns it on the prism. A doubly
// refractive stone shows a reading that wanders between two indices as it turns; the lowest and
// highest captured are its two R.I.s and their difference its birefringence. A stone that reads
// the same over at least four positions is singly refractive, or an aggregate, whose crystals
// average out.

#include "foundation/locale.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace velmora {

enum class OpticCharacter { undetermined, singlyRefractive, doublyRefractive };

class RotationSeries {
public:
    static constexpr std::size_t positionsForSinglyRefractive = 4;

    // tolerance: the largest spread the instrument shows for a singly refractive stone.
    explicit RotationSeries(double tolerance = 0.002) : tolerance_(tolerance) {}

    void add(double value);
    const std::vector<double>& values() const { return values_; }
    bool empty() const { return values_.empty(); }
    std::optional<double> low() const { return low_; }
    std::optional<double> high() const { return high_; }
    // high - low in thousandths; 0 while empty.
    double birefringence() const;
    // Doubly refractive as soon as the spread goes beyond the tolerance, whatever the count.
    OpticCharacter character() const;
    // As a gemmologist writes it: "doubly refractive, birefringence 0.009" (with the locale's
    // decimal separator), "singly refractive or aggregate", or what is still missing.
    std::string verdict(const Locale& locale) const;

private:
    double tolerance_;
    std::vector<double> values_;
    std::optional<double> low_;
    std::optional<double> high_;
};

} // namespace velmora
