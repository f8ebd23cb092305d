// `velmora-cli watch` over fake devices: each line it prints shows every field of a watcher's
// notification, so these check the watchers and their printing at once.

#include "tests/cli/cli_runner.h"
#include "tests/support/fake_watch_platform.h"

#include <gtest/gtest.h>

namespace velmora::test {
namespace {

// A USB serial adapter's port, with made-up but plausible details.
SerialDevice usbSerialPort(std::string path, std::int64_t vendorId, std::int64_t productId) {
    return {std::move(path), "USB Serial", "Maker", "SN" + std::to_string(productId),
            vendorId,        productId};
}

const SerialDevice ftdi = usbSerialPort("/dev/ttyUSB0", 0x0403, 0x6001);
const SerialDevice instrument = usbSerialPort("/dev/ttyACM0", 0x04D8, 0xF9FF);

struct WatchCase {
    std::function<void(FakeWatchPlatform&)> devices;
    std::vector<std::string> args;
    std::string out;
};

TEST(WatchCommand, PrintsTheDevicesPresentFirstThenEachChangeAsItComes) {
    const std::string connected = "HIDDeviceConnected\t/dev/hidraw0\t0x04D8\t0xF9FF\t8\t"
                                  "Velmora Refractometer\n";
    SerialDevice renamed = ftdi;
    renamed.name = "Renamed";
    const WatchCase cases[] = {
        // A port without a path is left out; one that changes but keeps its path is no news.
        {[renamed](auto& p) {
             p.serialSnapshots({{ftdi, {.path = "/dev/ttyS0"}, usbSerialPort("", 0x1111, 0x2222)},
                                {instrument, renamed}},
                               2);
         },
         {"watch", "serial", "--interval", "0"},
         "SerialDeviceAdded\t/dev/ttyUSB0\tUSB Serial\tMaker\tSN24577\t0x0403\t0x6001\n"
         "SerialDeviceAdded\t/dev/ttyS0\t\t\t\t\t\n"
         "SerialDeviceRemoved\t/dev/ttyS0\t\t\t\t\t\n"
         "SerialDeviceAdded\t/dev/ttyACM0\tUSB Serial\tMaker\tSN63999\t0x04D8\t0xF9FF\n"},
        // A "LocationID" that is a number gives an empty id; a report of n bytes, n bytes; a
        // device that was never reported, nothing.
        {[](auto& p) {
             p.hidDevices({{.path = "/dev/hidraw0"},
                           {.path = "/dev/hidraw1", .vendorId = 0x046D},
                           {.path = "/dev/hidraw2",
                            .product = std::nullopt,
                            .maxInputReportSize = std::nullopt,
                            .locationId = std::int64_t{0x14200000}}},
                          [](FakeHidWatcher& hid) {
                              hid.sendInputReport("/dev/hidraw0", {0x04, 0x06, 0, 0, 0, 0, 0, 0});
                              hid.sendInputReport("/dev/hidraw0", {});
                              hid.sendInputReport("/dev/hidraw1", {0xEE});
                              hid.unplug("/dev/hidraw0");
                              hid.unplug("/dev/hidraw2");
                              hid.plug({.path = "/dev/hidraw0"});
                          });
         },
         {"watch", "hid"},
         connected + "HIDDeviceConnected\t\t0x04D8\t0xF9FF\t0\t\n" +
             "HIDDeviceDataReceived\t04 06 00 00 00 00 00 00\n"
             "HIDDeviceDataReceived\t\n"
             "HIDDeviceDisconnected\t/dev/hidraw0\nHIDDeviceDisconnected\t\n" +
             connected},
    };
    for (const auto& c : cases) {
        FakeWatchPlatform platform;
        c.devices(platform);
        EXPECT_EQ(runCli(c.args), (CliResult{0, c.out, ""})) << c.args[1];
    }
}

TEST(WatchCommand, RefusesBadOptionsAsUsageErrors) {
    FakeWatchPlatform platform;
    platform.serialSnapshots({}, 1);
    platform.hidDevices({});
    const std::vector<std::pair<std::vector<std::string>, std::string>> bad{
        {{"watch", "serial", "--interval", "nan"}, ""},
        {{"watch", "printer"}, ""},
        {{"watch", "hid", "--interval", "1"}, "--interval applies to watch serial only\n"},
    };
    for (const auto& [args, message] : bad) {
        const auto r = runCli(args);
        EXPECT_EQ(r.status, 2) << args[1] << ' ' << args.back();
        EXPECT_EQ(r.out, "") << args.back();
        EXPECT_TRUE(message.empty() ? !r.err.empty() : r.err == message) << r.err;
    }
}

} // namespace
} // namespace velmora::test
