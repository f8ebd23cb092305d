#include "tests/support/reference_rows.h"
#include "tests/support/window_harness.h"
#include "ui/system_colors.h"

#include <gtest/gtest.h>

namespace velmora::test {
namespace {

using namespace std::chrono_literals;
using Texts = std::vector<std::string>;

const MatchedHIDDevice velmoraInstrument{.productId = 63999, .vendorId = 1240, .name = "Velmora"};

// The gemmologist's bench: the instrument connected, readings arriving ten a second.
struct Bench : WindowHarness {
    explicit Bench(std::string separator = ".", bool connect = true)
        : WindowHarness(
              {.rows = std::vector<std::string>{stoneRow("1", "Tourmaline", "1.624-1.644"),
                                                stoneRow("2", "Quartz", "1.544-1.553")},
               .decimalSeparator = std::move(separator)}) {
        if (connect) {
            notificationCenter.post(HIDDeviceConnected{velmoraInstrument});
            runQueued();
        }
    }
    // Readings of one position, as the instrument sends them.
    void read(const std::string& reading, int count = 1) {
        for (int i = 0; i < count; ++i) {
            runLoop.advance(100ms);
            notificationCenter.post(HIDDeviceDataReceived{reading});
            runQueued();
        }
    }
    // Held long enough to settle.
    void hold(const std::string& reading) { read(reading, 15); }
    void capturePositions(const Texts& readings) {
        for (const auto& reading : readings) {
            hold(reading);
            click(window.btn_capture);
        }
    }
    const std::string& note() const { return window.lbl_captureNote.text(); }
    Texts series() const {
        const MainWindow& w = window;
        return {w.lbl_seriesValues.text(), w.lbl_seriesLow.text(), w.lbl_seriesHigh.text(),
                w.lbl_seriesBirefringence.text(), w.lbl_seriesVerdict.text()};
    }
};

TEST(CapturePanel, CaptureTakesTheSteadyReadingOrSaysWhyNot) {
    const struct {
        const char* situation;
        bool connected;
        Texts readings; // each held for a tenth of a second
        std::string note;
        std::string captured;
    } cases[] = {
        {"not connected", false, {}, "Nothing captured: connect the instrument first", ""},
        {"stone lifted", true, {"0.000", "0.000"}, "Nothing captured: no stone on the prism", ""},
        {"just placed",
         true,
         {"1.640", "1.628", "1.624"},
         "Nothing captured: the reading is still settling",
         ""},
        {"steady", true, Texts(15, "1.624"), "Captured 1.624", "1.624"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.situation);
        Bench b(".", c.connected);
        for (const auto& reading : c.readings) {
            b.read(reading);
        }
        b.click(b.window.btn_capture);
        EXPECT_EQ(b.note(), c.note);
        EXPECT_EQ(b.window.lbl_seriesValues.text(), c.captured);
    }
}

TEST(CapturePanel, ASeriesGivesLowHighBirefringenceAndTheVerdict) {
    const struct {
        const char* stone;
        std::string separator;
        Texts positions;
        Texts shown; // values, low, high, birefringence, verdict
    } cases[] = {
        {"tourmaline, decimal comma",
         ",",
         {"1.631", "1.624"},
         {"1,631   1,624", "1,624", "1,631", "0,007", "doubly refractive, birefringence 0,007"}},
        {"spinel, four positions",
         ".",
         {"1.718", "1.718", "1.719", "1.718"},
         {"1.718   1.718   1.719   1.718", "1.718", "1.719", "0.001",
          "singly refractive or aggregate"}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.stone);
        Bench b(c.separator);
        b.capturePositions(c.positions);
        EXPECT_EQ(b.series(), c.shown);
        EXPECT_TRUE(b.window.btn_identifySeries.isEnabled());
    }
}

TEST(CapturePanel, AutomaticCaptureTakesEverySteadyReadingWhileTicked) {
    Bench b;
    b.hold("1.624");
    EXPECT_EQ(b.window.lbl_seriesValues.text(), ""); // off at first
    b.click(b.window.check_autoCapture);
    b.read("1.640", 2); // turned
    b.hold("1.644");
    EXPECT_EQ(b.window.lbl_seriesValues.text(), "1.644");

    b.click(b.window.check_autoCapture);
    b.hold("1.631");
    EXPECT_EQ(b.window.lbl_seriesValues.text(), "1.644");
}

TEST(CapturePanel, IdentifyFromSeriesRanksTheLowAndHighAndNewStoneStartsTheNextSeries) {
    Bench b;
    b.capturePositions({"1.631", "1.624", "1.644"});
    b.click(b.window.btn_identifySeries);
    EXPECT_EQ(b.window.txt_leftRIReading.text() + "-" + b.window.txt_leftRIHigh.text(),
              "1.624-1.644");
    EXPECT_EQ(columnTexts(b.window.tbl_bestMatches, 1).at(0), "Tourmaline");

    b.click(b.window.btn_newStone);
    EXPECT_EQ(b.series(), (Texts{"", "-", "-", "-", "no reading captured"}));
    EXPECT_FALSE(b.window.btn_identifySeries.isEnabled());
}

TEST(CapturePanel, TheLampAndTheChartFollowTheReadingsTheBandAndTheCaptures) {
    Bench b;
    const StripChart& chart = b.window.chart_reading;
    const auto shows = [&](const char* text, Rgba lamp, bool band) {
        EXPECT_EQ(b.window.lbl_steadyState.text(), text);
        EXPECT_EQ(b.window.view_steadyLamp.backgroundColor(), lamp);
        EXPECT_EQ(chart.band().has_value(), band);
    };
    b.read("0.000");
    b.read("1.624", 3);
    shows("Settling", systemColors::systemOrange, false);
    ASSERT_EQ(chart.readings().size(), 4u);
    EXPECT_EQ(chart.readings().front().value, std::nullopt); // no stone: a gap

    b.hold("1.624");
    shows("Steady", systemColors::systemGreen, true);
    b.click(b.window.btn_capture);
    b.click(b.window.btn_newStone); // the marks stay: they are history
    EXPECT_EQ(chart.captures().size() == 1 ? chart.captures().back().value : 0, 1.624);
    b.read("0.000");
    shows("No stone", systemColors::systemGray, false);
}

} // namespace
} // namespace velmora::test
