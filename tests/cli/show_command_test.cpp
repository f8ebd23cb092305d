#include "tests/cli/cli_runner.h"

#include <gtest/gtest.h>

namespace velmora::test {
namespace {

TEST(ShowCommand, PrintsTheDetailPanelOfTheFirstStoneOfThatName) {
    ReferenceFile file({row({{1, "Quartz"}, {6, "1.544 - 1.553"}, {19, "Brazil^ Madagascar"}}),
                        row({{1, "Quartz"}, {6, "second"}})});
    const auto r = runCli({"show", "Quartz", "--reference", file.path, "--decimal-separator", ","});
    EXPECT_EQ(r.status, 0) << r.err;
    // The first Quartz, its commas restored and its numbers in the user's notation.
    EXPECT_NE(r.out.find("txt_commonSource\tBrazil, Madagascar\n"), std::string::npos) << r.out;
    EXPECT_NE(r.out.find("txt_RI\t1,544 - 1,553\n"), std::string::npos) << r.out;
}

TEST(ShowCommand, ANameNotInTheReferenceSetIsAUsageError) {
    ReferenceFile file({stoneRow("1", "Quartz")});
    auto r = runCli({"show", "Topaz", "--reference", file.path});
    EXPECT_EQ(r.status, 2);
    EXPECT_EQ(r.err, "show: no stone named \"Topaz\" in the reference set\n");
    EXPECT_EQ(runCli({"show", "--reference", file.path}).status, 2);
}

} // namespace
} // namespace velmora::test
