#include "device/blink1.h"
#include "tests/support/fake_hid_watcher.h"
#include "tests/support/notification_recorder.h"

#include <gtest/gtest.h>
#include <sstream>

namespace velmora::test {
namespace {

constexpr char instrument[] = "/dev/hidraw0";

struct Blink1Run {
    FakeHidWatcher watcher;
    NotificationCenter center;
    NotificationRecorder recorder{center, {deviceDisconnected}};
    std::ostringstream out;
    Blink1 blink1{watcher, out, center};

    // Watches and lets the whole script play out.
    void initUsb() {
        watcher.stop();
        blink1.initUsb();
    }

    // Each report as it goes out: the identifier, then the rest.
    std::vector<Bytes> sent() {
        std::vector<Bytes> reports;
        for (const auto& report : watcher.sentTo(instrument)) {
            Bytes bytes{report.reportId};
            bytes.insert(bytes.end(), report.bytes.begin(), report.bytes.end());
            reports.push_back(bytes);
        }
        return reports;
    }
};

TEST(Blink1, SendsTheAttachReportOnceToTheInstrumentOnly) {
    Blink1Run run;
    run.watcher.plug({.path = instrument});
    run.watcher.plug({.path = "/dev/hidraw1", .vendorId = 0x046D});
    run.initUsb();

    ASSERT_EQ(run.watcher.criteria().size(), 1u);
    EXPECT_TRUE(run.watcher.criteria()[0].matches(1240, 63999, 0, 0));
    EXPECT_EQ(run.out.str(), "Device connected\n"
                             "Senting output: [1, 110, 0, 255, 0]\n");
    // Report identifier 1, padded to 8 bytes.
    EXPECT_EQ(run.sent(), (std::vector<Bytes>{{0x01, 0x6E, 0x00, 0xFF, 0x00, 0, 0, 0}}));
    EXPECT_TRUE(run.watcher.sentTo("/dev/hidraw1").empty());
    ASSERT_NE(run.blink1.device, nullptr);
}

TEST(Blink1, RefusesNineBytesAndSendsEight) {
    Blink1Run run;
    run.watcher.plug({.path = instrument});
    run.initUsb();
    run.out.str("");

    const std::uint8_t nine[] = {2, 1, 2, 3, 4, 5, 6, 7, 8};
    run.blink1.send(nine);
    EXPECT_EQ(run.out.str(), "output data too large for USB report\n");
    run.blink1.send(std::span(nine).first(8));
    EXPECT_EQ(run.out.str(), "output data too large for USB report\n"
                             "Senting output: [2, 1, 2, 3, 4, 5, 6, 7]\n");
    EXPECT_EQ(run.sent().back(), (Bytes{2, 1, 2, 3, 4, 5, 6, 7}));
    EXPECT_EQ(run.sent().size(), 2u);
}

TEST(Blink1, WithoutADeviceNothingIsPrintedOrSent) {
    Blink1Run run;
    const std::uint8_t data[] = {1, 2};
    run.blink1.send(data);
    EXPECT_EQ(run.out.str(), "");
}

TEST(Blink1, PrintsTheFirstFourBytesOfEachInputReport) {
    Blink1Run run;
    run.watcher.plug({.path = instrument});
    run.watcher.later([&] {
        run.watcher.sendInputReport(instrument, {0x04, 0x06, 0xFF, 0x10, 9, 9, 9, 9});
        run.watcher.sendInputReport(instrument, {0xED, 0x03});
    });
    run.initUsb();
    EXPECT_EQ(run.out.str(), "Device connected\n"
                             "Senting output: [1, 110, 0, 255, 0]\n"
                             "Input received: [4, 6, 255, 16]\n"
                             "Input received: [237, 3, 0, 0]\n");
}

TEST(Blink1, AnnouncesRemovalWithTheClassInItsUserInfoAndKeepsTheDevice) {
    Blink1Run run;
    run.watcher.plug({.path = instrument});
    run.watcher.later([&] { run.watcher.unplug(instrument); });
    run.initUsb();

    EXPECT_EQ(run.out.str(), "Device connected\n"
                             "Senting output: [1, 110, 0, 255, 0]\n"
                             "Device removed\n");
    const auto notifications = run.recorder.notifications();
    ASSERT_EQ(notifications.size(), 1u);
    EXPECT_TRUE(notifications[0].object.isNone());
    EXPECT_EQ(notifications[0].userInfo, Value(Dictionary{{"class", "Velmora_Software.Blink1"}}));
    EXPECT_NE(run.blink1.device, nullptr);
}

} // namespace
} // namespace velmora::test
