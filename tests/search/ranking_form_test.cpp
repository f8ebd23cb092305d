#include "data/stone_list.h"
#include "search/best_match_rows.h"
#include "search/ranking_table.h"

#include <gtest/gtest.h>

namespace velmora::test {
namespace {

const DecimalSeparators point;

Stones stone(std::string_view name, std::string_view ri, std::string_view sg,
             std::string_view birefringence, std::string_view family) {
    Stones s;
    s.StoneName = name;
    s.Ri = ri;
    s.SgRange = sg;
    s.Birefringence = birefringence;
    s.StoneFamily = family;
    return s;
}

const StoneList reference({
    stone("Ruby", "1.762-1.770", "3.97-4.05", "0.008", "Corundum"),
    stone("Blue sapphire", "1.762-1.770", "3.95-4.03", "0.008", "Corundum"),
    stone("Padparadscha", "1.762-1.770", "3.95-4.03", "0.008", "Corundum"),
    stone("Yellow sapphire", "1.762-1.770", "3.95-4.03", "0.008", "Corundum"),
    stone("Star sapphire", "1.762-1.770", "3.95-4.03", "0.008", "Corundum"),
    stone("Spinel", "1.712-1.736", "3.58-3.61", "none", "Spinel"),
    stone("Diamond", "2.417-2.419", "3.50-3.53", "none", "Diamond"),
    stone("Rock crystal", "1.544-1.553", "2.64-2.66", "0.009", "Quartz"),
});

RankingForm riForm(std::string low, std::string high = "") {
    return {.isRIState = true, .riText = std::move(low), .riHighText = std::move(high)};
}

TEST(RankingForm, ReadsTheTickedEntriesAndNotesWhatItCannotUse) {
    const struct {
        RankingForm form;
        const char* note; // empty: read
    } cases[] = {
        {{}, "Enter a reading to rank the stones by fit."},
        // A ticked box with nothing typed yet is a criterion not given.
        {{.isRIState = true, .isSGState = true}, "Enter a reading to rank the stones by fit."},
        // An entry whose box is off is not read, whatever it holds.
        {{.riText = "x", .sgText = "3.5"}, "Enter a reading to rank the stones by fit."},
        {riForm("1.7x"), "R.I. \"1.7x\" is not a number."},
        {riForm("1.76", "1.7.7"), "High R.I. \"1.7.7\" is not a number."},
        {riForm("0.9"), "A refractive index is 1 or more."},
        {{.isSGState = true, .sgText = "0"}, "A specific gravity is above zero."},
        {{.isHardnessState = true, .hardnessText = "11"}, "Mohs hardness runs from 1 to 10."},
        // Over the limit there is no reading to check.
        {{.isRIState = true, .overTheLimit = true, .riText = "x"}, ""},
        {{.isNameState = true, .nameText = "sapph"}, ""},
    };
    for (const auto& c : cases) {
        const RankingFormReading reading = readRankingForm(c.form, point);
        EXPECT_EQ(reading.note, c.note);
        EXPECT_EQ(reading.inputs.has_value(), std::string(c.note).empty()) << c.note;
    }
}

TEST(RankingForm, TakesTheTwoReadingsInEitherOrderAndAHighOneAloneAsTheReading) {
    const auto spread = [](const RankingForm& form) {
        const auto in = readRankingForm(form, point).inputs;
        return std::pair(in->ri ? in->ri->value : 0, in->riHigh ? in->riHigh->value : 0);
    };
    EXPECT_EQ(spread(riForm("1.762", "1.770")), std::pair(1.762, 1.770));
    EXPECT_EQ(spread(riForm("1.770", "1.762")), std::pair(1.762, 1.770));
    EXPECT_EQ(spread(riForm("", "1.544")), std::pair(1.544, 0.0));

    // The user's separator, and the precision the value was typed with.
    const auto in = readRankingForm(riForm("1,54"), {",", ","}).inputs;
    EXPECT_DOUBLE_EQ(in->ri->value, 1.54);
    EXPECT_DOUBLE_EQ(in->ri->precision, 0.005);
}

TEST(Weighing, GivesTheSgWithTheDecimalsTheWeightsAllowOrSaysWhatIsWrong) {
    const struct {
        const char* air;
        const char* water;
        std::optional<std::string> sg;
        const char* note;
    } cases[] = {
        {"", "", std::nullopt, ""},
        {"4.000", "3.000", "4.00", ""}, // each weight +-0.0005: the S.G. +-0.0035
        {"2.00", "1.50", "4", ""},      // a small loss in water: not even one decimal holds
        {"1.3x", "1", std::nullopt, "Weight in air \"1.3x\" is not a number."},
        {"0", "1", std::nullopt, "The weight in air must be above zero."},
        {"2", "3", std::nullopt,
         "The weight in water must be below the weight in air: water buoys the stone up."},
        {"2", "0", std::nullopt,
         "The weight in water must be above zero: a stone that floats cannot be weighed this "
         "way."},
    };
    for (const auto& c : cases) {
        const WeighingReading reading = readWeighing(c.air, c.water, point);
        EXPECT_EQ(reading.sgText, c.sg) << c.air << " " << c.water;
        EXPECT_EQ(reading.note, c.note) << c.air << " " << c.water;
    }
    EXPECT_EQ(readWeighing("4,000", "3,000", {",", ","}).sgText, "4,00");
}

TEST(BestMatchRows, GroupOneSpeciesUnderItsNameWithTheFirstVarietiesNamed) {
    const RankingTable table(reference);
    RankingForm form = riForm("1.762", "1.770");
    form.isSGState = true;
    form.sgText = "4.00";
    const RankedForm ranked = rankForm(table, form, point, 10);
    ASSERT_FALSE(ranked.rows.empty());
    EXPECT_EQ(ranked.rows[0].fit, "100%");
    EXPECT_EQ(ranked.rows[0].candidate,
              "Corundum\nRuby, Blue sapphire, Padparadscha, Star sapphire and 1 more");
    EXPECT_EQ(ranked.rows[0].deviations, "Fits every reading");
    EXPECT_EQ(ranked.note,
              "Best first. A reading within the instrument's tolerance of a range fits it.");
    // Stones at 0 % say nothing once something fits.
    for (const BestMatchRow& row : ranked.rows) {
        EXPECT_NE(row.fit, "0%") << row.candidate;
    }
}

TEST(BestMatchRows, WithNothingWithinToleranceListTheNearestAndWhatFits) {
    const RankingTable table(reference);
    const RankedForm ranked =
        rankForm(table, {.isRIState = true, .isSGState = true, .riText = "1,700", .sgText = "3,60"},
                 {",", ","}, 2);
    ASSERT_EQ(ranked.rows.size(), 2u);
    EXPECT_EQ(ranked.rows[0].candidate, "Spinel");
    EXPECT_EQ(ranked.rows[0].deviations, "R.I. 0,012 below; S.G. fits");
    EXPECT_EQ(ranked.note,
              "Nothing fits within tolerance: the nearest stones, with how far each is off.");

    EXPECT_EQ(rankForm(table, {.isNameState = true, .nameText = "jade"}, point, 10).note,
              "No stone of the table matches the name.");
    EXPECT_EQ(rankForm(table, {.overTheLimit = true}, point, 1).rows[0].candidate, "Diamond");
}

} // namespace
} // namespace velmora::test
