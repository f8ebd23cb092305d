#include "device/sim/replayed_readings.h"

#include "foundation/text.h"

#include <cassert>
#include <cerrno>
#include <charconv>
#include <cmath>
#include <cstring>
#include <fstream>
#include <iterator>

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

bool loadReadingFile(const std::filesystem::path& path, std::vector<std::uint16_t>& readings,
                     std::string& error) {
    const auto cannotRead = [&](const std::string& reason) {
        error = path.string() + ": cannot be read: " + reason;
        return false;
    };
    std::error_code folder;
    if (std::filesystem::is_directory(path, folder)) {
        return cannotRead("it is a folder");
    }
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        return cannotRead(std::strerror(errno));
    }
    const std::string content{std::istreambuf_iterator<char>(file), {}};
    if (file.bad()) {
        return cannotRead(std::strerror(errno));
    }
    std::string_view text = content;
    if (text.starts_with("\xEF\xBB\xBF")) {
        text.remove_prefix(3);
    }

    std::vector<std::uint16_t> loaded;
    std::size_t lineNumber = 0;
    for (const auto line : text::splitLines(text)) {
        ++lineNumber;
        const auto reading = trimmed(line);
        if (reading.empty()) {
            continue;
        }
        double value = 0;
        const char* end = reading.data() + reading.size();
        const auto parsed = std::from_chars(reading.data(), end, value, std::chars_format::fixed);
        if (parsed.ec != std::errc{} || parsed.ptr != end || !(value >= 0) ||
            value > largestReading) {
            error = path.string() + ":" + std::to_string(lineNumber) + ": \"" +
                    std::string(reading) + "\" is not an R.I. from 0.000 to 65.535";
            return false;
        }
        loaded.push_back(static_cast<std::uint16_t>(std::lround(value * 1000)));
    }
    if (loaded.empty()) {
        error = path.string() + ": holds no reading (one R.I. a line, such as 1.544)";
        return false;
    }
    readings = std::move(loaded);
    return true;
}

} // namespace velmora::sim
