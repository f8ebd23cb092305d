#pragma once

// The fixed list of colours the user picks from, and the vocabulary of the Color1 to Color6 cells
// of the reference file.

#include "foundation/rgba.h"

#include <array>
#include <string>

namespace velmora {

struct Color {
    std::string name;
    Rgba color;

    bool operator==(const Color&) const = default;
};

// The twelve entries in pop-up order; entry 0 is the initial choice.
const std::array<Color, 12>& colorCatalogue();

} // namespace velmora
