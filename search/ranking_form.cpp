#include "search/ranking_form.h"

#include "foundation/text.h"
#include "search/best_match_rows.h"
#include "search/deviation_text.h"
#include "search/hydrostatic.h"

#include <cmath>
#include <utility>

namespace velmora {
namespace {

struct Unusable {
    std::string note;
};

Measured number(const std::string& typed, const char* what, const DecimalSeparators& s) {
    const auto value = readEntryNumber(typed, s);
    if (!value || !std::isfinite(*value)) {
        throw Unusable{std::string(what) + " \"" + typed + "\" is not a number."};
    }
    return {*value, precisionOf(text::replaceAll(typed, s.decimalSeparator, "."))};
}

void require(bool holds, const char* note) {
    if (!holds) {
        throw Unusable{note};
    }
}

// The readings of the refractometer; over the limit it shows none.
void readRefractiveIndex(const RankingForm& form, const DecimalSeparators& s, RankingInputs& in) {
    if (form.overTheLimit) {
        in.overTheLimit = true;
        return;
    }
    if (!form.isRIState) {
        return;
    }
    std::optional<Measured> low;
    std::optional<Measured> high;
    if (!form.riText.empty()) {
        low = number(form.riText, "R.I.", s);
    }
    if (!form.riHighText.empty()) {
        high = number(form.riHighText, "High R.I.", s);
    }
    if (high && !low) {
        std::swap(low, high);
    }
    if (low && high && high->value < low->value) {
        std::swap(low, high);
    }
    require(!low || low->value >= 1, "A refractive index is 1 or more.");
    in.ri = low;
    in.riHigh = high;
}

RankingInputs read(const RankingForm& form, const DecimalSeparators& s) {
    RankingInputs in;
    readRefractiveIndex(form, s, in);
    if (form.isSGState && !form.sgText.empty()) {
        in.sg = number(form.sgText, "S.G.", s);
        require(in.sg->value > 0, "A specific gravity is above zero.");
    }
    if (form.isHardnessState && !form.hardnessText.empty()) {
        in.hardness = number(form.hardnessText, "Hardness", s);
        require(in.hardness->value >= 1 && in.hardness->value <= 10,
                "Mohs hardness runs from 1 to 10.");
    }
    if (form.isColorState && !form.selectedColor.empty()) {
        in.color = form.selectedColor;
    }
    if (form.isNameState && !form.nameText.empty()) {
        in.name = form.nameText;
    }
    return in;
}

bool givesAnything(const RankingInputs& in) {
    return in.ri || in.overTheLimit || in.sg || in.hardness || in.color || in.name;
}

// The most decimals whose half unit still covers the error: claiming a finer S.G. than the
// weights allow would hold the stones to a tolerance the balance cannot give.
int decimalsFor(double precision) {
    for (int decimals = 3; decimals > 0; --decimals) {
        if (0.5 * std::pow(10.0, -decimals) >= precision) {
            return decimals;
        }
    }
    return 0;
}

} // namespace

RankingFormReading readRankingForm(const RankingForm& form, const DecimalSeparators& separators) {
    try {
        RankingInputs in = read(form, separators);
        if (!givesAnything(in)) {
            return {std::nullopt, "Enter a reading to rank the stones by fit."};
        }
        return {std::move(in), {}};
    } catch (const Unusable& unusable) {
        return {std::nullopt, unusable.note};
    }
}

WeighingReading readWeighing(const std::string& airText, const std::string& waterText,
                             const DecimalSeparators& separators) {
    if (airText.empty() || waterText.empty()) {
        return {};
    }
    try {
        const HydrostaticResult result =
            specificGravityFromWeights(number(airText, "Weight in air", separators),
                                       number(waterText, "Weight in water", separators));
        if (!result.sg) {
            return {std::nullopt, result.problem};
        }
        return {fixedText(result.sg->value, decimalsFor(result.sg->precision),
                          separators.decimalSeparator),
                {}};
    } catch (const Unusable& unusable) {
        return {std::nullopt, unusable.note};
    }
}

std::string readingText(double ri, std::string_view decimalSeparator) {
    return fixedText(ri, 3, decimalSeparator);
}

} // namespace velmora
