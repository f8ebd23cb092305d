#include "device/capture_model.h"
#include "device/device_notifications.h"
#include "device/hid_device_connector.h"
#include "device/sim/simulated_instrument.h"
#include "device/sim/simulated_session.h"
#include "foundation/c_number.h"
#include "tests/support/manual_run_loop.h"
#include "tests/support/recording_log.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <set>

namespace velmora::test {
namespace {

using namespace std::chrono_literals;
using ::testing::DoubleNear;

// The simulated gemmologist at work for ten minutes on the virtual clock, every steady reading
// captured: each stone gives one series, which tells its optic character.
TEST(SimulatedSession, EachStoneTurnedOnThePrismGivesASeriesThatTellsItsCharacter) {
    // The stones the session places, by their lowest R.I.: the highest, in thousandths.
    const std::map<int, int> stones = {{1544, 1553}, {1577, 1583}, {1619, 1627},
                                       {1624, 1644}, {1654, 1690}, {1691, 1700},
                                       {1718, 1718}, {1746, 1755}, {1762, 1770}};
    for (const std::uint32_t seed : {1u, 2u, 3u}) {
        ManualRunLoop loop;
        NotificationCenter center;
        RecordingLog log;
        HIDDeviceConnector connector(
            sim::simulatedInstrumentFactory(std::make_shared<sim::SimulatedSession>(seed)), loop,
            center, log);
        CaptureModel model({.automatic = true});
        std::vector<RotationSeries> series;
        model.onSeriesChange([&](const RotationSeries& s) {
            if (s.values().size() == 1) {
                series.push_back(s);
            } else {
                series.back() = s;
            }
        });
        center.addObserver<HIDDeviceDataReceived>([&](const HIDDeviceDataReceived& reading) {
            model.add(loop.now(), parseCNumber(reading.data).value_or(0));
        });
        connector.connectDataToDevice();
        loop.advance(10min);

        ASSERT_GT(series.size(), 20u) << seed;
        std::set<int> seen;
        // The last may still be under way.
        series.pop_back();
        for (const auto& s : series) {
            // The edge may settle a thousandth off while it still flickers.
            const int low = static_cast<int>(std::lround(*s.low() * 1000));
            auto stone = stones.lower_bound(low - 1);
            ASSERT_TRUE(stone != stones.end() && stone->first <= low + 1) << seed << ": " << low;
            seen.insert(stone->first);
            if (stone->second == stone->first) {
                // The same reading at every position: one steady reading; the gemmologist
                // captures the others by hand.
                EXPECT_EQ(s.values().size(), 1u) << seed << ": " << low;
                EXPECT_EQ(s.character(), OpticCharacter::undetermined);
                continue;
            }
            EXPECT_EQ(s.values().size(), 5u) << seed << ": " << low;
            EXPECT_EQ(s.character(), OpticCharacter::doublyRefractive);
            EXPECT_THAT(*s.high(), DoubleNear(stone->second / 1000.0, 0.0011)) << seed;
        }
        EXPECT_EQ(seen.size(), stones.size()) << seed;
    }
}

} // namespace
} // namespace velmora::test
