#include "tests/cli/cli_runner.h"

#include <gtest/gtest.h>

namespace velmora::test {
namespace {

const std::vector<std::string> reference = {
    gemRow("2", "Amethyst", "1.544-1.553", "2.64-2.66", "7", "0.009", "Quartz", "Purple"),
    gemRow("1", "Rock crystal", "1.544-1.553", "2.64-2.66", "7", "0.009", "Quartz", "Colorless"),
    gemRow("3", "Paraíba tourmaline", "1.614-1.650", "3.00-3.12", "7-7.5", "0.014-0.024",
           "Tourmaline", "Blue"),
};

TEST(RankCommand, PrintsNumberNameFitAndDeviationsBestFirst) {
    ReferenceFile file(reference);
    const std::tuple<std::vector<std::string>, std::string> cases[] = {
        {{"--ri", "1.543"},
         "2\tQuartz: Amethyst, Rock crystal\t100%\tR.I. 0.001 below\n"
         "3\tParaíba tourmaline\t0%\tR.I. 0.071 below\n"},
        {{"--ri", "1,557", "--sg", "2,65", "--decimal-separator", ",", "--limit", "1"},
         "2\tQuartz: Amethyst, Rock crystal\t61%\tR.I. 0,004 above; S.G. fits\n"},
        {{"--weights", "3,06;2,06", "--decimal-separator", ",", "--name", "PARAIBA"},
         "3\tParaíba tourmaline\t100%\t\n"},
        {{"--color", "purple", "--hardness", "7", "--limit", "1"}, "2\tAmethyst\t100%\t\n"},
        {{"--json", "--ri", "1.616", "--ri-high", "1.620", "--limit", "1"},
         "{\"number\":\"3\",\"name\":\"Paraíba tourmaline\",\"fit\":80,\"deviations\":\"R.I. fits; "
         "Biref. 0.010 "
         "below\",\"off\":{\"ri\":0.0,\"birefringence\":-0.01},\"withinTolerance\":false,"
         "\"stones\":[{\"number\":\"3\",\"name\":\"Paraíba tourmaline\"}]}\n"},
    };
    for (const auto& [args, out] : cases) {
        const auto r = file.run("rank", args);
        EXPECT_EQ(r, (CliResult{0, out, ""})) << testing::PrintToString(args);
    }
}

TEST(RankCommand, EmptyEntriesRaiseTheWindowsAlertsAndBadValuesAreUsageErrors) {
    ReferenceFile file(reference);
    const std::tuple<std::vector<std::string>, int, std::string> cases[] = {
        {{"--ri", ""}, 1, "Please enter R.I. value!\n"},
        {{"--weights", "", "--ri", "1.5"}, 1, "Please enter S.G. value!\n"},
        {{"--hardness", ""}, 1, "Please enter Hardness value!\n"},
        {{"--name", ""}, 1, "Please enter name of stone!\n"},
        {{"--ri", "1,544"},
         2,
         "rank: --ri: \"1,544\" is not a number written with \".\" as "
         "decimal separator\n"},
        {{"--ri", "0.9"}, 2, "rank: --ri: a refractive index is 1 or more\n"},
        {{"--ri", "1.6", "--ri-high", "1.5"},
         2,
         "rank: --ri-high: the high reading must not "
         "lie below the --ri reading\n"},
        {{"--weights", "1.0"},
         2,
         "rank: --weights: give the weight in air and the weight in "
         "water, parted by \",\"\n"},
    };
    for (const auto& [args, status, err] : cases) {
        const auto r = file.run("rank", args);
        EXPECT_EQ(r, (CliResult{status, "", err})) << testing::PrintToString(args);
    }
    for (const std::vector<std::string>& args : {std::vector<std::string>{"--otl", "--ri", "1.5"},
                                                 {"--ri-high", "1.6"},
                                                 {"--sg", "2", "--weights", "1,0.5"},
                                                 {"--limit", "0"},
                                                 {"--color", "Gray"}}) {
        EXPECT_EQ(file.run("rank", args).status, 2) << testing::PrintToString(args);
    }
}

} // namespace
} // namespace velmora::test
