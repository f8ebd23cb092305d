#include "device/device_notifications.h"
#include "device/sim/replayed_readings.h"
#include "device/sim/simulated_instrument.h"
#include "device/sim/simulated_session.h"
#include "tests/support/manual_run_loop.h"
#include "tests/support/notification_recorder.h"
#include "tests/support/recording_log.h"
#include "tests/support/temp_dir.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmora::test {
namespace {

using namespace std::chrono_literals;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

std::shared_ptr<sim::ReadingSource> replay(std::vector<std::uint16_t> readings) {
    return std::make_shared<sim::ReplayedReadings>(std::move(readings));
}

TEST(SimulatedInstrument, AnswersEachRequestThroughTheLoopOnlyAfterAStartReport) {
    ManualRunLoop loop;
    sim::SimulatedInstrument manager(replay({1544, 65535}));
    manager.scheduleWithRunLoop(loop);
    manager.setDeviceMatching({0x04D8, 0xF9FF});
    const auto device = manager.copyDevices().at(0);
    std::vector<Bytes> received;
    device->registerInputReportCallback(
        [&](std::span<const std::uint8_t> r) { received.emplace_back(r.begin(), r.end()); });
    const auto send = [&](std::uint8_t b0, std::uint8_t b1) {
        const std::uint8_t report[] = {b0, b1, 0, 0, 0, 0, 0, 0};
        device->setOutputReport(0, report);
    };

    send(0x31, 0x00);
    send(0x80, 0x80);
    send(0x32, 0x00);
    loop.runPending();
    EXPECT_THAT(received, IsEmpty());
    send(0x31, 0x00);
    send(0x31, 0x00);
    EXPECT_THAT(received, IsEmpty());
    loop.runPending();
    EXPECT_THAT(received, ElementsAre(Bytes{0x08, 0x06, 0, 0, 0, 0, 0, 0},
                                      Bytes{0xFF, 0xFF, 0, 0, 0, 0, 0, 0}));

    manager.setDeviceMatching({0x04D8, 0x0001});
    EXPECT_THAT(manager.copyDevices(), IsEmpty());
}

TEST(SimulatedInstrument, DrivesTheConnectorWithReadingsReplayedFromAFile) {
    TempDir dir;
    std::vector<std::uint16_t> readings;
    std::string error;
    ASSERT_TRUE(sim::loadReadingFile(dir.write("r.txt", "1.544\n1.545\n1.6\n"), readings, error));

    ManualRunLoop loop;
    NotificationCenter center;
    RecordingLog log;
    NotificationRecorder recorder(center, {HIDDeviceConnected, HIDDeviceDataReceived});
    HIDDeviceConnector connector(sim::simulatedInstrumentFactory(replay(readings)), loop, center,
                                 log);
    connector.connectDataToDevice();
    loop.advance(400ms);
    // A new session carries on with the same readings.
    connector.connectDataToDevice();
    loop.advance(100ms);

    std::vector<std::string> texts;
    for (const auto& n : recorder.notifications()) {
        texts.push_back(n.name == HIDDeviceConnected ? "connected" : *n.object["data"]->asString());
    }
    EXPECT_THAT(texts, ElementsAre("connected", "1.544", "1.545", "1.600", "1.544", "1.545"));
}

TEST(ReadingFile, ReadsOneRiALineAndRefusesAnythingElseNamingFileAndLine) {
    TempDir dir;
    std::vector<std::uint16_t> readings;
    std::string error;
    ASSERT_TRUE(sim::loadReadingFile(dir.write("r.txt", "\xEF\xBB\xBF"
                                                        "1.544\r\n\r\n  1.5455\t\n0\n65.535"),
                                     readings, error));
    EXPECT_THAT(readings, ElementsAre(1544, 1546, 0, 65535));

    const auto fails = [&](const std::filesystem::path& file) {
        return !sim::loadReadingFile(file, readings, error);
    };
    EXPECT_TRUE(fails(dir.path() / "missing.txt"));
    EXPECT_THAT(error, HasSubstr("missing.txt: cannot be read: No such file"));
    EXPECT_TRUE(fails(dir.path()));
    EXPECT_THAT(error, HasSubstr("cannot be read: it is a folder"));
    EXPECT_TRUE(fails(dir.write("empty.txt", "\n \n")));
    EXPECT_THAT(error, HasSubstr("empty.txt: holds no reading"));
    for (const char* bad : {"1,544", "abc", "1.5 x", "-0.1", "65.536", "1e0", "nan"}) {
        EXPECT_TRUE(fails(dir.write("bad.txt", std::string("1.544\n\n") + bad + "\n")));
        EXPECT_THAT(error, HasSubstr("bad.txt:3: \"" + std::string(bad) + "\" is not an R.I."));
    }
    // A failed load leaves the readings as they were.
    EXPECT_EQ(readings.size(), 4u);
}

TEST(SimulatedSession, StonesSettleWithAFewThousandthsOfNoiseThenHoldTheirRi) {
    sim::SimulatedSession session(7);
    // The stones are the runs between the lifted stretches (0.000).
    std::vector<std::vector<int>> stones(1);
    for (int i = 0; i < 1000; ++i) {
        const int reading = session.next();
        if (reading != 0) {
            stones.back().push_back(reading);
        } else if (!stones.back().empty()) {
            stones.emplace_back();
        }
    }
    ASSERT_GE(stones.size(), 10u);
    int previous = 0;
    for (std::size_t s = 0; s + 1 < stones.size(); ++s) {
        const auto& stone = stones[s];
        ASSERT_EQ(stone.size(), 60u);
        const int ri = stone.back();
        EXPECT_TRUE(ri >= 1500 && ri <= 1800 && ri != previous) << ri;
        previous = ri;
        // The edge comes up from below, never more than 3 thousandths over, then holds.
        EXPECT_LT(stone.front(), ri - 10);
        EXPECT_LE(*std::max_element(stone.begin(), stone.end()), ri + 3);
        EXPECT_EQ(std::count(stone.end() - 40, stone.end(), ri), 40);
    }

    const auto firstReadings = [](std::uint32_t seed) {
        sim::SimulatedSession s(seed);
        std::vector<int> readings(300);
        std::generate(readings.begin(), readings.end(), [&] { return s.next(); });
        return readings;
    };
    EXPECT_EQ(firstReadings(42), firstReadings(42));
    EXPECT_NE(firstReadings(42), firstReadings(43));
}

} // namespace
} // namespace velmora::test
