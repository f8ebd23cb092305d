#pragma once

// Specific gravity from hydrostatic weighing: the stone weighed in air and then immersed in water.
// It displaces its own volume of water, so S.G. = air / (air - water).

#include "search/measured.h"

#include <optional>
#include <string>

namespace velmora {

struct HydrostaticResult {
    std::optional<Measured> sg; // with the precision the two weights allow
    std::string problem;        // a sentence for the user when the weights are impossible
};

// Each weight carries half a unit of the balance's last digit as its precision.
HydrostaticResult specificGravityFromWeights(Measured air, Measured water);

} // namespace velmora
