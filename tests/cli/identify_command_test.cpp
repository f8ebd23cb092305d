#include "tests/cli/cli_runner.h"
#include "tests/support/window_harness.h"

#include <gtest/gtest.h>

namespace velmora::test {
namespace {

const std::vector<std::string> reference = {
    stoneRow("12", "Quartz", "1.544 - 1.553", "2.65-2.66", "7-7.5", "Pink"),
    stoneRow("x", "Amethyst", "1.544-1.553", "2.6-2.7", "7", "Purple"),
    stoneRow("3", "Beryl", "1.57-1.60", "2.6-2.9", "7.5-8", "Green"),
};

TEST(IdentifyCommand, UnderACommaSeparatorListsWhatTheWindowsTableLists) {
    ReferenceFile file(reference);
    const auto r = file.run("identify", {"--ri", "1,544", "--decimal-separator", ","});
    EXPECT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(r.err, "");

    WindowHarness h({.rows = reference, .decimalSeparator = ","});
    h.click(h.window.bvtn_dictionary);
    h.click(h.window.check_RI);
    h.type(h.window.txt_leftRIReading, "1,544");
    h.leave();
    h.click(h.window.btn_search);
    std::string listed;
    for (const auto& [number, name] : h.tableRows()) {
        listed.append(number).append("\t").append(name).append("\n");
    }
    EXPECT_EQ(r.out, listed);
    EXPECT_EQ(r.out, "1\tAmethyst\n12\tQuartz\n");
}

TEST(IdentifyCommand, SwitchesOnTheCriteriaGivenAndPrintsTheListOrTheAlert) {
    ReferenceFile file(reference);
    const std::tuple<std::vector<std::string>, std::string, std::string> cases[] = {
        {{}, "1\tAmethyst\n3\tBeryl\n12\tQuartz\n", ""},
        {{"--sg", "2.65", "--hardness", "7", "--color", "Pink", "--name", "QUA", "--ri", "1.55",
          "--decimal-separator", "."},
         "12\tQuartz\n",
         ""},
        {{"--json", "--color", "Green"}, "{\"number\":\"3\",\"name\":\"Beryl\"}\n", ""},
        {{"--ri", "1,544", "--decimal-separator", "."}, "", "Please use '.' as decimals!\n"},
        {{"--hardness", "10"}, "", "Result: Not Found in Record\n"},
        // An empty value ticks the box and types nothing: the search's own check speaks.
        {{"--sg", ""}, "", "Please enter S.G. value!\n"},
        {{"--ri", ""}, "", "Please enter R.I. value!\n"},
    };
    for (const auto& [args, out, err] : cases) {
        const auto r = file.run("identify", args);
        EXPECT_EQ(r, (CliResult{err.empty() ? 0 : 1, out, err}));
    }
}

} // namespace
} // namespace velmora::test
