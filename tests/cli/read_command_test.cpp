#include "app/cli/live_readings.h"
#include "tests/cli/cli_runner.h"
#include "tests/support/fake_hid.h"
#include "tests/support/recording_log.h"
#include "tests/support/temp_dir.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <regex>
#include <sstream>

namespace velmora::test {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;

// These run the real event loop: a reading every 0.1 s, so a few readings each.

TEST(ReadCommand, PrintsTheSimulatedSessionsReadingsAsTheWindowShowsThem) {
    const auto r = runCli({"read", "--simulate", "--count", "3", "--decimal-separator", ","});
    EXPECT_EQ(r.status, 0) << r.err;
    EXPECT_TRUE(std::regex_match(r.out, std::regex("(1,[0-9]{3}\n){3}"))) << r.out;
    EXPECT_EQ(r.err, "");
}

TEST(ReadCommand, ReplaysAFileFromTheTopAgainAfterItsLastReading) {
    TempDir dir;
    const auto file = dir.write("r.txt", "1.544\n1.5455\n");
    const auto r = runCli({"read", "--simulate=" + file.string(), "--count", "3", "--json"});
    EXPECT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(r.out, "{\"reading\":\"1.544\"}\n{\"reading\":\"1.546\"}\n{\"reading\":\"1.544\"}\n");
}

TEST(ReadCommand, AFileItCannotReplayIsToldWithoutConnecting) {
    TempDir dir;
    const auto bad = runCli({"read", "--simulate=" + dir.write("r.txt", "1.544\n1.5x\n").string()});
    EXPECT_EQ(bad.status, 1);
    EXPECT_THAT(bad.err, HasSubstr("r.txt:2: \"1.5x\" is not an R.I."));
    EXPECT_EQ(bad.out, "");

    const auto missing = runCli({"read", "--simulate=" + (dir.path() / "none.txt").string()});
    EXPECT_EQ(missing.status, 1);
    EXPECT_THAT(missing.err, HasSubstr("none.txt: cannot be read"));
}

TEST(ReadCommand, ACountMustBeAPositiveNumber) {
    EXPECT_EQ(runCli({"read", "--simulate", "--count", "0"}).status, 2);
    EXPECT_EQ(runCli({"read", "--simulate", "--count", "many"}).status, 2);
}

TEST(LiveReadings, WithoutAnInstrumentNothingIsPrintedAndTheSessionIsClosed) {
    FakeHidBus bus;
    bus.instrumentAttached = false;
    RecordingLog log;
    std::ostringstream out;
    EXPECT_FALSE(cli::printLiveReadings(bus.managerFactory(), log, FixedLocale(), 5, false, out));
    EXPECT_THAT(out.str(), IsEmpty());
    EXPECT_EQ(bus.liveManagers(), 0u);
    EXPECT_THAT(bus.sentReports(), IsEmpty());
    EXPECT_THAT(log.infoLines,
                ::testing::ElementsAre("[INFO] Connect >> ", "[INFO] terminated >> "));
}

} // namespace
} // namespace velmora::test
