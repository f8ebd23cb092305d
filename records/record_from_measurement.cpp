#include "records/record_from_measurement.h"

#include "data/stones.h"
#include "records/recorded_series.h"

#include <algorithm>
#include <charconv>

namespace velmora {
namespace {

RecordedSeries typedSeries(const RankingForm& entries, const DecimalSeparators& separators) {
    RotationSeries series;
    for (const std::string* text : {&entries.riText, &entries.riHighText}) {
        if (const auto value = readEntryNumber(*text, separators)) {
            series.add(*value);
        }
    }
    return recordedSeries(series);
}

// "100%" as the list shows it.
int fitPercent(const std::string& text) {
    int fit = 0;
    std::from_chars(text.data(), text.data() + text.size(), fit);
    return fit;
}

RecordedCandidate candidateOf(const BestMatchRow& row) {
    // The first line names the candidate; the second lists its varieties.
    const std::string name = row.candidate.substr(0, row.candidate.find('\n'));
    return {row.stone ? row.stone->StoneID : std::string(), name, fitPercent(row.fit)};
}

} // namespace

StoneRecord recordFromMeasurement(std::string label, std::chrono::sys_seconds examined,
                                  const RotationSeries& captured, const RankingForm& entries,
                                  const DecimalSeparators& separators,
                                  std::span<const BestMatchRow> candidates) {
    StoneRecord record;
    record.label = std::move(label);
    record.examined = examined;
    if (!captured.empty()) {
        record.ri = recordedSeries(captured);
    } else if (entries.isRIState) {
        record.ri = typedSeries(entries, separators);
    }
    if (entries.isSGState) {
        record.sg = readEntryNumber(entries.sgText, separators);
        const auto air = readEntryNumber(entries.weightAirText, separators);
        const auto water = readEntryNumber(entries.weightWaterText, separators);
        if (record.sg && air && water) {
            record.weighing = Weighing{*air, *water};
        }
    }
    if (entries.isHardnessState) {
        record.hardness = readEntryNumber(entries.hardnessText, separators);
    }
    if (entries.isColorState) {
        record.color = entries.selectedColor;
    }
    // A species whose varieties fit unequally is listed on a line per fit; the record names it
    // once, at the best of them, which comes first.
    for (const BestMatchRow& row : candidates) {
        RecordedCandidate candidate = candidateOf(row);
        if (std::ranges::none_of(record.candidates, [&](const RecordedCandidate& kept) {
                return kept.name == candidate.name;
            })) {
            record.candidates.push_back(std::move(candidate));
        }
    }
    return record;
}

} // namespace velmora
