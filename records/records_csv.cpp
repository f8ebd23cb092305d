#include "records/records_csv.h"

#include <array>
#include <charconv>
#include <ostream>

namespace velmora {
namespace {

constexpr std::array header = {"id",     "label",      "date",          "ri_readings",
                               "ri_low", "ri_high",    "birefringence", "verdict",
                               "sg",     "weight_air", "weight_water",  "hardness",
                               "color",  "candidates", "conclusion",    "notes"};

void field(std::ostream& out, std::string_view text, bool first) {
    if (!first) {
        out << ',';
    }
    out << '"';
    for (const char c : text) {
        out << c;
        if (c == '"') {
            out << '"';
        }
    }
    out << '"';
}

// "12 Quartz 100 %; 40 Glass 80 %", as the results listed them.
std::string candidates(const std::vector<RecordedCandidate>& list) {
    std::string text;
    for (const auto& c : list) {
        text += (text.empty() ? "" : "; ") + c.number + ' ' + c.name + ' ' + std::to_string(c.fit) +
                " %";
    }
    return text;
}

} // namespace

std::string cNumberText(double value) {
    std::array<char, 32> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), value).ptr;
    return std::string(text.data(), end);
}

std::string cNumberText(const std::optional<double>& value) {
    return value ? cNumberText(*value) : std::string();
}

std::string cNumbersText(const std::vector<double>& values, std::string_view separator) {
    std::string text;
    for (const double value : values) {
        if (!text.empty()) {
            text += separator;
        }
        text += cNumberText(value);
    }
    return text;
}

void writeRecordsCsv(std::ostream& out, std::span<const StoneRecord> records) {
    bool first = true;
    for (const char* name : header) {
        field(out, name, first);
        first = false;
    }
    out << "\r\n";
    for (const StoneRecord& r : records) {
        const std::array<std::string, header.size()> fields = {
            std::to_string(r.id),
            r.label,
            isoTimeText(r.examined),
            cNumbersText(r.ri.values, "; "),
            cNumberText(r.ri.low),
            cNumberText(r.ri.high),
            cNumberText(r.ri.birefringence),
            r.ri.verdict,
            cNumberText(r.sg),
            r.weighing ? cNumberText(r.weighing->inAir) : std::string(),
            r.weighing ? cNumberText(r.weighing->inWater) : std::string(),
            cNumberText(r.hardness),
            r.color,
            candidates(r.candidates),
            r.conclusion,
            r.notes,
        };
        first = true;
        for (const auto& text : fields) {
            field(out, text, first);
            first = false;
        }
        out << "\r\n";
    }
}

} // namespace velmora
