#pragma once

// Readings replayed from a file, one R.I. a line ("1.544"), from the top again after the last.

#include "device/sim/reading_source.h"

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace velmora::sim {

class ReplayedReadings final : public ReadingSource {
public:
    // Not empty.
    explicit ReplayedReadings(std::vector<std::uint16_t> readings);
    std::uint16_t next() override;

private:
    std::vector<std::uint16_t> readings_;
    std::size_t position_ = 0;
};

// Reads a file of readings into thousandths. Blank lines are skipped; every other line must be
// one R.I. from 0 to 65.535 with a full stop as decimal point, rounded to thousandths as the
// instrument measures. On failure returns false with a one-line message naming the file (and the
// line) in error.
bool loadReadingFile(const std::filesystem::path& path, std::vector<std::uint16_t>& readings,
                     std::string& error);

} // namespace velmora::sim
