#include "data/reference_file.h"
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

    ReferenceLoad load(const std::optional<std::filesystem::path>& path) {
        return loadReferenceSet(path, out, arr_stones, arr_stonesGlobal);
    }
};

TEST(LoadReferenceSet, PublishesTheSortedSetTwiceAsIndependentLists) {
    test::TempDir dir;
    // As a spreadsheet on Western Windows saves it: CR LF and Windows-1252 (0xC9 is É).
    Lists lists;
    ASSERT_TRUE(lists.load(dir.write("legacy.csv", std::string(referenceHeader) + "\r\n" +
                                                       stoneRow("2", "Ruby") + "\r\n" +
                                                       stoneRow("1", "\xC9meraude") + "\r\n" +
                                                       stoneRow("3", "Amethyst") + "\r\n")));
    ASSERT_EQ(lists.arr_stones.size(), 3u);
    EXPECT_EQ(lists.arr_stones[0].StoneName + lists.arr_stones[1].StoneName +
                  lists.arr_stones[2].StoneName,
              "AmethystRuby\xC3\x89meraude");
    EXPECT_EQ(lists.arr_stones, lists.arr_stonesGlobal);
    EXPECT_EQ(lists.out.str(), "");
    // Replacing one, as a search does, leaves the other whole.
    lists.arr_stones = StoneList({lists.arr_stones[0]});
    EXPECT_EQ(lists.arr_stonesGlobal.size(), 3u);

    Lists headerOnly;
    ASSERT_TRUE(headerOnly.load(dir.write("h.csv", referenceHeader)));
    EXPECT_TRUE(headerOnly.arr_stones.empty() && headerOnly.arr_stonesGlobal.empty());
}

// A path given on the command line may name anything; the answer comes at once, in one line that
// names the reason or the limit, and the lists stay as they were.
TEST(LoadReferenceSet, RefusesWhatItCannotReadOrIsNoTableOfAReasonableSize) {
    test::TempDir dir;
    const auto sparse = dir.write("sparse.csv", "");
    std::filesystem::resize_file(sparse, referenceFileLimit + 1);
    // Small rows in a small file would each still take a record of 28 texts.
    std::string manyStones = std::string(referenceHeader) + "\n";
    for (std::size_t i = 0; i <= referenceStoneLimit; ++i) {
        manyStones += ",,,,,,,,,,,,,,,,1,,,,,,,,,,,\n";
    }
    const std::pair<std::optional<std::filesystem::path>, std::string> refused[] = {
        {dir.path() / "missing.csv", "No such file"},
        {dir.path(), "folder"},
        {std::nullopt, "AllStoneNew.csv"},
        {sparse, "larger than 64 MiB, the most a reference table may hold"},
        {dir.write("many.csv", manyStones), "more than 200000 stones"},
    };
    for (const auto& [path, reason] : refused) {
        Lists lists;
        EXPECT_FALSE(lists.load(path));
        EXPECT_TRUE(lists.arr_stones.empty() && lists.arr_stonesGlobal.empty());
        EXPECT_NE(lists.out.str().find(reason), std::string::npos) << lists.out.str();
        EXPECT_EQ(lists.out.str().find('\n'), lists.out.str().size() - 1);
    }
}

TEST(LoadReferenceSet, SaysWhenAFileThatIsNoTableHoldsNoStone) {
    test::TempDir dir;
    const std::pair<std::string, bool> files[] = {
        {std::string(1 << 20, '\0'), true},
        {std::string(referenceHeader) + "\nRuby;1.76;4.00\n", true}, // cut at semicolons
        // A table with nothing in it, or nothing marked for inclusion, is still a table.
        {std::string(referenceHeader) + "\r\n", false},
        {std::string(referenceHeader) + "\n" + test::row({{1, "Ruby"}, {16, "0"}}) + "\n", false},
    };
    for (const auto& [bytes, noStone] : files) {
        Lists lists;
        const auto load = lists.load(dir.write("t.csv", bytes));
        EXPECT_TRUE(load.read);
        EXPECT_TRUE(lists.arr_stonesGlobal.empty());
        EXPECT_EQ(load.holdsNoStone.empty(), !noStone) << bytes.substr(0, 40);
        EXPECT_EQ(lists.out.str(), "");
    }
}

} // namespace
} // namespace velmora
