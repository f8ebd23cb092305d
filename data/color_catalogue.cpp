#include "data/color_catalogue.h"

namespace velmora {

const std::array<Color, 12>& colorCatalogue() {
    static const std::array<Color, 12> catalogue = {{
        // The desktop's adaptive "system green" in its light appearance: a clear, opaque green.
        {"Green", Rgba::rgb255(52, 199, 89)},
        {"Red", Rgba::rgb(1.0, 0.0, 0.0)},
        {"Black", Rgba::gray(0.0)},
        {"Yellow", Rgba::rgb(1.0, 1.0, 0.0)},
        {"Orange", Rgba::rgb(1.0, 0.5, 0.0)},
        {"Blue", Rgba::rgb(0.0, 0.0, 1.0)},
        {"Brown", Rgba::rgb(0.6, 0.4, 0.2)},
        {"Colorless", Rgba::gray(0.0, 0.0)},
        {"White", Rgba::gray(1.0)},
        // The adaptive "system pink" in its light appearance: a clear, opaque pink.
        {"Pink", Rgba::rgb255(255, 45, 85)},
        {"Purple", Rgba::rgb(0.5, 0.0, 0.5)},
        // "Grey" is painted dark grey.
        {"Grey", Rgba::gray(1.0 / 3.0)},
    }};
    return catalogue;
}

} // namespace velmora
