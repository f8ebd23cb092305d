#include "device/serial_device_monitor.h"
#include "tests/support/fake_serial_port_source.h"

#include <gtest/gtest.h>
#include <limits>

namespace velmora::test {
namespace {

using Lines = std::vector<std::string>;

const SerialDevice ftdi = usbSerialPort("/dev/ttyUSB0", 0x0403, 0x6001);
const SerialDevice instrument = usbSerialPort("/dev/ttyACM0", 0x04D8, 0xF9FF);
// What every poll posts, removals before additions, is checked through `velmora-cli watch serial`.
TEST(SerialDeviceMonitor, ListsPortsWithAPathKeepsAChangedOneInPlaceAndAnEmptyFilterRemovesAll) {
    SerialDevice renamed = ftdi;
    renamed.name = "Renamed";
    FakeSerialPortSource source(
        {{}, {ftdi, usbSerialPort("", 0x1111, 0x2222)}, {renamed, instrument}});
    NotificationCenter center;
    Lines posted;
    const auto record = [&](const auto& n) {
        posted.push_back(std::string(n.name) + " " + n.device.path);
    };
    center.addObserver<SerialDeviceAdded>(record);
    center.addObserver<SerialDeviceRemoved>(record);
    SerialDeviceMonitor monitor{source, center};
    monitor.poll();
    EXPECT_TRUE(posted.empty());
    monitor.poll();
    monitor.poll();
    EXPECT_EQ(monitor.serialDevices, (std::vector<SerialDevice>{ftdi, instrument}));
    EXPECT_EQ(monitor.serialDevices[0].name, "Renamed");
    monitor.filterDevices = [](auto) {
        return std::vector<SerialDevice>{};
    };
    monitor.poll();
    EXPECT_EQ(posted,
              (Lines{"SerialDeviceAdded /dev/ttyUSB0", "SerialDeviceAdded /dev/ttyACM0",
                     "SerialDeviceRemoved /dev/ttyUSB0", "SerialDeviceRemoved /dev/ttyACM0"}));
    EXPECT_TRUE(monitor.serialDevices.empty());
}

TEST(SerialDeviceMonitor, ThePauseIsTheIntervalToTheMicrosecondAndOnlyCountableOnesAreTaken) {
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    constexpr double inf = std::numeric_limits<double>::infinity();
    FakeSerialPortSource source({});
    SerialDeviceMonitor monitor(source);
    EXPECT_EQ(monitor.pauseMicroseconds(), 250'000u);
    const std::pair<double, std::optional<std::uint32_t>> cases[] = {
        {1.5, 1'500'000u}, {0.7, 700'000u}, {0, 0u},    {4294.9672959, 4'294'967'285u},
        {nan, {}},         {inf, {}},       {-inf, {}}, {-0.001, {}},
        {4294.967296, {}}, {1e10, {}}}; // none: refused, the pause stays as it was
    for (const auto& [seconds, micros] : cases) {
        ASSERT_TRUE(monitor.setPortUsageIntervalTime(2));
        EXPECT_EQ(monitor.setPortUsageIntervalTime(seconds), micros.has_value()) << seconds;
        EXPECT_EQ(monitor.pauseMicroseconds(), micros.value_or(2'000'000u)) << seconds;
    }
}

} // namespace
} // namespace velmora::test
