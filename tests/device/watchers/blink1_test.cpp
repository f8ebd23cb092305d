#include "device/blink1.h"
#include "tests/support/fake_hid_watcher.h"

#include <gtest/gtest.h>
#include <sstream>

namespace velmora::test {
namespace {

// What it prints as it goes is checked through `velmora-cli watch blink1`.
TEST(Blink1, GreetsOnlyTheInstrumentWithReportOneAndRefusesMoreThanEightBytes) {
    FakeHidWatcher watcher;
    std::ostringstream out;
    NotificationCenter center;
    Blink1 blink1{watcher, out, center};
    const std::uint8_t nine[] = {2, 1, 2, 3, 4, 5, 6, 7, 8};
    blink1.send(std::span(nine).first(2)); // no device yet
    EXPECT_EQ(out.str(), "");

    watcher.plug({.path = "/dev/hidraw0"});
    watcher.plug({.path = "/dev/hidraw1", .vendorId = 0x046D});
    watcher.stop();
    blink1.initUsb();
    out.str("");
    blink1.send(nine);
    blink1.send(std::span(nine).first(8));
    EXPECT_EQ(out.str(), "output data too large for USB report\n"
                         "Senting output: [2, 1, 2, 3, 4, 5, 6, 7]\n");
    // Report identifier first, then the data padded to 8 bytes.
    EXPECT_EQ(watcher.sentTo("/dev/hidraw0"),
              (std::vector<Bytes>{{1, 0x6E, 0x00, 0xFF, 0x00, 0, 0, 0}, {2, 1, 2, 3, 4, 5, 6, 7}}));
    EXPECT_TRUE(watcher.sentTo("/dev/hidraw1").empty());
}

} // namespace
} // namespace velmora::test
