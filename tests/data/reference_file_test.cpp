#include "data/reference_file.h"
#include "tests/support/reference_rows.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

using test::referenceHeader;
using test::row;
using test::stoneRow;

std::vector<std::string> names(const std::vector<Stones>& stones) {
    std::vector<std::string> out;
    for (const auto& s : stones) {
        out.push_back(s.StoneName);
    }
    return out;
}

std::string file(const std::vector<std::string>& rows, const std::string& eol = "\n") {
    std::string text = referenceHeader + eol;
    for (const auto& r : rows) {
        text += r + eol;
    }
    return text;
}

TEST(RowToRecord, TwentyEightCellsFillTheFieldsInColumnOrderUntrimmed) {
    std::string line;
    for (int i = 0; i < 28; ++i) {
        line += (i ? "," : "") + std::string(" c") + std::to_string(i);
    }
    const auto stone = rowToRecord(line);
    ASSERT_TRUE(stone);
    EXPECT_EQ(stone->StoneID, " c0");
    EXPECT_EQ(stone->StoneName, " c1");
    EXPECT_EQ(stone->Ri, " c6");
    EXPECT_EQ(stone->NEW, " c16");
    EXPECT_EQ(stone->Color6, " c27");
}

TEST(RowToRecord, QuotesAreRemovedButNeverProtectAComma) {
    const auto quoted = rowToRecord(R"("7","Ruby")" + std::string(26, ','));
    ASSERT_TRUE(quoted);
    EXPECT_EQ(quoted->StoneID, "7");
    EXPECT_EQ(quoted->StoneName, "Ruby");
    // A quoted cell holding a comma still splits: 29 cells, no record.
    EXPECT_FALSE(rowToRecord(R"(1,"Quartz, rose")" + std::string(26, ',')));
}

TEST(RowToRecord, AnyOtherCellCountIsNoRecord) {
    EXPECT_FALSE(rowToRecord(std::string(26, ','))); // 27 cells
    EXPECT_FALSE(rowToRecord(std::string(28, ','))); // 29 cells
    EXPECT_FALSE(rowToRecord(""));
    const auto empty = rowToRecord(std::string(27, ','));
    ASSERT_TRUE(empty);
    EXPECT_EQ(empty->NEW, "");
}

TEST(ParseReference, HeaderIsAlwaysPassedOverEvenWhenItIsARow) {
    EXPECT_TRUE(parseReferenceText(referenceHeader).empty());
    EXPECT_TRUE(parseReferenceText(std::string(referenceHeader) + "\n").empty());
    EXPECT_EQ(names(parseReferenceText(stoneRow("1", "Spinel") + "\n" + stoneRow("2", "Ruby"))),
              std::vector<std::string>{"Ruby"});
}

TEST(ParseReference, CrLfAndLfGiveTheSameRecords) {
    const std::vector<std::string> rows = {stoneRow("1", "Ruby", "1.762-1.770"),
                                           stoneRow("2", "Amethyst", "1.544-1.553")};
    const auto lf = parseReferenceText(file(rows));
    EXPECT_EQ(lf.size(), 2u);
    EXPECT_EQ(parseReferenceText(file(rows, "\r\n")), lf);
    EXPECT_EQ(parseReferenceText(file(rows, "\xE2\x80\xA9")), lf); // paragraph separator
}

TEST(ParseReference, MalformedRowsArePassedOverAndLaterRowsStillRead) {
    const auto stones = parseReferenceText(file({
        stoneRow("1", "Agate"),
        "1,Short" + std::string(25, ','), // 27 cells
        "2,Long" + std::string(27, ','),  // 29 cells
        R"(3,"Quartz, rose")" + std::string(26, ','),
        "",
        stoneRow("4", "Beryl"),
    }));
    EXPECT_EQ(names(stones), (std::vector<std::string>{"Agate", "Beryl"}));
}

TEST(ParseReference, OnlyTheExactFlagOneIncludesARow) {
    const auto stones = parseReferenceText(file({
        row({{1, "Kept"}, {16, "1"}}),
        row({{1, "Space"}, {16, " 1"}}),
        row({{1, "Decimal"}, {16, "1.0"}}),
        row({{1, "Padded"}, {16, "01"}}),
        row({{1, "Empty"}, {16, ""}}),
        row({{1, "Zero"}, {16, "0"}}),
        std::string(27, ','),
    }));
    EXPECT_EQ(names(stones), std::vector<std::string>{"Kept"});
}

TEST(ParseReference, SortedByNameUpperCaseFirstEqualNamesInFileOrder) {
    const auto stones = parseReferenceText(file({
        stoneRow("1", "zircon"),
        stoneRow("2", "Zircon"),
        stoneRow("3", "Opal"),
        stoneRow("4", "Opal"),
        stoneRow("5", " Topaz"),
        stoneRow("6", "Opal"),
        stoneRow("7", "Agate"),
    }));
    EXPECT_EQ(names(stones), (std::vector<std::string>{" Topaz", "Agate", "Opal", "Opal", "Opal",
                                                       "Zircon", "zircon"}));
    EXPECT_EQ(stones[2].StoneID, "3");
    EXPECT_EQ(stones[3].StoneID, "4");
    EXPECT_EQ(stones[4].StoneID, "6");
}

TEST(ParseReference, WholeDuplicateRowsAreAllKept) {
    const std::string ruby = stoneRow("1", "Ruby", "1.762-1.770");
    EXPECT_EQ(parseReferenceText(file({ruby, ruby, ruby})).size(), 3u);
}

TEST(ParseReference, ReverseOrderComesOutAscending) {
    std::vector<std::string> rows;
    for (char c = 'Z'; c >= 'A'; --c) {
        rows.push_back(stoneRow(std::string(1, c), std::string(1, c) + "stone"));
    }
    const auto stones = parseReferenceText(file(rows));
    ASSERT_EQ(stones.size(), 26u);
    EXPECT_TRUE(std::is_sorted(stones.begin(), stones.end(), [](const Stones& a, const Stones& b) {
        return a.StoneName < b.StoneName;
    }));
}

TEST(ParseReference, CanonicallyEquivalentNamesSortAsOne) {
    // "Sphène" precomposed and decomposed are the same name: they keep their file order and both
    // sort after "Sphz..." (U+00E8 is above "z").
    const auto stones = parseReferenceText(file({
        stoneRow("1", "Sph\xC3\xA8ne"),
        stoneRow("2", "Sphz"),
        stoneRow("3", "Sphe\xCC\x80ne"),
    }));
    ASSERT_EQ(stones.size(), 3u);
    EXPECT_EQ(stones[0].StoneID, "2");
    EXPECT_EQ(stones[1].StoneID, "1");
    EXPECT_EQ(stones[2].StoneID, "3");
}

} // namespace
} // namespace velmora
