#include "data/reference_file.h"
#include "tests/support/reference_rows.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

using test::row;
using test::stoneRow;
using Listed = std::vector<std::string>;

// The header, then the rows, each ended by eol.
std::string file(const std::vector<std::string>& rows, const std::string& eol = "\n") {
    std::string text = test::referenceHeader + eol;
    for (const auto& r : rows) {
        text += r + eol;
    }
    return text;
}

struct FileCase {
    const char* what;
    std::string text;
    Listed stones; // "id:name", in the order parsed
};

TEST(ParseReference, KeepsTheIncludedRowsOfTwentyEightCellsInNameOrder) {
    const std::vector<std::string> two{stoneRow("1", "Ruby", "1.762-1.770"),
                                       stoneRow("2", "Amethyst", "1.544-1.553")};
    const FileCase cases[] = {
        {"header only", test::referenceHeader, {}},
        {"the first line is a header even when it is a row",
         stoneRow("1", "Spinel") + "\n" + stoneRow("2", "Ruby"),
         {"2:Ruby"}},
        {"LF", file(two), {"2:Amethyst", "1:Ruby"}},
        {"CR LF", file(two, "\r\n"), {"2:Amethyst", "1:Ruby"}},
        {"quotes removed",
         file({row({{0, R"("7")"}, {1, R"("Ruby")"}, {16, R"("1")"}})}),
         {"7:Ruby"}},
        {"27 and 29 cells, a quoted comma and an empty line passed over",
         file({stoneRow("1", "Agate"), "2,Short" + std::string(25, ','),
               "3,Long" + std::string(27, ','), R"(4,"Quartz, rose")" + std::string(26, ','), "",
               stoneRow("5", "Beryl")}),
         {"1:Agate", "5:Beryl"}},
        {"only the flag 1 includes",
         file({row({{0, "1"}, {16, "1"}}), row({{0, "2"}, {16, " 1"}}),
               row({{0, "3"}, {16, "1.0"}}), row({{0, "4"}, {16, "01"}}), row({{0, "5"}, {16, ""}}),
               row({{0, "6"}, {16, "0"}}), std::string(27, ',')}),
         {"1:"}},
        {"upper case first, a prefix first, equal names in file order",
         file({stoneRow("1", "zircon"), stoneRow("2", "Zircon"), stoneRow("8", "Opal star"),
               stoneRow("3", "Opal"), stoneRow("4", "Opal"), stoneRow("5", " Topaz"),
               stoneRow("6", "Opal"), stoneRow("7", "Agate")}),
         {"5: Topaz", "7:Agate", "3:Opal", "4:Opal", "6:Opal", "8:Opal star", "2:Zircon",
          "1:zircon"}},
        // U+00E8 is above "z"; both forms are the one name, so they keep their file order.
        {"canonically equivalent names",
         file({stoneRow("1", "Sph\xC3\xA8ne"), stoneRow("2", "Sphz"),
               stoneRow("3", "Sphe\xCC\x80ne")}),
         {"2:Sphz", "1:Sph\xC3\xA8ne", "3:Sphe\xCC\x80ne"}},
    };
    for (const auto& c : cases) {
        Listed stones;
        for (const auto& s : parseReferenceText(c.text)) {
            stones.push_back(s.StoneID + ":" + s.StoneName);
        }
        EXPECT_EQ(stones, c.stones) << c.what;
    }
}

} // namespace
} // namespace velmora
