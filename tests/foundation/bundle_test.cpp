#include "foundation/bundle.h"
#include "tests/support/temp_dir.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

TEST(Bundle, FindsTheFirstFolderThatHoldsTheResource) {
    test::TempDir first;
    test::TempDir second;
    second.write("AllStoneNew.csv", "header\n");
    first.write("Tutorial.pdf", "%PDF");
    const Bundle bundle({first.path(), second.path()});

    EXPECT_EQ(bundle.pathForResource("AllStoneNew", "csv"), second.path() / "AllStoneNew.csv");
    first.write("AllStoneNew.csv", "header\n");
    EXPECT_EQ(bundle.pathForResource("AllStoneNew", "csv"), first.path() / "AllStoneNew.csv");
    EXPECT_EQ(bundle.pathForResource("Missing", "csv"), std::nullopt);
}

TEST(Bundle, AFolderOfTheResourceNameIsNotTheResource) {
    test::TempDir dir;
    std::filesystem::create_directory(dir.path() / "AllStoneNew.csv");
    EXPECT_EQ(Bundle({dir.path()}).pathForResource("AllStoneNew", "csv"), std::nullopt);
}

TEST(Bundle, MainLooksBesideTheExecutable) {
    const auto& path = Bundle::main().searchPath();
    ASSERT_GE(path.size(), 2u);
    EXPECT_EQ(path[path.size() - 1].filename(), "resources");
    EXPECT_EQ(path[path.size() - 2].filename(), "velmora");
}

} // namespace
} // namespace velmora
