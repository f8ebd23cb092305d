#pragma once

// The ranked identification's inputs as the window's form holds them: the ticked criteria, the
// entries' texts, the weighing and the over-the-limit switch. Reading them never stops at an
// alert: an entry that cannot be used gives a short note, so the strict search keeps its own
// warnings. A saved record takes what the form holds from the same.

#include "search/number_entry.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velmora {

struct RankingForm {
    bool isRIState = false;
    bool isSGState = false;
    bool isHardnessState = false;
    bool isNameState = false;
    bool isColorState = false;
    bool overTheLimit = false;
    std::string riText{};
    std::string riHighText{};
    std::string sgText{};
    std::string hardnessText{};
    std::string nameText{};
    std::string selectedColor{};
    std::string weightAirText{}; // the weighing the S.G. came from, when the stone was weighed
    std::string weightWaterText{};
};

class RankingTable;
struct Stones;

// One candidate as the Best matches view shows it: the fit as a large figure, the species or
// stone with the varieties that fit equally, and what lies off in words.
struct BestMatchRow {
    const Stones* stone = nullptr; // the candidate's lead, whose record a click shows
    std::string fit;               // "100%"
    std::string candidate;         // the name, then on a second line the varieties or the family
    std::string deviations;        // in words; "Fits every reading" when nothing lies off
    bool withinTolerance = false;  // every reading fits within the instruments' tolerance
};

struct RankedForm {
    std::vector<BestMatchRow> rows; // best first
    std::string note;               // how to read the list, or why there is none
};

// Ranks the table's stones for what the form holds, at most limit candidates.
RankedForm rankForm(const RankingTable& table, const RankingForm& form,
                    const DecimalSeparators& separators, std::size_t limit);

struct WeighingReading {
    // The S.G. as the S.G. entry shows it, with no more decimals than the weights allow.
    std::optional<std::string> sgText;
    std::string note;
};

// Nothing and no note until both weights are typed.
WeighingReading readWeighing(const std::string& airText, const std::string& waterText,
                             const DecimalSeparators& separators);

// An R.I. reading as the R.I. entries show it: three decimals, the user's separator.
std::string readingText(double ri, std::string_view decimalSeparator);

} // namespace velmora
