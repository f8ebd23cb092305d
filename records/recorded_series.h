#pragma once

// A rotation series as a record keeps it. The verdict is written with "." as decimal point, as
// every number in the store is; displays put the user's separator in.

#include "device/rotation_series.h"
#include "records/stone_record.h"

namespace velmora {

RecordedSeries recordedSeries(const RotationSeries& series);

} // namespace velmora
