#include "device/reading.h"

#include <gtest/gtest.h>

namespace velmora::test {
namespace {

TEST(FormatReadingForDisplay, ThreeFractionDigitsWithTheLocalesSeparatorsOrNothing) {
    const FixedLocale english(".");
    const FixedLocale german(",");
    EXPECT_EQ(formatReadingForDisplay("1.540", english), "1.540");
    EXPECT_EQ(formatReadingForDisplay("1.540", german), "1,540");
    EXPECT_EQ(formatReadingForDisplay("1.5", english), "1.500");
    EXPECT_EQ(formatReadingForDisplay("0", english), "0.000");
    EXPECT_EQ(formatReadingForDisplay("1.23456", english), "1.235");
    // No reading reaches 1000, so there is no grouping; a locale without a decimal separator gets
    // the full stop.
    EXPECT_EQ(formatReadingForDisplay("999.999", german), "999,999");
    EXPECT_EQ(formatReadingForDisplay("1.5", FixedLocale("")), "1.500");
    // Text that is not a number to its end shows empty.
    for (const char* text : {"", "1.5x", " 1.5", "1,540", "nan", "1e400"}) {
        EXPECT_EQ(formatReadingForDisplay(text, english), "") << '"' << text << '"';
    }
}

} // namespace
} // namespace velmora::test
