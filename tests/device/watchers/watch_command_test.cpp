#include "tests/cli/cli_runner.h"
#include "tests/support/fake_watch_platform.h"

#include <csignal>
#include <gtest/gtest.h>

namespace velmora::test {
namespace {

using cli::watchPlatform;

const SerialDevice ftdi = usbSerialPort("/dev/ttyUSB0", 0x0403, 0x6001);
const SerialDevice instrument = usbSerialPort("/dev/ttyACM0", 0x04D8, 0xF9FF);

TEST(WatchCommand, SerialPrintsEachPortAsItComesAndGoes) {
    FakeWatchPlatform platform;
    platform.serialSnapshots({{ftdi, plainPort("/dev/ttyS0")}, {instrument}}, 2);
    const auto r = runCli({"watch", "serial", "--interval", "0"});
    EXPECT_EQ(r.status, 0);
    EXPECT_EQ(r.out,
              "SerialDeviceAdded\t/dev/ttyUSB0\tUSB Serial\tMaker\tSN24577\t0x0403\t0x6001\n"
              "SerialDeviceAdded\t/dev/ttyS0\t\t\t\t\t\n"
              "SerialDeviceRemoved\t/dev/ttyUSB0\tUSB Serial\tMaker\tSN24577\t0x0403\t0x6001\n"
              "SerialDeviceRemoved\t/dev/ttyS0\t\t\t\t\t\n"
              "SerialDeviceAdded\t/dev/ttyACM0\tUSB Serial\tMaker\tSN63999\t0x04D8\t0xF9FF\n");
    EXPECT_EQ(r.err, "");
}

TEST(WatchCommand, SerialListsOnlyThePortsOfTheGivenIdentifiersAsJsonLines) {
    FakeWatchPlatform platform;
    platform.serialSnapshots({{ftdi, instrument}}, 1);
    const auto r = runCli({"watch", "serial", "--json", "--vendor", "1240", "--product", "0xf9ff"});
    EXPECT_EQ(r.status, 0);
    EXPECT_EQ(r.out, R"({"notification":"SerialDeviceAdded","path":"/dev/ttyACM0",)"
                     R"("name":"USB Serial","vendorName":"Maker","serialNumber":"SN63999",)"
                     R"("vendorId":"0x04D8","productId":"0xF9FF"})"
                     "\n");
}

TEST(WatchCommand, UsbReportsTheInstrumentByDefaultWithTheWatchersOwnLines) {
    FakeWatchPlatform platform;
    platform.usbDevices({{.location = 0x0301020000000000, .name = "Velmora"},
                         {.location = 0x0302000000000000, .vendorId = 0x1234},
                         {.location = 0x0303000000000000, .openResult = {-3, false}}},
                        [](FakeUsbWatcher& bus) { bus.unplug(0x0301020000000000); });
    const auto r = runCli({"watch", "usb"});
    EXPECT_EQ(r.status, 0);
    EXPECT_EQ(r.out, "USBDeviceConnected\t0x0301020000000000\t0x04D8\t0xF9FF\tVelmora\n"
                     "Could not open device (error: -3)\n"
                     "USBDeviceDisconnected\t0x0301020000000000\n");
}

TEST(WatchCommand, UsbWatchesTheGivenPairAndKeepsJsonLinesClean) {
    FakeWatchPlatform platform;
    platform.usbDevices(
        {{.location = 1, .vendorId = 0x1234, .productId = 5, .name = "Probe"},
         {.location = 2, .vendorId = 0x1234, .productId = 5, .openResult = {-3, false}},
         {.location = 3}});
    const auto r = runCli({"--json", "watch", "usb", "--vendor", "0x1234", "--product", "5"});
    EXPECT_EQ(r.status, 0);
    EXPECT_EQ(r.out, R"({"notification":"USBDeviceConnected","id":"0x0000000000000001",)"
                     R"("vendorId":"0x1234","productId":"0x0005","name":"Probe"})"
                     "\n");
    EXPECT_EQ(r.err, "Could not open device (error: -3)\n");
}

TEST(WatchCommand, ItEndsCleanlyOnSigtermAndGivesTheSignalBack) {
    FakeWatchPlatform platform;
    platform.keepRealInterrupts();
    watchPlatform().serialPorts = [] {
        return std::make_unique<FakeSerialPortSource>(
            std::vector<std::vector<SerialDevice>>{{ftdi}}, [](std::size_t call) {
                if (call == 2) {
                    std::raise(SIGTERM);
                }
            });
    };
    const auto r = runCli({"watch", "serial", "--interval", "0"});
    EXPECT_EQ(r.status, 0);
    EXPECT_EQ(r.out.find("SerialDeviceAdded\t/dev/ttyUSB0"), 0u);
    struct sigaction now {};
    sigaction(SIGTERM, nullptr, &now);
    EXPECT_EQ(now.sa_handler, SIG_DFL);
}

TEST(WatchCommand, RefusesBadOptionsAsUsageErrors) {
    FakeWatchPlatform platform;
    platform.serialSnapshots({}, 1);
    platform.usbDevices({});
    const std::vector<std::vector<std::string>> bad{
        {"watch", "serial", "--interval", "nan"},
        {"watch", "serial", "--interval=-0.5"},
        {"watch", "serial", "--interval", "4294.967296"},
        {"watch", "usb", "--interval", "1"},
        {"watch", "usb", "--vendor", "0x10000"},
        {"watch", "usb", "--product", "04D8"},
        {"watch", "usb", "--vendor", "-1"},
        {"watch", "printer"},
    };
    for (const auto& args : bad) {
        const auto r = runCli(args);
        EXPECT_EQ(r.status, 2) << args.back();
        EXPECT_NE(r.err, "") << args.back();
        EXPECT_EQ(r.out, "") << args.back();
    }
}

TEST(WatchCommand, TellsWhyUsbCannotBeWatched) {
    FakeWatchPlatform platform;
    watchPlatform().usbWatcher = [](std::string& error) {
        error = "Insufficient memory";
        return std::unique_ptr<UsbWatcher>();
    };
    const auto r = runCli({"watch", "usb"});
    EXPECT_EQ(r.status, 1);
    EXPECT_EQ(r.err, "Cannot watch USB devices: Insufficient memory\n");
}

} // namespace
} // namespace velmora::test
