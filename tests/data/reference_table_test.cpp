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
    StoneList rows;                 // every included row of 28 cells
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

bool catalogued(std::string_view colour) {
    return std::ranges::any_of(colorCatalogue(), [&](const Color& c) { return c.name == colour; });
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
            EXPECT_TRUE(cell->empty() || catalogued(*cell)) << s.StoneName << ": " << *cell;
        }
        EXPECT_GT(colours, 0) << s.StoneName << " has no colour";
        const auto id = parseCNumber(s.StoneID);
        EXPECT_TRUE(id && *id > 0 && *id == static_cast<long>(*id) &&
                    s.StoneID.view().find_first_not_of("0123456789") == std::string::npos)
            << s.StoneName << ": StoneID " << s.StoneID;
        EXPECT_TRUE(ids.insert(s.StoneID).second) << "StoneID " << s.StoneID << " twice";
        EXPECT_TRUE(names.insert(text::normalized(s.StoneName)).second) << s.StoneName << " twice";
    }
}

const Stones* shippedStone(std::string_view name) {
    const auto& rows = shippedTable().rows;
    const auto it = std::ranges::find(rows, name, &Stones::StoneName);
    return it == rows.end() ? nullptr : &*it;
}

// Rows a gemmologist corrected or missed, with the values their sources give; an empty expected
// cell is not checked. "text" must stand in the identifying-features description.
struct SourcedRow {
    std::string_view name;
    std::string_view ri;
    std::string_view sg;
    std::string_view hardness;
    std::string_view birefringence;
    std::string_view family;
    std::string_view text;
};

TEST(ShippedReferenceTable, CorrectedAndAddedRowsHoldTheirSourcedValues) {
    const SourcedRow cases[] = {
        {"Rhodolite", "1.740-1.770", "3.74-3.94", "", "none", "Garnet (pyralspite)", ""},
        {"Nephrite", "1.600-1.632", "", "", "", "Jade (amphibole)", "spot RI 1.61-1.62"},
        // Spot readings of the quartz aggregates lie inside their range.
        {"Tiger's eye", "1.540-1.553", "", "", "", "Quartz", "spot RI about 1.54"},
        // Glass reads without a gap from crown to lead glass.
        {"Crown glass", "1.480-1.560", "", "", "none", "Glass", ""},
        {"Flint glass", "1.560-1.700", "", "", "none", "Glass", ""},
        {"Tugtupite", "", "", "", "", "Tugtupite",
         "deepens to crimson on exposure to UV or sunlight and fades again when kept in the dark"},
        {"Spinel (red)", "1.712-1.736", "", "8-8", "none", "Spinel", ""},
        // Opaque metallic stones give no reading; they sit at the table's ceiling.
        {"Pyrite", "3.000-3.000", "4.90-5.20", "6-6.5", "not measurable (opaque)", "Pyrite",
         "over the limit"},
        // The magnetic ferrite sold as hematite weighs like it but is no mineral of its own.
        {"Hematine", "3.000-3.000", "4.80-5.00", "5-6", "not measurable (opaque)", "Hematine",
         "strongly magnetic"},
        {"Garnet-topped doublet", "1.760-1.820", "2.30-4.80", "", "", "Composite", "red ring"},
        // Jet's imitations: vulcanite reads as jet but is lighter; epoxy sinks where amber floats.
        {"Vulcanite (ebonite)", "1.660-1.660", "1.10-1.20", "2-3", "none", "Plastic", "sulphurous"},
        {"Epoxy resin", "1.500-1.600", "1.25-1.35", "2-3", "none", "Plastic", "1.50-1.57"},
    };
    for (const auto& c : cases) {
        const auto* s = shippedStone(c.name);
        ASSERT_NE(s, nullptr) << c.name << " is not in the table";
        const auto check = [&](std::string_view field, std::string_view expected,
                               const std::string& actual) {
            EXPECT_TRUE(expected.empty() || actual == expected)
                << c.name << " " << field << ": " << actual << ", sources give " << expected;
        };
        check("R.I.", c.ri, s->Ri);
        check("S.G.", c.sg, s->SgRange);
        check("hardness", c.hardness, s->Hardness);
        check("birefringence", c.birefringence, s->Birefringence);
        check("family", c.family, s->StoneFamily);
        EXPECT_NE(s->Description2.view().find(c.text), std::string::npos)
            << c.name << " does not say \"" << c.text << "\"";
    }
}

TEST(ShippedReferenceTable, RowsOfOneSpeciesShareOneFamily) {
    // Ranked identification groups rows by family, so a synthetic or a variety under another
    // family text would stand apart from its species.
    const std::pair<std::string_view, std::string_view> sameSpecies[] = {
        {"Hydrothermal emerald", "Emerald"},
        {"Synthetic ruby", "Ruby"},
        {"Lab diamond (CVD)", "Diamond"},
        {"Natural pearl", "Melo pearl"},
    };
    for (const auto& [a, b] : sameSpecies) {
        const auto* first = shippedStone(a);
        const auto* second = shippedStone(b);
        ASSERT_TRUE(first && second) << a << " or " << b << " is missing";
        EXPECT_EQ(first->StoneFamily, second->StoneFamily) << a << " and " << b;
    }
    // Families that lumped several species together are gone.
    for (const auto& s : shippedTable().rows) {
        for (const std::string_view lumped : {"Man-made", "Organic", "Pyroxene", "Spinel group"}) {
            EXPECT_NE(s.StoneFamily, lumped) << s.StoneName;
        }
    }
}

} // namespace
} // namespace velmora
