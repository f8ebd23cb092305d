#include "tests/cli/cli_runner.h"
#include "tests/support/reference_rows.h"
#include "tests/support/temp_dir.h"

#include <gtest/gtest.h>

namespace velmora::test {
namespace {

TEST(StonesCommand, PrintsTheLoadOrderIdTabName) {
    TempDir dir;
    const auto file =
        dir.write("ref.csv", std::string(referenceHeader) + "\r\n" + stoneRow("12", "ruby") +
                                 "\r\n" + stoneRow("3", "Zircon") + "\r\n" +
                                 row({{0, "4"}, {1, "Dropped"}, {16, "0"}}) + "\r\n" +
                                 stoneRow("7", "Amethyst") + "\r\n");
    const auto r = runCli({"stones", "--reference", file.string()});
    EXPECT_EQ(r.status, 0);
    EXPECT_EQ(r.out, "7\tAmethyst\n3\tZircon\n12\truby\n");
    EXPECT_EQ(r.err, "");
    // The common options may also stand before the command.
    EXPECT_EQ(runCli({"--reference", file.string(), "stones"}).out, r.out);
}

TEST(StonesCommand, JsonLinesCarryTheSameRecords) {
    TempDir dir;
    const auto file = dir.write("ref.csv", std::string(referenceHeader) + "\n" +
                                               stoneRow("1", "Sph\xC3\xA8ne \"titanite\"") + "\n");
    const auto r = runCli({"stones", "--json", "--reference", file.string()});
    EXPECT_EQ(r.status, 0);
    EXPECT_EQ(r.out, "{\"StoneID\":\"1\",\"StoneName\":\"Sph\xC3\xA8ne titanite\"}\n");
}

TEST(StonesCommand, UnreadableReferencePrintsTheLoadersLineAndFails) {
    TempDir dir;
    const auto r = runCli({"stones", "--reference", (dir.path() / "nope.csv").string()});
    EXPECT_EQ(r.status, 1);
    EXPECT_NE(r.out.find("nope.csv"), std::string::npos);
    EXPECT_EQ(r.out.find('\n'), r.out.size() - 1);
}

TEST(StonesCommand, UsageErrorsExitTwo) {
    EXPECT_EQ(runCli({}).status, 2);
    EXPECT_EQ(runCli({"polish"}).status, 2);
    EXPECT_EQ(runCli({"stones", "--reference"}).status, 2);
    EXPECT_EQ(runCli({"--help"}).status, 0);
}

TEST(StonesCommand, TheBundledReferenceSetLoads) {
    const auto r = runCli({"stones"});
    EXPECT_EQ(r.status, 0) << r.out;
    EXPECT_GE(std::count(r.out.begin(), r.out.end(), '\n'), 30);
}

} // namespace
} // namespace velmora::test
