#include "device/serial_device_monitor.h"
#include "tests/support/fake_serial_port_source.h"
#include "tests/support/notification_recorder.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace velmora::test {
namespace {

using Snapshots = std::vector<std::vector<SerialDevice>>;

const SerialDevice ftdi = usbSerialPort("/dev/ttyUSB0", 0x0403, 0x6001);
const SerialDevice instrument = usbSerialPort("/dev/ttyACM0", 0x04D8, 0xF9FF);
const SerialDevice onboard = plainPort("/dev/ttyS0");

struct SerialRun {
    explicit SerialRun(Snapshots snapshots) : source(std::move(snapshots)) {}

    FakeSerialPortSource source;
    NotificationCenter center;
    NotificationRecorder recorder{center, {SerialDeviceAdded, SerialDeviceRemoved}};
    SerialDeviceMonitor monitor{source, center};

    // Each notification as its name and the port's path.
    std::vector<std::string> posted() {
        std::vector<std::string> lines;
        for (const auto& n : recorder.notifications()) {
            const auto& device = std::any_cast<SerialDevice>(*n.object["device"]->asRecord());
            lines.push_back(n.name + " " + device.path);
        }
        return lines;
    }
};

TEST(SerialDeviceMonitor, FirstPollReportsEveryListedPortAsAdded) {
    SerialDevice withoutPath = usbSerialPort("", 0x1111, 0x2222);
    SerialRun run({{ftdi, withoutPath, onboard}});
    run.monitor.poll();

    EXPECT_EQ(run.posted(), (std::vector<std::string>{"SerialDeviceAdded /dev/ttyUSB0",
                                                      "SerialDeviceAdded /dev/ttyS0"}));
    const auto& added =
        std::any_cast<SerialDevice>(*run.recorder.notifications()[0].object["device"]->asRecord());
    EXPECT_EQ(added.name, "USB Serial");
    EXPECT_EQ(added.vendorName, "Maker");
    EXPECT_EQ(added.serialNumber, "SN24577");
    EXPECT_EQ(added.vendorId, 0x0403);
    EXPECT_EQ(added.productId, 0x6001);
    EXPECT_EQ(run.monitor.serialDevices, (std::vector<SerialDevice>{ftdi, onboard}));
}

TEST(SerialDeviceMonitor, RemovalsComeBeforeAdditionsAndAChangedPortKeepsItsPlace) {
    SerialDevice renamed = ftdi;
    renamed.name = "Renamed";
    renamed.serialNumber.reset();
    SerialRun run({{ftdi, onboard}, {renamed, instrument}});
    run.monitor.poll();
    run.monitor.poll();

    EXPECT_EQ(run.posted(), (std::vector<std::string>{"SerialDeviceAdded /dev/ttyUSB0",
                                                      "SerialDeviceAdded /dev/ttyS0",
                                                      "SerialDeviceRemoved /dev/ttyS0",
                                                      "SerialDeviceAdded /dev/ttyACM0"}));
    EXPECT_EQ(run.monitor.serialDevices.front().name, "Renamed");
}

TEST(SerialDeviceMonitor, NoPortsPostNothing) {
    SerialRun run(Snapshots{{}});
    run.monitor.poll();
    run.monitor.poll();
    EXPECT_TRUE(run.posted().empty());
    EXPECT_TRUE(run.monitor.serialDevices.empty());
}

TEST(SerialDeviceMonitor, AFilterThatKeepsNothingRemovesEveryListedPort) {
    SerialRun run({{ftdi, instrument}});
    run.monitor.poll();
    run.monitor.filterDevices = [](std::vector<SerialDevice>) {
        return std::vector<SerialDevice>{};
    };
    run.monitor.poll();

    EXPECT_EQ(run.posted(), (std::vector<std::string>{"SerialDeviceAdded /dev/ttyUSB0",
                                                      "SerialDeviceAdded /dev/ttyACM0",
                                                      "SerialDeviceRemoved /dev/ttyUSB0",
                                                      "SerialDeviceRemoved /dev/ttyACM0"}));
    EXPECT_TRUE(run.monitor.serialDevices.empty());
}

TEST(SerialDeviceMonitor, ThePauseIsTheIntervalToTheNearestMicrosecond) {
    SerialRun run({});
    EXPECT_EQ(run.monitor.portUsageIntervalTime(), 0.25f);
    EXPECT_EQ(run.monitor.pauseMicroseconds(), 250'000u);
    const std::pair<double, std::uint32_t> cases[] = {
        {1.5, 1'500'000u}, {0.7, 700'000u}, {0, 0u}, {4294.9672959, 4'294'967'285u}};
    for (const auto& [seconds, micros] : cases) {
        ASSERT_TRUE(run.monitor.setPortUsageIntervalTime(seconds)) << seconds;
        EXPECT_EQ(run.monitor.pauseMicroseconds(), micros) << seconds;
    }
}

TEST(SerialDeviceMonitor, AnIntervalThatCannotBeCountedInMicrosecondsIsRefused) {
    SerialRun run({});
    ASSERT_TRUE(run.monitor.setPortUsageIntervalTime(2));
    const double refused[] = {std::numeric_limits<double>::quiet_NaN(),
                              std::numeric_limits<double>::infinity(),
                              -std::numeric_limits<double>::infinity(),
                              -0.001,
                              4294.967296,
                              1e10};
    for (const double seconds : refused) {
        EXPECT_FALSE(run.monitor.setPortUsageIntervalTime(seconds)) << seconds;
        EXPECT_EQ(run.monitor.portUsageIntervalTime(), 2.0f);
    }
}

TEST(SerialDeviceMonitor, StartPollsUntilStopped) {
    NotificationCenter center;
    SerialDeviceMonitor* running = nullptr;
    FakeSerialPortSource source({{ftdi}, {}, {instrument}}, [&](std::size_t call) {
        if (call == 3) {
            running->stop();
        }
    });
    SerialDeviceMonitor monitor(source, center);
    running = &monitor;
    ASSERT_TRUE(monitor.setPortUsageIntervalTime(0));
    NotificationRecorder recorder(center, {SerialDeviceAdded, SerialDeviceRemoved});
    monitor.start();

    EXPECT_EQ(source.calls(), 3u);
    EXPECT_EQ(recorder.names(), (std::vector<std::string>{SerialDeviceAdded, SerialDeviceRemoved,
                                                          SerialDeviceAdded}));
    // A stopped monitor stays stopped.
    monitor.start();
    EXPECT_EQ(source.calls(), 3u);
}

} // namespace
} // namespace velmora::test
