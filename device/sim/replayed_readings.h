#pragma once

// Readings replayed from a file, one R.I. a line ("1.544"), from the top again after the last.

#include "device/sim/reading_source.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
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

// The largest file of readings read: some five hours of readings at ten a second.
inline constexpr std::size_t readingFileLimit = std::size_t{1} << 20;

// Reads a file of readings into thousandths; only a regular file of at most readingFileLimit
// bytes is read. Blank lines are skipped; every other line must be
// one R.I. from 0 to 65.535 with a full stop as decimal point, rounded to thousandths as the
// instrument measures. On failure returns false with a one-line message naming the file (and the
// line) in error.
bool loadReadingFile(const std::filesystem::path& path, std::vector<std::uint16_t>& readings,
                     std::string& error);

// The same rules over a file's text already in memory; name stands for the file in the message,
// which quotes at most a short excerpt of a bad line.
bool parseReadings(std::string_view text, const std::string& name,
                   std::vector<std::uint16_t>& readings, std::string& error);

} // namespace velmora::sim
