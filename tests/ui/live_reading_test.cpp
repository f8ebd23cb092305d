// The whole road on the simulated instrument: Connect, readings arriving, Enter taking the shown
// reading into the R.I. entry, and the stones whose range holds it listed.

#include "device/sim/replayed_readings.h"
#include "device/sim/simulated_instrument.h"
#include "tests/support/reference_rows.h"
#include "tests/support/window_harness.h"
#include "ui/system_colors.h"

#include <gtest/gtest.h>

namespace velmora::test {
namespace {

using namespace std::chrono_literals;

WindowSetup onTheSimulatedInstrument(std::vector<std::uint16_t> readings) {
    return {.rows = std::vector<std::string>{stoneRow("1", "Amethyst", "1.544-1.553", "2.65-2.66"),
                                             stoneRow("2", "Aquamarine", "1.567-1.590"),
                                             stoneRow("3", "Citrine", "1.544 - 1.553"),
                                             stoneRow("4", "Iolite", "1.522-1.578")},
            .instrumentManagers = sim::simulatedInstrumentFactory(
                std::make_shared<sim::ReplayedReadings>(std::move(readings)))};
}

TEST(LiveReading, ConnectReadEnterListsTheStonesThatHoldTheReading) {
    WindowHarness h(onTheSimulatedInstrument({1530, 1551}));
    h.click(h.window.btn_connected);
    EXPECT_EQ(h.window.lbl_deviceStatus.text(), "Connected");
    EXPECT_EQ(h.window.view_deviceStatus.backgroundColor(), systemColors::systemGreen);

    h.runLoop.advance(100ms);
    EXPECT_EQ(h.window.usb_device_reading.text(), "1.530");
    h.runLoop.advance(100ms);
    EXPECT_EQ(h.window.usb_device_reading.text(), "1.551");

    h.click(h.window.btn_enter);
    EXPECT_EQ(h.window.txt_leftRIReading.text(), "1.551");
    EXPECT_EQ(h.tableRows(), (std::vector<std::pair<std::string, std::string>>{
                                 {"1", "Amethyst"}, {"3", "Citrine"}, {"4", "Iolite"}}));
    EXPECT_EQ(h.window.txt_RI.text(), "1.544-1.553"); // the first stone's detail
    EXPECT_TRUE(h.alerts().empty());
}

TEST(LiveReading, DisconnectStopsTheReadingsAndRestoresThePlaceholder) {
    WindowHarness h(onTheSimulatedInstrument({1544}));
    h.click(h.window.btn_connected);
    h.runLoop.advance(100ms);
    EXPECT_EQ(h.window.usb_device_reading.text(), "1.544");
    h.click(h.window.btn_disconnected);
    EXPECT_FALSE(h.state().isUSBStatus);
    EXPECT_EQ(h.window.usb_device_reading.text(), "1.000");
    h.runLoop.advance(10s);
    EXPECT_EQ(h.window.usb_device_reading.text(), "1.000");
    EXPECT_EQ(h.runLoop.activeTimers(), 0u);
}

} // namespace
} // namespace velmora::test
