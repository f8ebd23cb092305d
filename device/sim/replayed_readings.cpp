#include "device/sim/replayed_readings.h"

#include "foundation/printable.h"
#include "foundation/regular_file.h"
#include "foundation/text.h"

#include <cassert>
#include <charconv>
#include <cmath>

namespace velmora::sim {

namespace {

constexpr double largestReading = 65.535;

std::string_view trimmed(std::string_view s) {
    const auto first = s.find_first_not_of(" \t");
    if (first == std::string_view::npos) {
        return {};
    }
    return s.substr(first, s.find_last_not_of(" \t") - first + 1);
}

} // namespace

ReplayedReadings::ReplayedReadings(std::vector<std::uint16_t> readings)
    : readings_(std::move(readings)) {
    assert(!readings_.empty());
}

std::uint16_t ReplayedReadings::next() {
    const std::uint16_t reading = readings_[position_];
    position_ = (position_ + 1) % readings_.size();
    return reading;
}

bool parseReadings(std::string_view text, const std::string& name,
                   std::vector<std::uint16_t>& readings, std::string& error) {
    if (text.starts_with("\xEF\xBB\xBF")) {
        text.remove_prefix(3);
    }
    std::vector<std::uint16_t> loaded;
    std::size_t lineNumber = 0;
    bool bad = false;
    text::forEachLine(text, [&](std::string_view line) {
        ++lineNumber;
        const auto reading = trimmed(line);
        if (bad || reading.empty()) {
            return;
        }
        double value = 0;
        const char* end = reading.data() + reading.size();
        const auto parsed = std::from_chars(reading.data(), end, value, std::chars_format::fixed);
        if (parsed.ec != std::errc{} || parsed.ptr != end || !(value >= 0) ||
            value > largestReading) {
            error = name + ":" + std::to_string(lineNumber) + ": \"" + text::excerpt(reading) +
                    "\" is not an R.I. from 0.000 to 65.535";
            bad = true;
            return;
        }
        loaded.push_back(static_cast<std::uint16_t>(std::lround(value * 1000)));
    });
    if (bad) {
        return false;
    }
    if (loaded.empty()) {
        error = name + ": holds no reading (one R.I. a line, such as 1.544)";
        return false;
    }
    readings = std::move(loaded);
    return true;
}

bool loadReadingFile(const std::filesystem::path& path, std::vector<std::uint16_t>& readings,
                     std::string& error) {
    const std::string name = text::printable(path.string());
    const FileBytes file = readRegularFile(path, readingFileLimit, "file of readings");
    if (!file.bytes) {
        error = name + ": cannot be read: " + file.error;
        return false;
    }
    return parseReadings(*file.bytes, name, readings, error);
}

} // namespace velmora::sim
