#include "device/serial_device_monitor.h"
#include "tests/support/fake_serial_port_source.h"

#include <gtest/gtest.h>
#include <limits>

namespace velmora::test {
namespace {

// What every poll posts is checked through `velmora-cli watch serial`.
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
