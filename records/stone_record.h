#pragma once

// One examined stone as the gemmologist keeps it: what was measured, the candidates the ranking
// gave at the time (kept as they stood, not re-ranked against a later reference table), and the
// conclusion. Plain values: the window, the command line, the exports and the store all share it.

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace velmora {

using RecordId = std::int64_t;

// The R.I. readings captured while the stone was turned on the prism.
struct RecordedSeries {
    std::vector<double> values; // in the order taken
    std::optional<double> low;
    std::optional<double> high;
    std::optional<double> birefringence;
    std::string verdict; // "doubly refractive, birefringence 0.009", ...
};

// S.G. by hydrostatic weighing, when it was measured that way.
struct Weighing {
    double inAir = 0;
    double inWater = 0;
};

struct RecordedCandidate {
    std::string number; // the reference stone's number as the results showed it
    std::string name;
    int fit = 0; // whole percent
};

struct StoneRecord {
    RecordId id = 0; // given by the store
    std::string label;
    std::chrono::sys_seconds examined{};
    RecordedSeries ri;
    std::optional<double> sg;
    std::optional<Weighing> weighing;
    std::optional<double> hardness;
    std::string color;
    std::string notes;
    std::vector<RecordedCandidate> candidates; // best first
    std::string conclusion; // a candidate's name or the gemmologist's own words; empty: none yet
};

// "2026-11-23T12:05:09Z": the same for every user, and it sorts as it reads.
std::string isoTimeText(std::chrono::sys_seconds time);
// The reverse; nothing for any other text.
std::optional<std::chrono::sys_seconds> parseIsoTime(const std::string& text);

} // namespace velmora
