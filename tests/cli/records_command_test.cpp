#include "tests/cli/cli_runner.h"

#include <gmock/gmock.h>

namespace velmora::test {
namespace {

using ::testing::HasSubstr, ::testing::MatchesRegex;

struct Store {
    TempDir dir;
    std::string path = (dir.path() / "Velmora.sqlite").string();

    CliResult run(std::vector<std::string> args) const {
        args.insert(args.begin(), {"records", "--store", path});
        return runCli(args);
    }
};

TEST(RecordsCommand, AddPrintsTheNewIdAndListShowsTheRecordsNewestFirst) {
    const Store store;
    const auto first = store.run({"add", "--label", "lot 1", "--ri", "1.544", "--ri-high", "1.553",
                                  "--conclusion", "Quartz"});
    ASSERT_EQ(first.status, 0) << first.err;
    EXPECT_EQ(first.out, "1\n");
    EXPECT_EQ(store.run({"add", "--label", "lot 2", "--sg", "3.52", "--color", "YELLOW"}).out,
              "2\n");
    const auto listed = store.run({"list"});
    EXPECT_EQ(listed.status, 0);
    EXPECT_THAT(listed.out, MatchesRegex("2\tlot 2\t[-0-9]+T[:0-9]+Z\t\n"
                                         "1\tlot 1\t[-0-9]+T[:0-9]+Z\tQuartz\n"));
}

TEST(RecordsCommand, ShowPrintsTheReadingsAndTheCandidatesAsTheyStood) {
    const Store store;
    store.run({"--decimal-separator", ",", "add", "--label", "lot 7", "--ri", "1,544", "--ri-high",
               "1,553", "--hardness", "7", "--note", "turned twice"});
    const auto shown = store.run({"show", "1"});
    ASSERT_EQ(shown.status, 0) << shown.err;
    for (const char* line :
         {"label\tlot 7\n", "ri_readings\t1.544 1.553\n", "ri_low\t1.544\n",
          "birefringence\t0.009\n", "verdict\tdoubly refractive, birefringence 0.009\n",
          "hardness\t7\n", "candidate\t2\tQuartz", "notes\tturned twice\n"}) {
        EXPECT_THAT(shown.out, HasSubstr(line));
    }
}

TEST(RecordsCommand, RefusesWhatTheWindowWouldAndKeepsNothing) {
    const struct {
        std::vector<std::string> args;
        int status;
        const char* says;
    } cases[] = {
        {{"add", "--ri", "1.544"}, 2, "--label"},
        {{"add", "--label", "x", "--ri", ""}, 1, "Please enter R.I. value!"},
        {{"add", "--label", "x", "--color", "plaid"}, 2, "plaid"},
        {{"show", "7"}, 1, "no record 7"},
        {{"export"}, 2, "--csv"},
    };
    for (const auto& c : cases) {
        const Store store;
        const auto r = store.run(c.args);
        EXPECT_EQ(r.status, c.status) << testing::PrintToString(c.args);
        EXPECT_THAT(r.err, HasSubstr(c.says)) << testing::PrintToString(c.args);
        EXPECT_EQ(store.run({"list"}).out, "");
    }
}

} // namespace
} // namespace velmora::test
