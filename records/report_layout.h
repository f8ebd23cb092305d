#pragma once

// A record as a lab hands it over: one page per stone, the same for the printed page, the PDF and
// the window's detail. Described here as plain values; the painter only places them.

#include "records/stone_record.h"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace velmora {

struct ReportLine {
    std::string caption;
    std::string value;
};

struct ReportCandidate {
    std::string number;
    std::string name;
    std::string fit; // "100%"
};

// The captured series drawn as a small chart: the points in a unit square, x by the order they
// were taken, y from the axis's low (0) to its high (1).
struct SeriesChart {
    double axisLow = 0;
    double axisHigh = 0;
    std::string lowText; // the axis's bounds as the page prints them
    std::string highText;
    std::vector<std::pair<double, double>> points;
};

struct ReportPage {
    std::string maker; // "Velmora"
    std::string title; // "Gemstone examination report"
    std::string label;
    std::string date; // "2026-11-23 12:05 UTC"
    std::vector<ReportLine> readings;
    SeriesChart chart; // no points: nothing was captured
    std::vector<ReportCandidate> candidates;
    std::string conclusion; // "Not concluded" while there is none
    std::string notes;
};

inline constexpr const char* reportMaker = "Velmora";

// The page for the record, its numbers written with the decimal separator.
ReportPage reportPage(const StoneRecord& record, std::string_view decimalSeparator);

// The chart for these readings; its axis spans at least 0.010, centred on the readings, so one
// reading, or a singly refractive stone's flat row, sits mid-height.
SeriesChart seriesChart(const std::vector<double>& values, std::string_view decimalSeparator);

// "2026-11-23 12:05 UTC": to the minute, the same for every user.
std::string reportDateText(std::chrono::sys_seconds time);

// The page as plain text, a line each: what the window's detail shows.
std::string reportText(const ReportPage& page);

} // namespace velmora
