#include "device/device_notifications.h"
#include "device/hid_device_connector.h"
#include "tests/support/fake_hid.h"
#include "tests/support/manual_run_loop.h"
#include "tests/support/recording_log.h"

#include <gmock/gmock.h>
#include <variant>

namespace velmora::test {
namespace {

using namespace std::chrono_literals;
using ::testing::ElementsAre;

const SentReport connectReport{0, {0x80, 0x80, 0, 0, 0, 0, 0, 0}};
const SentReport updateReport{0, {0x31, 0x00, 0, 0, 0, 0, 0, 0}};
const MatchedHIDDevice instrument{
    .productId = 63999, .vendorId = 1240, .name = "Velmora Refractometer"};

// A notification as it was posted, with how many reports had been sent by then.
struct Posted {
    std::variant<HIDDeviceConnected, HIDDeviceDisconnected, HIDDeviceDataReceived> notification;
    std::size_t sentBefore;
};

class HIDDeviceConnectorTest : public ::testing::Test {
protected:
    void SetUp() override {
        const auto record = [this](const auto& n) {
            posted.push_back({n, bus.sentReports().size()});
        };
        center.addObserver<HIDDeviceConnected>(record);
        center.addObserver<HIDDeviceDisconnected>(record);
        center.addObserver<HIDDeviceDataReceived>(record);
    }
    std::vector<std::string_view> names() const {
        std::vector<std::string_view> names;
        for (const auto& p : posted) {
            names.push_back(std::visit([](const auto& n) { return n.name; }, p.notification));
        }
        return names;
    }

    ManualRunLoop loop;
    NotificationCenter center;
    RecordingLog log;
    FakeHidBus bus;
    std::vector<Posted> posted;
    HIDDeviceConnector connector{bus.managerFactory(), loop, center, log};
};

TEST_F(HIDDeviceConnectorTest, ConnectSendsStartReportsPostsTheDeviceOnceThenRequestsEveryTenth) {
    connector.connectDataToDevice();
    EXPECT_THAT(bus.sentReports(), ElementsAre(connectReport, connectReport));
    ASSERT_THAT(names(), ElementsAre(HIDDeviceConnected::name));
    EXPECT_EQ(std::get<HIDDeviceConnected>(posted[0].notification).device, instrument);
    EXPECT_EQ(posted[0].sentBefore, 2u);

    loop.advance(99ms);
    EXPECT_EQ(bus.sentReports().size(), 2u);
    loop.advance(600s - 99ms);
    EXPECT_EQ(bus.countSent(0x31, 0x00), 6000u);
    EXPECT_EQ(bus.sentReports().size(), 6002u);
    EXPECT_EQ(bus.sentReports().back(), updateReport);

    // Connect again: one start report, the same device, and the new timer in the old one's place.
    connector.connectDataToDevice();
    EXPECT_EQ(bus.sentReports().back(), connectReport);
    loop.advance(1s);
    EXPECT_EQ(std::tuple(bus.countSent(0x80, 0x80), bus.countSent(0x31, 0x00), bus.liveManagers(),
                         posted.size()),
              std::tuple(3u, 6010u, 1u, 1u));
}

// Disconnect and unplugging end the session alike.
class SessionEndTest : public HIDDeviceConnectorTest, public ::testing::WithParamInterface<bool> {};

TEST_P(SessionEndTest, StopsTheRequestsAndPostsAnEmptyDeviceLast) {
    const bool unplug = GetParam();
    connector.connectDataToDevice();
    loop.advance(1s);
    bus.sendInputReport({0x04, 0x06});
    if (unplug) {
        bus.unplug();
    } else {
        connector.disconnectDataToDevice();
    }
    bus.sendInputReport({0x05, 0x06});
    loop.advance(10s);

    ASSERT_THAT(names(), ElementsAre(HIDDeviceConnected::name, HIDDeviceDataReceived::name,
                                     HIDDeviceDisconnected::name));
    // The session has let go of its device: the notification names none.
    EXPECT_EQ(std::get<HIDDeviceDisconnected>(posted[2].notification).id, "");
    EXPECT_EQ(std::tuple(posted[2].sentBefore, bus.sentReports().size(), bus.liveManagers(),
                         loop.activeTimers()),
              std::tuple(12u, 12u, 0u, 0u));

    // No session is left to end.
    connector.disconnectDataToDevice();
    EXPECT_EQ(posted.size(), 3u);
}

INSTANTIATE_TEST_SUITE_P(DisconnectOrUnplug, SessionEndTest, ::testing::Bool());

// The reading is the first two bytes, thousandths, low byte first.
TEST_F(HIDDeviceConnectorTest, EveryInputReportIsPostedAsItsReadingText) {
    connector.connectDataToDevice();
    // A short report (0xE7) overwrites only the bytes it has.
    for (const Bytes& report : {Bytes{0x04, 0x06, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF},
                                Bytes{0xED, 0x03, 1, 2, 3, 4, 5, 6, 7, 8}, Bytes{0xE7},
                                Bytes{0x10, 0x27}, Bytes{0xFF, 0xFF}}) {
        bus.sendInputReport(report);
    }
    std::vector<std::string> texts;
    for (const auto& p : posted) {
        if (const auto* data = std::get_if<HIDDeviceDataReceived>(&p.notification)) {
            texts.push_back(data->data);
        }
    }
    EXPECT_EQ(texts, (std::vector<std::string>{"1.540", "1.005", "0.999", "10.000", "65.535"}));
}

} // namespace
} // namespace velmora::test
