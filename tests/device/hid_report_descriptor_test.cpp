#include "device/hid_report_descriptor.h"
#include "foundation/value.h"

#include <gtest/gtest.h>

namespace velmora::test {
namespace {

// A vendor-defined device with one unnumbered 8-byte input and 8-byte output report, as the
// instrument describes itself.
const Bytes instrument{
    0x06, 0x00, 0xFF, // Usage Page (vendor 0xFF00)
    0x09, 0x01,       // Usage (1)
    0xA1, 0x01,       // Collection (Application)
    0x15, 0x00,       //   Logical Minimum (0)
    0x26, 0xFF, 0x00, //   Logical Maximum (255)
    0x75, 0x08,       //   Report Size (8)
    0x95, 0x08,       //   Report Count (8)
    0x09, 0x01,       //   Usage (1)
    0x81, 0x02,       //   Input (Data, Variable, Absolute)
    0x95, 0x08,       //   Report Count (8)
    0x09, 0x01,       //   Usage (1)
    0x91, 0x02,       //   Output (Data, Variable, Absolute)
    0xC0,             // End Collection
};

// A mouse with numbered reports: report 1 of 3 bits of buttons, 5 of padding and two 16-bit
// axes (5 bytes), report 2 of one byte, the report identifier byte on top.
const Bytes numberedMouse{
    0x05, 0x01, 0x09, 0x02, 0xA1, 0x01, // Generic Desktop, Mouse, Collection (Application)
    0x85, 0x01,                         //   Report ID (1)
    0x75, 0x01, 0x95, 0x03, 0x81, 0x02, //   3 x 1 bit Input
    0x75, 0x05, 0x95, 0x01, 0x81, 0x01, //   1 x 5 bits Input (constant)
    0xA4,                               //   Push
    0x75, 0x10, 0x95, 0x02, 0x81, 0x06, //   2 x 16 bits Input
    0xB4,                               //   Pop: back to 1 x 5 bits
    0x85, 0x02,                         //   Report ID (2)
    0x75, 0x08, 0x81, 0x02,             //   1 x 8 bits Input
    0xFE, 0x02, 0x10, 0xAA, 0xBB,       //   a long item, skipped whole
    0xC0,
};

TEST(HidReportDescriptor, GivesTheLongestInputReportWithItsIdentifierByte) {
    EXPECT_EQ(maxInputReportSize(instrument), 8);
    EXPECT_EQ(maxInputReportSize(numberedMouse), 6);
    // Output reports only, or nothing at all.
    EXPECT_EQ(maxInputReportSize(Bytes{0x75, 0x08, 0x95, 0x40, 0x91, 0x02}), 0);
    EXPECT_EQ(maxInputReportSize(Bytes{}), 0);
}

TEST(HidReportDescriptor, RefusesADescriptorThatEndsInsideAnItem) {
    EXPECT_EQ(maxInputReportSize(Bytes{0x75, 0x08, 0x96, 0x40}), std::nullopt);
    EXPECT_EQ(maxInputReportSize(Bytes{0x75, 0x08, 0xFE, 0x04, 0x10, 0x01}), std::nullopt);
    EXPECT_EQ(maxInputReportSize(Bytes{0xFE}), std::nullopt);
}

} // namespace
} // namespace velmora::test
