#include "data/color_catalogue.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

TEST(ColorCatalogue, TwelveEntriesInPopUpOrder) {
    std::vector<std::string> names;
    for (const auto& c : colorCatalogue()) {
        names.push_back(c.name);
    }
    EXPECT_EQ(names,
              (std::vector<std::string>{"Green", "Red", "Black", "Yellow", "Orange", "Blue",
                                        "Brown", "Colorless", "White", "Pink", "Purple", "Grey"}));
}

TEST(ColorCatalogue, OnlyColorlessIsTransparentAndTheAdaptiveOnesAreClearlyGreenAndPink) {
    for (const auto& c : colorCatalogue()) {
        EXPECT_EQ(c.color.alpha, c.name == "Colorless" ? 0.0 : 1.0) << c.name;
    }
    const Rgba green = colorCatalogue()[0].color;
    EXPECT_GT(green.green, green.red + 0.3);
    EXPECT_GT(green.green, green.blue + 0.3);
    const Rgba pink = colorCatalogue()[9].color;
    EXPECT_GT(pink.red, 0.9);
    EXPECT_GT(pink.blue, pink.green);
    EXPECT_EQ(colorNamed("Grey")->color, Rgba::gray(1.0 / 3.0));
    EXPECT_EQ(colorNamed("Brown")->color, Rgba::rgb(0.6, 0.4, 0.2));
}

TEST(ColorCatalogue, LookupIsByExactName) {
    EXPECT_EQ(colorNamed("Colorless")->color.alpha, 0.0);
    EXPECT_FALSE(colorNamed("grey"));
    EXPECT_FALSE(colorNamed("Gray"));
    EXPECT_FALSE(colorNamed(""));
}

} // namespace
} // namespace velmora
