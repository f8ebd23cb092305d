// Checks the reference table we ship, so that a bad edit of the file fails the build's tests
// instead of quietly dropping a stone or making it unfindable.

#include "data/color_catalogue.h"
#include "data/reference_file.h"
#include "data/reference_loader.h"
#include "foundation/bundle.h"
#include "foundation/text.h"

#include <charconv>
#include <gtest/gtest.h>
#include <optional>
#include <set>

namespace velmora {
namespace {

struct Table {
    std::vector<std::string> lines; // every line after the header, but a final empty one
    std::vector<Stones> rows;       // every line that is a row, in file order
};

const Table& shippedTable() {
    static const Table table = [] {
        Table t;
        const auto path = referenceFilePath(Bundle::main());
        if (!path) {
            return t;
        }
        const auto read = readTextFile(*path);
        if (!read.text) {
            return t;
        }
        const auto lines = text::splitLines(*read.text);
        for (std::size_t i = 1; i < lines.size(); ++i) {
            if (i + 1 == lines.size() && lines[i].empty()) {
                break;
            }
            t.lines.emplace_back(lines[i]);
            if (auto stone = rowToRecord(lines[i])) {
                t.rows.push_back(std::move(*stone));
            }
        }
        return t;
    }();
    return table;
}

std::optional<double> number(std::string_view s) {
    double value = 0;
    const auto [end, ec] = std::from_chars(s.data(), s.data() + s.size(), value);
    if (ec != std::errc() || end != s.data() + s.size() || s.empty()) {
        return std::nullopt;
    }
    return value;
}

struct Range {
    double low;
    double high;
};

// "low-high", both plain numbers with a decimal point, nothing else.
std::optional<Range> range(const std::string& cell) {
    const auto dash = cell.find('-');
    if (dash == std::string::npos) {
        return std::nullopt;
    }
    const auto low = number(std::string_view(cell).substr(0, dash));
    const auto high = number(std::string_view(cell).substr(dash + 1));
    if (!low || !high) {
        return std::nullopt;
    }
    return Range{*low, *high};
}

void expectRange(const Stones& s, const std::string& cell, const std::string& min,
                 const std::string& max, double lowest, double highest, const char* what) {
    const auto r = range(cell);
    ASSERT_TRUE(r) << s.StoneName << ": " << what << " \"" << cell << "\" is not low-high";
    EXPECT_LE(r->low, r->high) << s.StoneName << ": " << what << " " << cell;
    EXPECT_GE(r->low, lowest) << s.StoneName << ": " << what << " " << cell;
    EXPECT_LE(r->high, highest) << s.StoneName << ": " << what << " " << cell;
    EXPECT_EQ(number(min), r->low) << s.StoneName << ": " << what << " low column " << min;
    EXPECT_EQ(number(max), r->high) << s.StoneName << ": " << what << " high column " << max;
}

TEST(ShippedReferenceTable, EveryLineIsAnIncludedRowOfTwentyEightCells) {
    const auto& t = shippedTable();
    ASSERT_GE(t.lines.size(), 300u) << "the bundled reference file is missing or short";
    EXPECT_EQ(t.rows.size(), t.lines.size()) << "a line does not cut into 28 cells";
    for (const auto& line : t.lines) {
        EXPECT_EQ(line.find('"'), std::string::npos) << line;
    }
    for (const auto& s : t.rows) {
        EXPECT_EQ(s.NEW, "1") << s.StoneName;
    }
}

TEST(ShippedReferenceTable, RangesAreLowHighWithinNatureAndAgreeWithTheirColumns) {
    for (const auto& s : shippedTable().rows) {
        expectRange(s, s.Ri, s.RiMin, s.RiMax, 1.30, 3.00, "R.I.");
        expectRange(s, s.SgRange, s.SgMin, s.SgMax, 0.90, 7.50, "S.G.");
        expectRange(s, s.Hardness, s.HMin, s.Hmax, 1, 10, "hardness");
        const auto sg = range(s.SgRange);
        const auto average = number(s.SgAverage);
        ASSERT_TRUE(average) << s.StoneName << ": SgAverage " << s.SgAverage;
        if (sg) {
            EXPECT_GE(*average, sg->low) << s.StoneName;
            EXPECT_LE(*average, sg->high) << s.StoneName;
        }
        const auto usbAverage = number(s.SgAverageUSB);
        ASSERT_TRUE(usbAverage) << s.StoneName << ": SgAverageUSB " << s.SgAverageUSB;
        EXPECT_NEAR(*usbAverage, *average, 0.0051) << s.StoneName;
        EXPECT_FALSE(s.StonenameUSB.empty()) << s.StoneName;
        EXPECT_FALSE(s.Birefringence.empty()) << s.StoneName;
        EXPECT_FALSE(s.StoneFamily.empty()) << s.StoneName;
    }
}

TEST(ShippedReferenceTable, ColoursComeFromTheCatalogue) {
    for (const auto& s : shippedTable().rows) {
        bool any = false;
        for (const auto* cell :
             {&s.Color1, &s.Color2, &s.Color3, &s.Color4, &s.Color5, &s.Color6}) {
            if (!cell->empty()) {
                EXPECT_TRUE(colorNamed(*cell)) << s.StoneName << ": colour \"" << *cell << "\"";
                any = true;
            }
        }
        EXPECT_TRUE(any) << s.StoneName << " has no colour";
    }
}

TEST(ShippedReferenceTable, IdsAreUniqueWholeNumbersAndNamesAreUnique) {
    std::set<long> ids;
    std::set<std::string> names;
    for (const auto& s : shippedTable().rows) {
        long id = 0;
        const auto [end, ec] =
            std::from_chars(s.StoneID.data(), s.StoneID.data() + s.StoneID.size(), id);
        EXPECT_TRUE(ec == std::errc() && end == s.StoneID.data() + s.StoneID.size() && id > 0)
            << s.StoneName << ": StoneID " << s.StoneID;
        EXPECT_TRUE(ids.insert(id).second) << "StoneID " << id << " twice";
        EXPECT_TRUE(names.insert(text::normalized(s.StoneName)).second) << s.StoneName << " twice";
    }
}

} // namespace
} // namespace velmora
