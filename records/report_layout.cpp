#include "records/report_layout.h"

#include "records/records_csv.h"
#include "search/ranking_form.h"

#include <algorithm>

namespace velmora {
namespace {

constexpr double narrowestAxis = 0.010;

std::string withSeparator(std::string text, std::string_view separator) {
    if (const auto point = text.find('.'); point != std::string::npos) {
        text.replace(point, 1, separator);
    }
    return text;
}

std::string numberText(const std::optional<double>& value, std::string_view separator) {
    return withSeparator(cNumberText(value), separator);
}

// Densities are written to the hundredth at least, as labs give them: 4.00, 2.65, 3.515.
std::string sgText(const std::optional<double>& value, std::string_view separator) {
    if (!value) {
        return {};
    }
    std::string text = cNumberText(*value);
    const auto point = text.find('.');
    const std::size_t decimals = point == std::string::npos ? 0 : text.size() - point - 1;
    if (text.find('e') == std::string::npos && decimals < 2) {
        text += std::string(point == std::string::npos ? "." : "") + std::string(2 - decimals, '0');
    }
    return withSeparator(text, separator);
}

std::string riText(const std::optional<double>& value, std::string_view separator) {
    return value ? readingText(*value, separator) : std::string();
}

std::string seriesText(const std::vector<double>& values, std::string_view separator) {
    std::string text;
    for (const double value : values) {
        text += (text.empty() ? "" : "  ") + readingText(value, separator);
    }
    return text;
}

void addLine(std::vector<ReportLine>& lines, std::string caption, std::string value) {
    if (!value.empty()) {
        lines.push_back({std::move(caption), std::move(value)});
    }
}

} // namespace

std::string reportDateText(std::chrono::sys_seconds time) {
    const std::string iso = isoTimeText(time);
    return iso.substr(0, 10) + ' ' + iso.substr(11, 5) + " UTC";
}

SeriesChart seriesChart(const std::vector<double>& values, std::string_view decimalSeparator) {
    SeriesChart chart;
    if (values.empty()) {
        return chart;
    }
    const auto [lowest, highest] = std::minmax_element(values.begin(), values.end());
    const double middle = (*lowest + *highest) / 2;
    const double span = std::max(*highest - *lowest, narrowestAxis);
    chart.axisLow = middle - span / 2;
    chart.axisHigh = middle + span / 2;
    chart.lowText = readingText(chart.axisLow, decimalSeparator);
    chart.highText = readingText(chart.axisHigh, decimalSeparator);
    const double last = static_cast<double>(values.size() - 1);
    for (std::size_t i = 0; i < values.size(); ++i) {
        chart.points.emplace_back(last > 0 ? static_cast<double>(i) / last : 0.5,
                                  (values[i] - chart.axisLow) / (chart.axisHigh - chart.axisLow));
    }
    return chart;
}

ReportPage reportPage(const StoneRecord& r, std::string_view separator) {
    ReportPage page;
    page.maker = reportMaker;
    page.title = "Gemstone examination report";
    page.label = r.label;
    page.date = reportDateText(r.examined);
    addLine(page.readings, "R.I. readings", seriesText(r.ri.values, separator));
    addLine(page.readings, "R.I. low", riText(r.ri.low, separator));
    addLine(page.readings, "R.I. high", riText(r.ri.high, separator));
    addLine(page.readings, "Birefringence", riText(r.ri.birefringence, separator));
    addLine(page.readings, "Optic character", r.ri.verdict);
    addLine(page.readings, "S.G.", sgText(r.sg, separator));
    if (r.weighing) {
        addLine(page.readings, "Weighing",
                "in air " + numberText(r.weighing->inAir, separator) + ", in water " +
                    numberText(r.weighing->inWater, separator));
    }
    addLine(page.readings, "Hardness", numberText(r.hardness, separator));
    addLine(page.readings, "Colour", r.color);
    page.chart = seriesChart(r.ri.values, separator);
    for (const RecordedCandidate& c : r.candidates) {
        page.candidates.push_back({c.number, c.name, std::to_string(c.fit) + '%'});
    }
    page.conclusion = r.conclusion.empty() ? "Not concluded" : r.conclusion;
    page.notes = r.notes;
    return page;
}

std::string reportText(const ReportPage& page) {
    std::string text = page.label + '\n' + page.date + '\n';
    for (const ReportLine& line : page.readings) {
        text += line.caption + ": " + line.value + '\n';
    }
    if (!page.candidates.empty()) {
        text += "Candidates:\n";
        for (const ReportCandidate& c : page.candidates) {
            text += "  " + c.fit + "  " + c.name + '\n';
        }
    }
    text += "Conclusion: " + page.conclusion + '\n';
    if (!page.notes.empty()) {
        text += "Notes: " + page.notes + '\n';
    }
    return text;
}

} // namespace velmora
