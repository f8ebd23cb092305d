#pragma once

// The record the window saves in one action: the stone's captured rotation series, what the form
// holds of the other tests, and the Best matches candidates as they stand at that moment.

#include "device/rotation_series.h"
#include "records/stone_record.h"
#include "search/number_entry.h"
#include "search/ranking_form.h"

#include <chrono>
#include <span>
#include <string>

namespace velmora {

// The search form's entries as typed; a criterion counts only while its box is ticked, as it
// does for the ranking.
struct MeasurementEntries {
    bool ri = false;
    bool sg = false;
    bool hardness = false;
    bool color = false;
    std::string riText = {};
    std::string riHighText = {};
    std::string sgText = {};
    std::string weightAirText = {};
    std::string weightWaterText = {};
    std::string hardnessText = {};
    std::string colorName = {};
};

// A series captured from the instrument is the R.I.; without one, the readings typed into the
// R.I. entries are.
StoneRecord recordFromMeasurement(std::string label, std::chrono::sys_seconds examined,
                                  const RotationSeries& captured, const MeasurementEntries& entries,
                                  const DecimalSeparators& separators,
                                  std::span<const BestMatchRow> candidates);

} // namespace velmora
