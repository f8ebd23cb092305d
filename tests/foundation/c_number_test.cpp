#include "foundation/c_number.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace velmora::test {
namespace {

struct C {
    const char* text;
    std::optional<double> number;
};

TEST(CNumber, TheWholeTextInTheCNotationWhateverTheLocale) {
    const double inf = std::numeric_limits<double>::infinity();
    const double smallest = std::numeric_limits<double>::denorm_min();
    const C cases[] = {
        {"1.544", 1.544},
        {"+1.5", 1.5},
        {"-.5", -0.5},
        {"1e3", 1000.0},
        {"0x1.8p1", 3.0},
        {"inf", inf},
        // Out of range: infinity, or towards zero.
        {"1e400", inf},
        {"1e-400", 0.0},
        {"2.5e-324", smallest},
        // No number, or not the whole text a number.
        {"", std::nullopt},
        {" 1", std::nullopt},
        {"+-1", std::nullopt},
        {"1.5.4", std::nullopt},
        {"1,5", std::nullopt},
        {"0x", std::nullopt},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(parseCNumber(c.text), c.number) << c.text;
    }
    EXPECT_EQ(parseCNumber(std::string_view("1\0", 2)), std::nullopt);
    EXPECT_TRUE(std::signbit(*parseCNumber("-0")));
    EXPECT_TRUE(std::isnan(*parseCNumber("nan")));
}

} // namespace
} // namespace velmora::test
