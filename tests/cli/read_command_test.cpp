#include "tests/cli/cli_runner.h"
#include "tests/support/fake_watch_platform.h"

#include <csignal>
#include <gmock/gmock.h>

namespace velmora::test {
namespace {

using ::testing::HasSubstr, ::testing::StartsWith;

// These run the real event loop: a reading every 0.1 s, so a few readings each.

TEST(ReadCommand, ReplaysAFileFromTheTopAgainAndRefusesOneItCannotReplay) {
    TempDir dir;
    const auto file = dir.write("r.txt", "1.544\n1.5455\n");
    const auto r = runCli({"read", "--simulate=" + file.string(), "--count", "3", "--json"});
    const std::string json =
        "{\"reading\":\"1.544\"}\n{\"reading\":\"1.546\"}\n{\"reading\":\"1.544\"}\n";
    EXPECT_EQ(r, (CliResult{0, json, ""}));

    const auto bad = runCli({"read", "--simulate=" + dir.write("bad.txt", "1.5x\n").string()});
    EXPECT_EQ(bad.status, 1);
    EXPECT_THAT(bad.err, HasSubstr("bad.txt:1: \"1.5x\" is not an R.I."));
    EXPECT_EQ(bad.out, "");
    for (const char* count : {"0", "many"}) {
        EXPECT_EQ(runCli({"read", "--simulate", "--count", count}).status, 2) << count;
    }
}

// A quartz measured twice: placed, settling near 1.544 with the last digit flickering, lifted
// (0.000), turned and placed again, settling near 1.553. Played from the top again after.
std::string quartzReplay() {
    std::string first = "1.501\n1.522\n1.536\n1.541\n1.543\n";
    std::string second = "0.000\n0.000\n0.000\n1.520\n1.547\n1.551\n";
    for (int i = 0; i < 15; ++i) {
        first += i % 3 == 1 ? "1.545\n" : "1.544\n";
        second += i % 4 == 2 ? "1.552\n" : "1.553\n";
    }
    return first + second + "0.000\n";
}

TEST(ReadCommand, SteadyPrintsOneLineEachTimeTheReadingSettles) {
    FakeWatchPlatform platform;
    platform.fastForward();
    TempDir dir;
    const std::string replay = "--simulate=" + dir.write("quartz.txt", quartzReplay()).string();
    const auto r = runCli({"read", "--steady", replay, "--count", "2", "--decimal-separator", ","});
    EXPECT_EQ(r, (CliResult{0, "1,544\n1,553\n", ""}));
}

// The instrument on a fake bus answers each request with 1.540, and at the request numbered
// `lastRequest` does `then` instead.
struct Instrument {
    explicit Instrument(int lastRequest, std::function<void()> then) {
        platform.instrument(bus);
        bus.answer = [this, lastRequest, then = std::move(then)](const SentReport& sent) {
            if (sent.bytes[0] == 0x31 && ++requests < lastRequest) {
                bus.sendInputReport({0x04, 0x06});
            } else if (sent.bytes[0] == 0x31 && requests == lastRequest) {
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
    EXPECT_EQ(r, (CliResult{1, "1.540\n1.540\n", "velmora-cli: the instrument was unplugged\n"}));
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
