#include "tests/cli/cli_runner.h"

#include <gtest/gtest.h>

namespace velmora::test {
namespace {

TEST(ShowCommand, PrintsTheDetailPanelOfTheFirstStoneOfThatName) {
    ReferenceFile file({row({{1, "Quartz"},
                             {6, "1.544 - 1.553"},
                             {5, "2.65"},
                             {9, "7"},
                             {14, "0.009"},
                             {15, ""},
                             {19, "Brazil^ Madagascar"},
                             {20, "Uniaxial"},
                             {21, "Glass"}}),
                        row({{1, "Quartz"}, {6, "second"}})});
    const auto r = runCli({"show", "Quartz", "--reference", file.path, "--decimal-separator", ","});
    EXPECT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(r.out, "txt_commonSource\tBrazil, Madagascar\n"
                     "txt_otherProduct\tGlass\n"
                     "txt_otherInformation\tUniaxial\n"
                     "txt_stroneFamily\t-\n"
                     "txt_bierfence\t0,009\n"
                     "txt_hardness\t7\n"
                     "txt_RI\t1,544 - 1,553\n"
                     "txt_sg\t2,65\n");
    const auto json = runCli({"show", "Quartz", "--json", "--reference", file.path});
    EXPECT_EQ(json.out.substr(0, json.out.find('\n')),
              "{\"element\":\"txt_commonSource\",\"text\":\"Brazil, Madagascar\"}");
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
