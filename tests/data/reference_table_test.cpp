// Checks the reference table we ship, so that a bad edit of the file fails the build's tests
// instead of quietly dropping a stone or making it unfindable.

#include "data/color_catalogue.h"
#include "data/reference_file.h"
#include "data/reference_loader.h"
#include "foundation/bundle.h"
#include "foundation/c_number.h"
#include "foundation/text.h"
#include "tests/support/split.h"

#include <algorithm>
#include <fstream>
#include <gtest/gtest.h>
#include <map>
#include <ranges>
#include <regex>
#include <set>
#include <sstream>

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
        {"Hawk's eye", "1.540-1.553", "", "", "", "Quartz", "spot RI about 1.54"},
        {"Aventurine quartz", "1.540-1.553", "", "", "", "Quartz", "spot RI 1.54-1.55"},
        {"Quartzite (dyed)", "1.540-1.553", "", "", "", "Quartz", "spot RI 1.54-1.55"},
        {"Prehnite", "1.610-1.665", "", "", "", "Prehnite", "spot RI 1.61-1.63"},
        {"Seraphinite", "1.571-1.599", "", "", "", "Chlorite", "spot RI within 1.571-1.599"},
        // Glass reads without a gap from crown to lead glass.
        {"Crown glass", "1.480-1.560", "", "", "none", "Glass", ""},
        {"Flint glass", "1.560-1.700", "", "", "none", "Glass", ""},
        {"Uvarovite", "1.860-1.870", "3.77-3.81", "", "none", "Garnet (ugrandite)",
         "chromian grossular"},
        {"Phosphophyllite", "1.595-1.621", "", "", "0.021", "Phosphophyllite", ""},
        {"Dolomite", "1.500-1.681", "", "", "0.179-0.181", "Dolomite", ""},
        {"Star diopside", "", "", "", "0.024-0.030", "Diopside", "not an aggregate"},
        {"Tugtupite", "", "", "", "", "Tugtupite",
         "deepens to crimson on exposure to UV or sunlight and fades again when kept in the dark"},
        {"Conch pearl", "1.530-1.685", "", "", "", "Pearl", "aragonite"},
        {"Melo pearl", "1.530-1.685", "", "", "", "Pearl", "aragonite"},
        {"Conch shell", "1.530-1.685", "", "", "", "Shell", ""},
        {"Spinel (red)", "1.712-1.736", "", "8-8", "none", "Spinel", ""},
        {"Spinel (cobalt blue)", "", "", "8-8", "none", "Spinel", ""},
        {"Synthetic spinel", "1.725-1.740", "", "8-8", "none", "Spinel", ""},
        {"Unakite", "", "", "", "", "Rock", "and 1.73-1.78 (epidote)"},
        // Opaque metallic stones give no reading; they sit at the table's ceiling.
        {"Pyrite", "3.000-3.000", "4.90-5.20", "6-6.5", "not measurable (opaque)", "Pyrite",
         "over the limit"},
        {"Marcasite", "3.000-3.000", "4.85-4.91", "6-6.5", "not measurable (opaque)", "Marcasite",
         "over the limit"},
        // The magnetic ferrite sold as hematite weighs like it but is no mineral of its own.
        {"Hematine", "3.000-3.000", "4.80-5.00", "5-6", "not measurable (opaque)", "Hematine",
         "strongly magnetic"},
        {"Dioptase", "1.644-1.709", "3.28-3.36", "5-5", "0.051-0.053", "Dioptase", ""},
        {"Bronzite", "1.663-1.693", "3.25-3.41", "5-6", "0.013-0.014", "Enstatite", ""},
        {"Polymer-impregnated jadeite", "1.652-1.680", "3.04-3.32", "", "", "Jade (pyroxene)", ""},
        {"Garnet-topped doublet", "1.760-1.820", "2.30-4.80", "", "", "Composite", "red ring"},
        {"Opal doublet", "1.420-1.470", "", "", "", "Composite", ""},
        {"Opal triplet", "1.490-1.553", "", "", "", "Composite", "reads the cap"},
        {"Soude emerald", "1.544-1.553", "2.64-2.66", "", "0.009", "Composite", ""},
        {"Synthetic spinel triplet", "1.725-1.740", "3.61-3.67", "", "none", "Composite", ""},
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
        {"Synthetic quartz", "Rock crystal"},
        {"Hydrothermal emerald", "Emerald"},
        {"Synthetic ruby", "Ruby"},
        {"Synthetic star corundum", "Star sapphire"},
        {"Flux-grown spinel", "Spinel (red)"},
        {"Lab diamond (CVD)", "Diamond"},
        {"Hypersthene", "Enstatite"},
        {"Natural pearl", "Melo pearl"},
        {"Coral (black)", "Coral (red)"},
        {"Mammoth ivory", "Ivory (elephant)"},
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

TEST(ShippedReferenceTable, EveryBirefringenceFitsWithinItsOwnIndexSpan) {
    for (const auto& s : shippedTable().rows) {
        const auto [widest, low, high] =
            std::tuple(parseCNumber(s.BirefMax), parseCNumber(s.RiMin), parseCNumber(s.RiMax));
        // A range cut at the 3.00 ceiling no longer spans the true birefringence.
        if (widest && low && high && *high < 3.0) {
            EXPECT_LE(*widest, *high - *low + 1e-9)
                << s.StoneName << ": " << s.Birefringence << " but R.I. " << s.Ri;
        }
    }
}

TEST(ShippedReferenceTable, SpotReadingsQuotedInTheDescriptionsLieInsideTheRange) {
    const std::regex spot(R"(spot (?:RI|readings?)(?: about| near)? (\d\.\d+)(?:-(\d\.\d+))?)");
    int quoted = 0;
    for (const auto& s : shippedTable().rows) {
        const auto low = parseCNumber(s.RiMin);
        const auto high = parseCNumber(s.RiMax);
        for (const std::string description : {s.Description1, s.Description2, s.Description3}) {
            for (std::sregex_iterator m(description.begin(), description.end(), spot), end;
                 m != end; ++m) {
                for (const std::size_t group : {1u, 2u}) {
                    if ((*m)[group].matched) {
                        ++quoted;
                        const auto value = parseCNumber((*m)[group].str());
                        EXPECT_TRUE(value && low && high && *low <= *value && *value <= *high)
                            << s.StoneName << " quotes " << m->str() << " outside " << s.Ri;
                    }
                }
            }
        }
    }
    EXPECT_GT(quoted, 40) << "the descriptions no longer quote spot readings this way";
}

// The identification examples: every line names a species the table has, with readings that
// parse, so that accuracy measured on them means something.
TEST(IdentificationExamples, EveryLineIsAReadingOfASpeciesInTheTable) {
    std::ifstream file(VELMORA_IDENTIFICATION_EXAMPLES);
    ASSERT_TRUE(file) << VELMORA_IDENTIFICATION_EXAMPLES;
    std::set<std::string> families;
    // The widest birefringence any row of a family gives.
    std::map<std::string, double> widestBirefringence;
    for (const auto& s : shippedTable().rows) {
        families.insert(s.StoneFamily);
        if (const auto widest = parseCNumber(s.BirefMax)) {
            double& w = widestBirefringence[s.StoneFamily];
            w = std::max(w, *widest);
        }
    }
    std::string line;
    std::getline(file, line);
    ASSERT_TRUE(line.starts_with("#")) << "the first line says how the set was built";
    std::getline(file, line);
    ASSERT_EQ(line, "species,name,ri_low,ri_high,otl,sg,hardness,colour,kind,source");
    std::size_t lines = 0;
    std::size_t overTheLimit = 0;
    std::map<std::string, int> perSpecies;
    while (std::getline(file, line)) {
        const auto parts = test::splitAt(line, ',');
        const std::vector<std::string> cell(parts.begin(), parts.end());
        ASSERT_EQ(cell.size(), 10u) << line;
        ++lines;
        ++perSpecies[cell[0]];
        EXPECT_TRUE(families.contains(cell[0])) << cell[0] << " is no family of the table";
        const auto sg = parseCNumber(cell[5]);
        EXPECT_TRUE(sg && *sg > 0.9 && *sg < 7.5) << line;
        EXPECT_TRUE(cell[7].empty() || catalogued(cell[7])) << line;
        EXPECT_TRUE(cell[8] == "measured" || cell[8] == "typical" || cell[8] == "range-end")
            << line;
        EXPECT_FALSE(cell[9].empty()) << line;
        if (cell[4] == "1") {
            ++overTheLimit;
            EXPECT_TRUE(cell[2].empty() && cell[3].empty()) << line;
        } else {
            EXPECT_EQ(cell[4], "0") << line;
            const auto low = parseCNumber(cell[2]);
            const auto high = parseCNumber(cell[3]);
            EXPECT_TRUE(low && high && 1.3 < *low && *low <= *high && *high <= 1.81) << line;
            // Two readings of one stone part by no more than its species' birefringence, give or
            // take what they were read to; a species-wide span is not one stone. A carbonate's
            // blink, and an aggregate family without a birefringence, may part further.
            const auto widest = widestBirefringence.find(cell[0]);
            if (low && high && *high - *low <= 0.100 && widest != widestBirefringence.end()) {
                const double slack = cell[2].size() <= 4 ? 0.013 : 0.003;
                EXPECT_LE(*high - *low, widest->second + slack) << "a species-wide span: " << line;
            }
        }
    }
    EXPECT_GE(lines, 120u);
    EXPECT_GE(overTheLimit, 10u);
    EXPECT_GE(perSpecies.size(), 30u) << "the set covers too few species";
}

} // namespace
} // namespace velmora
