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

const std::uint8_t connectReport[] = {0x80, 0x80, 0, 0, 0, 0, 0, 0};
const std::uint8_t updateReport[] = {0x31, 0x00, 0, 0, 0, 0, 0, 0};

std::shared_ptr<sim::ReadingSource> replay(std::vector<std::uint16_t> readings) {
    return std::make_shared<sim::ReplayedReadings>(std::move(readings));
}

struct OpenInstrument {
    explicit OpenInstrument(std::shared_ptr<sim::ReadingSource> readings) : manager(readings) {
        manager.scheduleWithRunLoop(loop);
        manager.open();
        manager.setDeviceMatching({0x04D8, 0xF9FF});
        device = manager.copyDevices().at(0);
        device->registerInputReportCallback([this](std::span<const std::uint8_t> report) {
            received.emplace_back(report.begin(), report.end());
        });
    }

    ManualRunLoop loop;
    sim::SimulatedInstrument manager;
    std::shared_ptr<HidDevice> device;
    std::vector<Bytes> received;
};

TEST(SimulatedInstrument, AnswersEachRequestOnlyAfterAStartReport) {
    OpenInstrument instrument(replay({1544, 65535}));
    EXPECT_EQ(instrument.device->productProperty(), "Velmora Refractometer (simulated)");

    instrument.device->setOutputReport(0, updateReport);
    instrument.loop.runPending();
    EXPECT_THAT(instrument.received, IsEmpty());

    instrument.device->setOutputReport(0, connectReport);
    instrument.device->setOutputReport(0, std::vector<std::uint8_t>{0x32, 0x00, 0, 0, 0, 0, 0, 0});
    instrument.loop.runPending();
    EXPECT_THAT(instrument.received, IsEmpty());

    instrument.device->setOutputReport(0, updateReport);
    instrument.device->setOutputReport(0, updateReport);
    // The answers travel through the run loop, as a real device's do.
    EXPECT_THAT(instrument.received, IsEmpty());
    instrument.loop.runPending();
    EXPECT_THAT(instrument.received, ElementsAre(Bytes{0x08, 0x06, 0, 0, 0, 0, 0, 0},
                                                 Bytes{0xFF, 0xFF, 0, 0, 0, 0, 0, 0}));
}

TEST(SimulatedInstrument, FindsNothingForAnotherDeviceAndLosesAnswersOfADroppedDevice) {
    ManualRunLoop loop;
    {
        sim::SimulatedInstrument other(replay({1544}));
        other.setDeviceMatching({0x04D8, 0x0001});
        EXPECT_THAT(other.copyDevices(), IsEmpty());
    }
    int answers = 0;
    {
        sim::SimulatedInstrument manager(replay({1544}));
        manager.scheduleWithRunLoop(loop);
        manager.setDeviceMatching({0x04D8, 0xF9FF});
        auto device = manager.copyDevices().at(0);
        device->registerInputReportCallback([&](auto) { ++answers; });
        device->setOutputReport(0, connectReport);
        device->setOutputReport(0, updateReport);
    }
    loop.runPending();
    EXPECT_EQ(answers, 0);
}

TEST(SimulatedInstrument, DrivesTheConnectorReadingByReadingFromAReplayedFile) {
    TempDir dir;
    std::vector<std::uint16_t> readings;
    std::string error;
    ASSERT_TRUE(sim::loadReadingFile(dir.write("r.txt", "1.544\n1.545\n1.6\n"), readings, error))
        << error;

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

TEST(ReadingFile, ReadsOneRiALineSkippingBlankLines) {
    TempDir dir;
    std::vector<std::uint16_t> readings;
    std::string error;
    ASSERT_TRUE(sim::loadReadingFile(dir.write("r.txt", "\xEF\xBB\xBF"
                                                        "1.544\r\n\r\n  1.5455\t\n0\n65.535"),
                                     readings, error))
        << error;
    EXPECT_THAT(readings, ElementsAre(1544, 1546, 0, 65535));
}

TEST(ReadingFile, RefusesWhatItCannotReplayNamingTheFileAndLine) {
    TempDir dir;
    std::vector<std::uint16_t> readings{7};
    std::string error;
    const auto fails = [&](const std::filesystem::path& file) {
        error.clear();
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
    EXPECT_THAT(readings, ElementsAre(7));
}

// Cuts a session into stones: the runs of readings between the lifted (0.000) stretches.
std::vector<std::vector<int>> stonesOf(sim::SimulatedSession& session, int readings) {
    std::vector<std::vector<int>> stones(1);
    for (int i = 0; i < readings; ++i) {
        const int reading = session.next();
        if (reading != 0) {
            stones.back().push_back(reading);
        } else if (!stones.back().empty()) {
            stones.emplace_back();
        }
    }
    return stones;
}

TEST(SimulatedSession, StonesSettleWithAFewThousandthsOfNoiseThenHoldTheirRi) {
    sim::SimulatedSession session(7);
    const auto stones = stonesOf(session, 1000);
    ASSERT_GE(stones.size(), 10u);
    int previous = 0;
    for (std::size_t s = 0; s + 1 < stones.size(); ++s) {
        const auto& stone = stones[s];
        ASSERT_EQ(stone.size(), 60u);
        const int ri = stone.back();
        EXPECT_GE(ri, 1500);
        EXPECT_LE(ri, 1800);
        EXPECT_NE(ri, previous);
        previous = ri;
        // The edge comes up from below and jitters by no more than 3 thousandths ...
        EXPECT_LT(stone.front(), ri - 10);
        for (const int reading : stone) {
            EXPECT_LE(reading, ri + 3);
        }
        // ... then stays put for four seconds.
        EXPECT_EQ(std::count(stone.end() - 40, stone.end(), ri), 40);
    }
}

TEST(SimulatedSession, TheSameSeedGivesTheSameSession) {
    sim::SimulatedSession a(42);
    sim::SimulatedSession b(42);
    sim::SimulatedSession c(43);
    std::vector<int> ra, rb, rc;
    for (int i = 0; i < 500; ++i) {
        ra.push_back(a.next());
        rb.push_back(b.next());
        rc.push_back(c.next());
    }
    EXPECT_EQ(ra, rb);
    EXPECT_NE(ra, rc);
}

} // namespace
} // namespace velmora::test
