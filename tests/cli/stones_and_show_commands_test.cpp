// The reference set as velmora-cli lists it (stones) and shows one stone of it (show).

#include "tests/cli/cli_runner.h"

#include <gtest/gtest.h>

namespace velmora::test {
namespace {

TEST(StonesCommand, PrintsTheLoadOrderIdTabNameOrAsJsonLines) {
    ReferenceFile file({stoneRow("12", "ruby"), stoneRow("3", "Zircon"),
                        row({{0, "4"}, {1, "Dropped"}, {16, "0"}}), stoneRow("7", "Amethyst"),
                        stoneRow("1", "Sph\xC3\xA8ne \"titanite\"")});
    const auto r = file.run("stones", {});
    EXPECT_EQ(r,
              (CliResult{0, "7\tAmethyst\n1\tSph\xC3\xA8ne titanite\n3\tZircon\n12\truby\n", ""}));
    // The common options may also stand before the command.
    const auto json = runCli({"--json", "--reference", file.path, "stones"});
    EXPECT_EQ(json.out.substr(0, json.out.find('\n', json.out.find('\n') + 1) + 1),
              "{\"StoneID\":\"7\",\"StoneName\":\"Amethyst\"}\n"
              "{\"StoneID\":\"1\",\"StoneName\":\"Sph\xC3\xA8ne titanite\"}\n");
}

// A crafted table must not reach the terminal as control sequences: a title set, a screen cleared.
TEST(StonesCommand, WritesOutTheControlCharactersOfNames) {
    ReferenceFile file({stoneRow("1\x1B[2J", "Ruby\x1B]0;owned\x07\t\xC2\x9B")});
    const auto r = file.run("stones", {});
    EXPECT_EQ(r.out, "1\\x1B[2J\tRuby\\x1B]0;owned\\x07\\x09U+009B\n");
    const auto json = file.run("stones", {"--json"});
    EXPECT_EQ(json.out.find('\x1B'), std::string::npos) << json.out;
}

// Each of these is answered at once, with the reason on standard error and nothing listed.
TEST(StonesCommand, AFileThatIsNoTableIsToldAndFails) {
    TempDir dir;
    // Every kind of refused file is the file reader's concern; these are the table's.
    const std::pair<std::string, std::string> files[] = {
        {dir.write("nul.csv", std::string(1 << 20, '\0')).string(), "holds no stone"},
        {(dir.path() / "nope.csv").string(), "nope.csv"},
    };
    for (const auto& [path, reason] : files) {
        const auto r = runCli({"stones", "--reference", path});
        EXPECT_EQ(r.status, 1) << path;
        EXPECT_EQ(r.out, ""); // the reason goes with the errors, out of the listing's way
        EXPECT_NE(r.err.find(reason), std::string::npos) << r.err;
        EXPECT_EQ(r.err.find('\n'), r.err.size() - 1) << r.err; // one line
    }
}

TEST(StonesCommand, UsageErrorsExitTwo) {
    EXPECT_EQ(runCli({}).status, 2);
    EXPECT_EQ(runCli({"polish"}).status, 2);
    EXPECT_EQ(runCli({"stones", "--reference"}).status, 2);
    EXPECT_EQ(runCli({"--help"}).status, 0);
}

TEST(ShowCommand, PrintsTheDetailPanelOfTheFirstStoneOfThatName) {
    ReferenceFile file({row({{1, "Quartz"}, {6, "1.544 - 1.553"}, {19, "Brazil^ Madagascar"}}),
                        row({{1, "Quartz"}, {6, "second"}})});
    const auto r = file.run("show", {"Quartz", "--decimal-separator", ","});
    EXPECT_EQ(r.status, 0) << r.err;
    // The first Quartz, its commas restored and its numbers in the user's notation.
    EXPECT_NE(r.out.find("txt_commonSource\tBrazil, Madagascar\n"), std::string::npos) << r.out;
    EXPECT_NE(r.out.find("txt_RI\t1,544 - 1,553\n"), std::string::npos) << r.out;
}

TEST(ShowCommand, ANameNotInTheReferenceSetIsAUsageError) {
    ReferenceFile file({stoneRow("1", "Quartz")});
    const auto r = file.run("show", {"Topaz"});
    EXPECT_EQ(r, (CliResult{2, "", "show: no stone named \"Topaz\" in the reference set\n"}));
    EXPECT_EQ(file.run("show", {}).status, 2);
}

} // namespace
} // namespace velmora::test
