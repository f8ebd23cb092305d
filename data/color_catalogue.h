#pragma once

// The fixed list of colours the user picks from, and the vocabulary of the Color1 to Color6 cells
// of the reference file.

#include "foundation/rgba.h"

#include <array>
#include <optional>
#include <string>

namespace velmora {

struct Color {
    std::string name;
    Rgba color;

    bool operator==(const Color&) const = default;
};

// The twelve entries in pop-up order; entry 0 is the initial choice.
const std::array<Color, 12>& colorCatalogue();

// The first entry whose name equals the title exactly (case and all).
std::optional<Color> colorNamed(const std::string& title);

} // namespace velmora
