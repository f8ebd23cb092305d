#include "tests/cli/cli_runner.h"
#include "tests/support/fake_watch_platform.h"

#include <gtest/gtest.h>

namespace velmora::test {
namespace {

TEST(WatchHidCommand, ReportsTheInstrumentByDefaultWithItsRawReports) {
    FakeWatchPlatform platform;
    platform.hidDevices({{.path = "/dev/hidraw0"}, {.path = "/dev/hidraw1", .vendorId = 0x046D}},
                        [](FakeHidWatcher& hid) {
                            hid.sendInputReport("/dev/hidraw0", {0x04, 0x06, 0, 0, 0, 0, 0, 0});
                            hid.unplug("/dev/hidraw0");
                        });
    const auto r = runCli({"watch", "hid"});
    EXPECT_EQ(r.status, 0);
    EXPECT_EQ(r.out, "HIDDeviceConnected\t/dev/hidraw0\t0x04D8\t0xF9FF\t8\tVelmora Refractometer\n"
                     "HIDDeviceDataReceived\t04 06 00 00 00 00 00 00\n"
                     "HIDDeviceDisconnected\t/dev/hidraw0\n");
    EXPECT_EQ(r.err, "");
}

TEST(WatchHidCommand, WatchesTheGivenIdentifiersAndUsagesAsJsonLines) {
    FakeWatchPlatform platform;
    platform.hidDevices({{.path = "/dev/hidraw3", .vendorId = 0x1234, .productId = 5},
                         {.path = "/dev/hidraw4", .vendorId = 0x1234, .productId = 5, .usage = 2},
                         {.path = "/dev/hidraw0"}});
    const auto r = runCli({"--json", "watch", "hid", "--vendor", "0x1234", "--product", "5",
                           "--usage-page", "0xFF00", "--usage", "1"});
    EXPECT_EQ(r.status, 0);
    EXPECT_EQ(r.out, R"({"notification":"HIDDeviceConnected","id":"/dev/hidraw3",)"
                     R"("vendorId":"0x1234","productId":"0x0005","reportSize":"8",)"
                     R"("name":"Velmora Refractometer"})"
                     "\n");
}

TEST(WatchHidCommand, Blink1PrintsItsOwnLinesAndTheRemoval) {
    FakeWatchPlatform platform;
    platform.hidDevices({{.path = "/dev/hidraw0"}}, [](FakeHidWatcher& hid) {
        hid.sendInputReport("/dev/hidraw0", {0x04, 0x06});
        hid.unplug("/dev/hidraw0");
    });
    const auto r = runCli({"watch", "blink1"});
    EXPECT_EQ(r.status, 0);
    EXPECT_EQ(r.out, "Device connected\n"
                     "Senting output: [1, 110, 0, 255, 0]\n"
                     "Input received: [4, 6, 0, 0]\n"
                     "Device removed\n"
                     "deviceDisconnected\tVelmora_Software.Blink1\n");
}

TEST(WatchHidCommand, RefusesOptionsThatDoNotApplyAsUsageErrors) {
    FakeWatchPlatform platform;
    platform.hidDevices({});
    const std::vector<std::pair<std::vector<std::string>, std::string>> bad{
        {{"watch", "blink1", "--vendor", "1"},
         "--vendor applies to watch hid, usb and serial only\n"},
        {{"watch", "usb", "--usage-page", "1"}, "--usage-page applies to watch hid only\n"},
        {{"watch", "hid", "--interval", "1"}, "--interval applies to watch serial only\n"},
    };
    for (const auto& [args, message] : bad) {
        const auto r = runCli(args);
        EXPECT_EQ(r.status, 2) << args[1];
        EXPECT_EQ(r.err, message);
        EXPECT_EQ(r.out, "");
    }
    const auto r = runCli({"watch", "hid", "--usage", "0x10000"});
    EXPECT_EQ(r.status, 2);
}

} // namespace
} // namespace velmora::test
