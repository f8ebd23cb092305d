#include "tests/cli/cli_runner.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <regex>

namespace velmora::test {
namespace {

using ::testing::HasSubstr;

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
    EXPECT_EQ(runCli({"read", "--simulate", "--count", "0"}).status, 2);
    EXPECT_EQ(runCli({"read", "--simulate", "--count", "many"}).status, 2);
}

} // namespace
} // namespace velmora::test
