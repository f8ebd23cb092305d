#include "tests/cli/cli_runner.h"
#include "tests/support/fake_watch_platform.h"

#include <csignal>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <regex>
#include <sstream>

namespace velmora::test {
namespace {

using ::testing::HasSubstr;
using ::testing::StartsWith;

// These run the real event loop: a reading every 0.1 s, so a few readings each.

TEST(ReadCommand, PrintsTheSimulatedSessionsReadingsAsTheWindowShowsThem) {
    const auto r = runCli({"read", "--simulate", "--count", "3", "--decimal-separator", ","});
    EXPECT_EQ(r.status, 0) << r.err;
    EXPECT_TRUE(std::regex_match(r.out, std::regex("(1,[0-9]{3}\n){3}"))) << r.out;
    EXPECT_EQ(r.err, "");
}

TEST(ReadCommand, ReplaysAFileFromTheTopAgainAndRefusesOneItCannotReplay) {
    TempDir dir;
    const auto file = dir.write("r.txt", "1.544\n1.5455\n");
    const auto r = runCli({"read", "--simulate=" + file.string(), "--count", "3", "--json"});
    EXPECT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(r.out, "{\"reading\":\"1.544\"}\n{\"reading\":\"1.546\"}\n{\"reading\":\"1.544\"}\n");

    const auto bad = runCli({"read", "--simulate=" + dir.write("bad.txt", "1.5x\n").string()});
    EXPECT_EQ(bad.status, 1);
    EXPECT_THAT(bad.err, HasSubstr("bad.txt:1: \"1.5x\" is not an R.I."));
    EXPECT_EQ(bad.out, "");
    // A long bad line is quoted in short, its control characters written out.
    const auto crafted =
        runCli({"read", "--simulate=" + dir.write("crafted.txt", "1.544\n\x1B]0;owned\x07" +
                                                                     std::string(1000, 'x'))
                                            .string()});
    EXPECT_EQ(crafted.status, 1);
    EXPECT_THAT(crafted.err,
                HasSubstr("crafted.txt:2: \"\\x1B]0;owned\\x07" + std::string(30, 'x') + "...\""));
    EXPECT_LT(crafted.err.size(), 200u);
    EXPECT_EQ(runCli({"read", "--simulate", "--count", "0"}).status, 2);
    EXPECT_EQ(runCli({"read", "--simulate", "--count", "many"}).status, 2);
}

// A quartz measured twice: placed, settling near 1.544 with the last digit flickering, lifted
// (0.000), turned and placed again, settling near 1.553. Played from the top again after.
std::string quartzReplay() {
    std::string text = "1.501\n1.522\n1.536\n1.541\n1.543\n";
    for (int i = 0; i < 15; ++i) {
        text += i % 3 == 1 ? "1.545\n" : "1.544\n";
    }
    text += "0.000\n0.000\n0.000\n1.520\n1.547\n1.551\n";
    for (int i = 0; i < 15; ++i) {
        text += i % 4 == 2 ? "1.552\n" : "1.553\n";
    }
    return text + "0.000\n";
}

TEST(ReadCommand, SteadyPrintsOneLineEachTimeTheReadingSettles) {
    FakeWatchPlatform platform;
    platform.fastForward();
    TempDir dir;
    const std::string replay = "--simulate=" + dir.write("quartz.txt", quartzReplay()).string();

    const auto r = runCli({"read", "--steady", replay, "--count", "2", "--decimal-separator", ","});
    EXPECT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(r.out, "1,544\n1,553\n");
    EXPECT_EQ(r.err, "");

    const auto json = runCli({"read", "--steady", replay, "--count", "3", "--json"});
    EXPECT_EQ(json.status, 0) << json.err;
    std::istringstream lines(json.out);
    std::vector<nlohmann::json> steady;
    for (std::string line; std::getline(lines, line);) {
        steady.push_back(nlohmann::json::parse(line));
    }
    ASSERT_EQ(steady.size(), 3u) << json.out;
    // The third is the replay's first stone again, as a new stone: each line a new value or a
    // new stone, never the flicker.
    const char* readings[] = {"1.544", "1.553", "1.544"};
    const double spreads[] = {0.002, 0.001, 0.002};
    // A reading every 0.1 s from 0.1 s after Connect; steady a second after the edge came within
    // the band.
    const double times[] = {1.5, 3.7, 5.7};
    for (std::size_t i = 0; i < steady.size(); ++i) {
        EXPECT_EQ(steady[i]["reading"], readings[i]) << i;
        EXPECT_DOUBLE_EQ(steady[i]["spread"].get<double>(), spreads[i]) << i;
        EXPECT_NEAR(steady[i]["time"].get<double>(), times[i], 0.05) << i;
    }
}

// Every kind of refused file is the file reader's concern; these are the readings'.
TEST(ReadCommand, RefusesAReplayFileThatIsNoFileOrTooLargeAtOnce) {
    TempDir dir;
    const std::pair<std::string, std::string> files[] = {
        {"/dev/zero", "a device, a pipe or a socket"},
        {dir.write("over.txt", std::string((1 << 20) + 1, '\n')).string(),
         "larger than 1 MiB, the most a file of readings may hold"},
    };
    for (const auto& [path, reason] : files) {
        const auto r = runCli({"read", "--simulate=" + path, "--count", "1"});
        EXPECT_EQ(r.status, 1) << path;
        EXPECT_THAT(r.err, HasSubstr(reason));
        EXPECT_EQ(r.out, "");
    }
}

// The instrument on a fake bus answers each request with 1.540, and at the request numbered
// `lastRequest` does `then` instead.
struct Instrument {
    explicit Instrument(int lastRequest, std::function<void()> then) {
        platform.instrument(bus);
        bus.answer = [this, lastRequest, then = std::move(then)](const SentReport& sent) {
            if (sent.bytes[0] != 0x31) {
                return;
            }
            if (++requests < lastRequest) {
                bus.sendInputReport({0x04, 0x06});
            } else if (requests == lastRequest) {
                then();
            }
        };
    }

    FakeHidBus bus;
    FakeWatchPlatform platform;
    int requests = 0;
};

TEST(ReadCommand, EndsWithAMessageWhenTheInstrumentIsUnpluggedMidStream) {
    Instrument instrument(3, [&] { instrument.bus.unplug(); });
    const auto r = runCli({"read", "--decimal-separator", "."});
    EXPECT_EQ(r.status, 1);
    EXPECT_EQ(r.out, "1.540\n1.540\n");
    EXPECT_EQ(r.err, "velmora-cli: the instrument was unplugged\n");
    EXPECT_EQ(instrument.bus.countSent(0x31, 0x00), 3u);
}

TEST(ReadCommand, InterruptOrTerminateEndsItCleanlyAndASecondSignalWouldEndTheProcess) {
    for (const int signal : {SIGINT, SIGTERM}) {
        struct sigaction afterFirst {};
        Instrument instrument(3, [&] {
            std::raise(signal);
            sigaction(signal, nullptr, &afterFirst);
        });
        instrument.platform.keepRealInterrupts();
        const auto r = runCli({"read", "--decimal-separator", "."});
        EXPECT_EQ(r.status, 0) << signal;
        EXPECT_EQ(r.err, "") << signal;
        EXPECT_THAT(r.out, StartsWith("1.540\n1.540\n")) << signal;
        EXPECT_EQ(afterFirst.sa_handler, SIG_DFL) << signal;
        // Told Disconnect: the session's manager is gone.
        EXPECT_EQ(instrument.bus.liveManagers(), 0u) << signal;
    }
}

} // namespace
} // namespace velmora::test
