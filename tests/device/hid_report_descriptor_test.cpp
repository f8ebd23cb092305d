#include "device/hid_device.h"
#include "device/hid_report_descriptor.h"

#include <gtest/gtest.h>
#include <limits>

namespace velmora::test {
namespace {

Bytes operator+(Bytes a, const Bytes& b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

TEST(HidReportDescriptor, GivesTheLongestInputReportWithItsIdentifierByteOrNoneWhenCut) {
    // The instrument: vendor-defined, one unnumbered report of 8 bytes each way.
    const Bytes instrument{
        0x06, 0x00, 0xFF, 0x09, 0x01, 0xA1, 0x01,       // usage page 0xFF00, usage 1, collection
        0x15, 0x00, 0x26, 0xFF, 0x00,                   //   logical 0 to 255
        0x75, 0x08, 0x95, 0x08, 0x09, 0x01, 0x81, 0x02, //   8 x 8 bits input
        0x95, 0x08, 0x09, 0x01, 0x91, 0x02, 0xC0};      //   8 x 8 bits output
    // A mouse with numbered reports: report 1 of 3 bits of buttons, 5 of padding and two 16-bit
    // axes (5 bytes), report 2 of one byte; each with its identifier byte on top.
    const Bytes numberedMouse{
        0x05, 0x01, 0x09, 0x02, 0xA1, 0x01, 0x85, 0x01, // desktop mouse, report 1
        0x75, 0x01, 0x95, 0x03, 0x81, 0x02,             //   3 x 1 bit input
        0x75, 0x05, 0x95, 0x01, 0x81, 0x01,             //   1 x 5 bits input
        0xA4, 0x75, 0x10, 0x95, 0x02, 0x81, 0x06, 0xB4, //   push, 2 x 16 bits input, pop
        0x85, 0x02, 0x75, 0x08, 0x81, 0x02,             //   report 2: 1 x 8 bits input
        0xFE, 0x02, 0x10, 0xAA, 0xBB, 0xC0};            //   a long item, skipped whole
    EXPECT_EQ(maxInputReportSize(instrument), 8);
    EXPECT_EQ(maxInputReportSize(numberedMouse), 6);
    EXPECT_EQ(maxInputReportSize(Bytes{0x75, 0x08, 0x95, 0x40, 0x91, 0x02}), 0); // output only
    EXPECT_EQ(maxInputReportSize(Bytes{}), 0);
    EXPECT_EQ(maxInputReportSize(Bytes{0x75, 0x08, 0x96, 0x40}), std::nullopt);
    EXPECT_EQ(maxInputReportSize(Bytes{0x75, 0x08, 0xFE, 0x04, 0x10, 0x01}), std::nullopt);
    EXPECT_EQ(maxInputReportSize(Bytes{0xFE}), std::nullopt);
}

// Sizes and counts of 2^31 make 2^62 bits an item; four of them would wrap 64 bits to 0.
TEST(HidReportDescriptor, ReportsTooLongToCountSaturateInsteadOfWrapping) {
    constexpr auto largest = std::numeric_limits<std::int64_t>::max();
    const Bytes huge{0x77, 0x00, 0x00, 0x00, 0x80, 0x97, 0x00, 0x00, 0x00, 0x80};
    const std::pair<Bytes, std::optional<std::int64_t>> cases[] = {
        {huge + Bytes{0x80, 0x80, 0x80}, std::int64_t{3} << 59}, // 3 * 2^62 bits still fit
        {huge + Bytes{0x80, 0x80, 0x80, 0x80}, largest},
        {huge + Bytes{0x80, 0x80, 0x80, 0x80, 0x80}, largest},
        // One item of (2^32 - 1)^2 bits fits; a second one does not.
        {Bytes{0x77, 0xFF, 0xFF, 0xFF, 0xFF, 0x97, 0xFF, 0xFF, 0xFF, 0xFF, 0x80},
         std::int64_t{0x1FFFFFFFC0000001}},
        {Bytes{0x77, 0xFF, 0xFF, 0xFF, 0xFF, 0x97, 0xFF, 0xFF, 0xFF, 0xFF, 0x80, 0x80}, largest},
        // Numbered: the identifier byte on top of the largest is still the largest.
        {Bytes{0x85, 0x01} + huge + Bytes{0x80, 0x80, 0x80, 0x80}, largest},
    };
    for (const auto& [descriptor, length] : cases) {
        EXPECT_EQ(maxInputReportSize(descriptor), length);
    }
}

} // namespace
} // namespace velmora::test
