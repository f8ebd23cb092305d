// Checks the reference table we ship, so that a bad edit of the file fails the build's tests
// instead of quietly dropping a stone or making it unfindable.

#include "data/color_catalogue.h"
#include "data/reference_file.h"
#include "data/reference_loader.h"
#include "foundation/bundle.h"
#include "foundation/c_number.h"
#include "foundation/text.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>

namespace velmora {
namespace {

struct Table {
    std::vector<std::string> lines; // every line after the header, but a final empty one
    std::vector<Stones> rows;       // every included row of 28 cells
};

const Table& shippedTable() {
    static const Table table = [] {
        Table t;
        const auto path = referenceFilePath(Bundle::main());
        const std::string file = path ? readTextFile(*path).text.value_or("") : "";
        const auto lines = text::splitLines(file);
        for (std::size_t i = 1; i < lines.size(); ++i) {
            if (i + 1 < lines.size() || !lines[i].empty()) {
                t.lines.emplace_back(lines[i]);
            }
        }
        t.rows = parseReferenceText(file);
        return t;
    }();
    return table;
}

// "low-high", with its bounds in the given columns, within what nature gives.
void expectRange(const Stones& s, const std::string& cell, const std::string& min,
                 const std::string& max, double lowest, double highest) {
    const auto dash = cell.find('-');
    const auto low = parseCNumber(std::string_view(cell).substr(0, dash));
    const auto high =
        dash == std::string::npos ? std::nullopt : parseCNumber(cell.substr(dash + 1));
    ASSERT_TRUE(low && high) << s.StoneName << ": \"" << cell << "\" is not low-high";
    EXPECT_TRUE(lowest <= *low && *low <= *high && *high <= highest) << s.StoneName << ": " << cell;
    EXPECT_EQ(parseCNumber(min), low) << s.StoneName << ": " << cell << " but low " << min;
    EXPECT_EQ(parseCNumber(max), high) << s.StoneName << ": " << cell << " but high " << max;
}

TEST(ShippedReferenceTable, EveryLineIsAnIncludedRowOfTwentyEightUnquotedCells) {
    const auto& t = shippedTable();
    ASSERT_GE(t.lines.size(), 300u) << "the bundled reference file is missing or short";
    EXPECT_EQ(t.rows.size(), t.lines.size()) << "a line is not an included row of 28 cells";
    for (const auto& line : t.lines) {
        EXPECT_EQ(line.find('"'), std::string::npos) << line;
    }
    for (const auto& s : t.rows) {
        EXPECT_EQ(s.NEW, "1") << s.StoneName;
    }
}

TEST(ShippedReferenceTable, EveryStoneHasItsRangesFamilyAndColoursAndIsUnique) {
    std::set<std::string> ids;
    std::set<std::string> names;
    for (const auto& s : shippedTable().rows) {
        expectRange(s, s.Ri, s.RiMin, s.RiMax, 1.30, 3.00);
        expectRange(s, s.SgRange, s.SgMin, s.SgMax, 0.90, 7.50);
        expectRange(s, s.Hardness, s.HMin, s.Hmax, 1, 10);
        const auto average = parseCNumber(s.SgAverage);
        EXPECT_TRUE(average && parseCNumber(s.SgMin) <= average && average <= parseCNumber(s.SgMax))
            << s.StoneName << ": SgAverage " << s.SgAverage;
        const auto usbAverage = parseCNumber(s.SgAverageUSB);
        EXPECT_TRUE(average && usbAverage && std::abs(*usbAverage - *average) < 0.0051)
            << s.StoneName << ": SgAverageUSB " << s.SgAverageUSB;
        EXPECT_FALSE(s.StonenameUSB.empty() || s.Birefringence.empty() || s.StoneFamily.empty())
            << s.StoneName;
        int colours = 0;
        for (const auto* cell :
             {&s.Color1, &s.Color2, &s.Color3, &s.Color4, &s.Color5, &s.Color6}) {
            colours += !cell->empty();
            EXPECT_TRUE(cell->empty() ||
                        std::ranges::any_of(colorCatalogue(),
                                            [&](const Color& c) { return c.name == *cell; }))
                << s.StoneName << ": " << *cell;
        }
        EXPECT_GT(colours, 0) << s.StoneName << " has no colour";
        const auto id = parseCNumber(s.StoneID);
        EXPECT_TRUE(id && *id > 0 && *id == static_cast<long>(*id) &&
                    s.StoneID.find_first_not_of("0123456789") == std::string::npos)
            << s.StoneName << ": StoneID " << s.StoneID;
        EXPECT_TRUE(ids.insert(s.StoneID).second) << "StoneID " << s.StoneID << " twice";
        EXPECT_TRUE(names.insert(text::normalized(s.StoneName)).second) << s.StoneName << " twice";
    }
}

} // namespace
} // namespace velmora
