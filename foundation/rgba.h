#pragma once

// A colour as the views paint it: red, green, blue and alpha, each from 0 to 1.

namespace velmora {

struct Rgba {
    double red = 0;
    double green = 0;
    double blue = 0;
    double alpha = 1;

    bool operator==(const Rgba&) const = default;

    static constexpr Rgba rgb(double r, double g, double b) { return {r, g, b, 1}; }
    static constexpr Rgba gray(double white, double alpha = 1) {
        return {white, white, white, alpha};
    }
    // From 0-255 components, as colours are usually written down.
    static constexpr Rgba rgb255(int r, int g, int b) {
        return {r / 255.0, g / 255.0, b / 255.0, 1};
    }
};

} // namespace velmora
