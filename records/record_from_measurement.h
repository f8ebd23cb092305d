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

// A series captured from the instrument is the R.I.; without one, the readings typed into the
// R.I. entries are. A criterion of the form counts only while its box is ticked, as it does for
// the ranking.
StoneRecord recordFromMeasurement(std::string label, std::chrono::sys_seconds examined,
                                  const RotationSeries& captured, const RankingForm& entries,
                                  const DecimalSeparators& separators,
                                  std::span<const BestMatchRow> candidates);

} // namespace velmora
