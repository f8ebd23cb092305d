#include "device/reading.h"
#include "ui/system_colors.h"
#include "ui/view_controller.h"

#include <cmath>
#include <limits>

namespace velmora {
namespace {

// Under the live reading in the reading tab, collapsed in the dictionary.
constexpr double captureContainerHeight = 184.0;

std::string stateText(SteadinessState state) {
    switch (state) {
    case SteadinessState::noStone:
        return "No stone";
    case SteadinessState::settling:
        return "Settling";
    case SteadinessState::steady:
        break;
    }
    return "Steady";
}

Rgba stateColor(SteadinessState state) {
    switch (state) {
    case SteadinessState::noStone:
        return systemColors::systemGray;
    case SteadinessState::settling:
        return systemColors::systemOrange;
    case SteadinessState::steady:
        break;
    }
    return systemColors::systemGreen;
}

} // namespace

void ViewController::setUpCapturePanel() {
    for (TextField* label : {&lbl_steadyState, &lbl_captureNote, &lbl_seriesValues, &lbl_seriesLow,
                             &lbl_seriesHigh, &lbl_seriesBirefringence, &lbl_seriesVerdict}) {
        label->setEditable(false);
    }
    view_steadyLamp.setCornerRadius(5.0);
    btn_capture.setKeyEquivalent(" ");
    check_autoCapture.setAttributedTitle(
        {"Capture every steady reading", TextAlignment::Left, systemColors::systemGray});
    check_autoCapture.setState(capture_.automatic() ? ButtonState::On : ButtonState::Off);
    capture_.onStateChange([this](SteadinessState state) { showSteadiness(state); });
    capture_.onSeriesChange([this](const RotationSeries& series) { showSeries(series); });
    showSteadiness(capture_.steadiness().state());
    showSeries(capture_.series());
}

void ViewController::showCapturePanel(bool shown) {
    capture_container_heightConstraint.setConstant(shown ? captureContainerHeight : 0.0);
    // Space captures only where the panel is.
    btn_capture.setEnabled(shown);
}

void ViewController::measureReading(std::optional<double> value) {
    const auto now = environment_.runLoop.now();
    capture_.add(now, value.value_or(std::numeric_limits<double>::quiet_NaN()));
    const SteadinessSettings& settings = capture_.steadiness().settings();
    const bool stone = value && std::isfinite(*value) && *value >= settings.noStoneBelow;
    chart_reading.addReading(now, stone ? value : std::nullopt);
    if (const auto steady = capture_.steadiness().current()) {
        chart_reading.setBand(
            ChartRange{steady->value - settings.band, steady->value + settings.band});
    } else {
        chart_reading.setBand(std::nullopt);
    }
}

void ViewController::showSteadiness(SteadinessState state) {
    lbl_steadyState.setText(stateText(state));
    view_steadyLamp.setBackgroundColor(stateColor(state));
}

void ViewController::showSeries(const RotationSeries& series) {
    const auto& values = series.values();
    // The series changes on a capture, which it holds last, and on New stone, which empties it.
    if (!values.empty()) {
        chart_reading.markCapture(environment_.runLoop.now(), values.back());
    }

    const Locale& locale = environment_.locale;
    std::string list;
    for (const double value : values) {
        list += (list.empty() ? "" : "   ") + formatValueForDisplay(value, locale);
    }
    lbl_seriesValues.setText(list);
    const auto shown = [&locale](std::optional<double> value) {
        return value ? formatValueForDisplay(*value, locale) : std::string("-");
    };
    lbl_seriesLow.setText(shown(series.low()));
    lbl_seriesHigh.setText(shown(series.high()));
    lbl_seriesBirefringence.setText(
        shown(series.empty() ? std::nullopt : std::optional(series.birefringence())));
    lbl_seriesVerdict.setText(series.verdict(locale));
    btn_identifySeries.setEnabled(!series.empty());
}

void ViewController::btn_capture_tap(Button&) {
    if (!isUSBStatus) {
        lbl_captureNote.setText("Nothing captured: connect the instrument first");
        return;
    }
    const CaptureResult result = capture_.capture();
    lbl_captureNote.setText(
        result.value ? "Captured " + formatValueForDisplay(*result.value, environment_.locale)
                     : "Nothing captured: " + std::string(result.whyNot));
}

void ViewController::btn_newStone_tap(Button&) {
    capture_.newStone();
    lbl_captureNote.setText("New stone: capture four positions or more as you turn it");
}

void ViewController::check_autoCapture_tap(Button& sender) {
    capture_.setAutomatic(sender.state() == ButtonState::On);
}

void ViewController::btn_identifySeries_tap(Button&) {
    const RotationSeries& series = capture_.series();
    if (series.empty()) {
        return;
    }
    enterRotationReadings(*series.low(), *series.high());
    resultsTabs.selectTabViewItemAtIndex(bestMatchesPage);
}

} // namespace velmora
