#include "data/reference_loader.h"
#include "tests/support/reference_rows.h"
#include "tests/support/temp_dir.h"

#include <gtest/gtest.h>
#include <sstream>

namespace velmora {
namespace {

using test::referenceHeader;
using test::stoneRow;

struct Lists {
    StoneList arr_stones;
    StoneList arr_stonesGlobal;
    std::ostringstream out;

    bool load(const std::optional<std::filesystem::path>& path) {
        return loadReferenceSet(path, out, arr_stones, arr_stonesGlobal);
    }
};

TEST(LoadReferenceSet, PublishesTheSameSortedListTwice) {
    test::TempDir dir;
    const auto path =
        dir.write("AllStoneNew.csv", std::string(referenceHeader) + "\n" + stoneRow("2", "Ruby") +
                                         "\n" + stoneRow("1", "Amethyst") + "\n");
    Lists lists;
    ASSERT_TRUE(lists.load(path));
    ASSERT_EQ(lists.arr_stones.size(), 2u);
    EXPECT_EQ(lists.arr_stones[0].StoneName, "Amethyst");
    EXPECT_EQ(lists.arr_stones, lists.arr_stonesGlobal);
    EXPECT_EQ(lists.out.str(), "");

    // The lists are values: replacing one, as a search does, leaves the other whole.
    lists.arr_stones = StoneList({lists.arr_stones[0]});
    EXPECT_EQ(lists.arr_stonesGlobal.size(), 2u);
}

TEST(LoadReferenceSet, UnreadableFileWritesItsReasonAndLeavesTheListsAlone) {
    test::TempDir dir;
    Lists lists;
    EXPECT_FALSE(lists.load(dir.path() / "missing.csv"));
    EXPECT_TRUE(lists.arr_stones.empty());
    EXPECT_TRUE(lists.arr_stonesGlobal.empty());
    const std::string line = lists.out.str();
    EXPECT_NE(line.find("missing.csv"), std::string::npos);
    EXPECT_NE(line.find("No such file"), std::string::npos);
    EXPECT_EQ(line.back(), '\n');

    Lists folder;
    EXPECT_FALSE(folder.load(dir.path()));
    EXPECT_NE(folder.out.str().find("folder"), std::string::npos);

    Lists absent;
    EXPECT_FALSE(absent.load(std::nullopt));
    EXPECT_NE(absent.out.str().find("AllStoneNew.csv"), std::string::npos);
}

TEST(LoadReferenceSet, Windows1252FileFromASpreadsheetReadsItsAccents) {
    test::TempDir dir;
    const auto path = dir.write("legacy.csv", std::string(referenceHeader) + "\r\n" +
                                                  stoneRow("1", "\xC9meraude") + "\r\n");
    Lists lists;
    ASSERT_TRUE(lists.load(path));
    ASSERT_EQ(lists.arr_stones.size(), 1u);
    EXPECT_EQ(lists.arr_stones[0].StoneName, "\xC3\x89meraude");
}

TEST(LoadReferenceSet, HeaderOnlyFileLoadsTwoEmptyLists) {
    test::TempDir dir;
    Lists lists;
    ASSERT_TRUE(lists.load(dir.write("h.csv", referenceHeader)));
    EXPECT_TRUE(lists.arr_stones.empty());
    EXPECT_TRUE(lists.arr_stonesGlobal.empty());
}

} // namespace
} // namespace velmora
