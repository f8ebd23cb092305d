#include "search/hydrostatic.h"

#include <cmath>

namespace velmora {

HydrostaticResult specificGravityFromWeights(Measured air, Measured water) {
    if (!(air.value > 0)) {
        return {std::nullopt, "The weight in air must be above zero."};
    }
    if (!(water.value > 0)) {
        return {std::nullopt, "The weight in water must be above zero: a stone that floats "
                              "cannot be weighed this way."};
    }
    if (water.value >= air.value) {
        return {std::nullopt, "The weight in water must be below the weight in air: water "
                              "buoys the stone up."};
    }
    const double loss = air.value - water.value;
    // The error of both weights carried through air / (air - water): small stones lose little
    // weight in water, so their S.G. is known far less well than a large stone's.
    const double precision =
        (water.value * air.precision + air.value * water.precision) / (loss * loss);
    return {Measured{air.value / loss, precision}, {}};
}

} // namespace velmora
