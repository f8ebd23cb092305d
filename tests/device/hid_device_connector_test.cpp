#include "device/device_notifications.h"
#include "device/hid_device_connector.h"
#include "tests/support/fake_hid.h"
#include "tests/support/manual_run_loop.h"
#include "tests/support/notification_recorder.h"
#include "tests/support/recording_log.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <thread>

namespace velmora::test {
namespace {

using namespace std::chrono_literals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

const SentReport connectReport{0, {0x80, 0x80, 0, 0, 0, 0, 0, 0}};
const SentReport updateReport{0, {0x31, 0x00, 0, 0, 0, 0, 0, 0}};
const Value emptyDevice = Dictionary{{"device", Dictionary{}}};

class HIDDeviceConnectorTest : public ::testing::Test {
protected:
    void SetUp() override {
        recorder.onPost = [this](const Notification& n) {
            sentAtPost[n.name] = bus.sentReports().size();
        };
    }

    ManualRunLoop loop;
    NotificationCenter center;
    RecordingLog log;
    FakeHidBus bus;
    NotificationRecorder recorder{
        center, {HIDDeviceConnected, HIDDeviceDisconnected, HIDDeviceDataReceived}};
    // How many reports had been sent when each notification was last posted.
    std::map<std::string, std::size_t> sentAtPost;
    HIDDeviceConnector connector{bus.managerFactory(), loop, center, log};
};

TEST_F(HIDDeviceConnectorTest, ConnectSendsTwoStartReportsPostsTheDeviceThenRequestsEveryTenth) {
    connector.connectDataToDevice();

    EXPECT_THAT(bus.calls(),
                ElementsAre("create", "schedule", "open", "match 04d8:f9ff", "copyDevices",
                            "registerInput", "product", "registerMatching", "registerRemoval"));
    EXPECT_THAT(bus.sentReports(), ElementsAre(connectReport, connectReport));
    ASSERT_THAT(recorder.names(), ElementsAre(HIDDeviceConnected));
    EXPECT_EQ(sentAtPost[HIDDeviceConnected], 2u);
    EXPECT_EQ(recorder.notifications()[0].object,
              Value(Dictionary{{"device", Dictionary{{"ProductID", 63999},
                                                     {"VendorID", 1240},
                                                     {"name", "Velmora Refractometer"}}}}));
    EXPECT_THAT(log.infoLines,
                ElementsAre("[INFO] Send (50,100) is Data to Device", "[INFO] Connect >> "));

    loop.advance(99ms);
    EXPECT_EQ(bus.sentReports().size(), 2u);
    loop.advance(1ms);
    EXPECT_EQ(bus.sentReports().back(), updateReport);
    loop.advance(600s - 100ms);
    EXPECT_EQ(bus.countSent(0x31, 0x00), 6000u);
    EXPECT_EQ(bus.sentReports().size(), 6002u);
    EXPECT_EQ(recorder.notifications().size(), 1u);
}

TEST_F(HIDDeviceConnectorTest, ConnectWithoutTheInstrumentSendsAndPostsNothingUntilTheNextConnect) {
    bus.instrumentAttached = false;
    connector.connectDataToDevice();
    loop.advance(10s);
    EXPECT_THAT(bus.sentReports(), IsEmpty());
    EXPECT_THAT(recorder.notifications(), IsEmpty());
    EXPECT_THAT(log.infoLines, ElementsAre("[INFO] Connect >> "));
    EXPECT_EQ(loop.activeTimers(), 1u);

    // Plugging it in does not start the data flow; the next Connect does.
    bus.productName.reset();
    bus.attach();
    loop.advance(10s);
    EXPECT_THAT(bus.sentReports(), IsEmpty());
    connector.connectDataToDevice();
    ASSERT_THAT(recorder.names(), ElementsAre(HIDDeviceConnected));
    // A device without a product string has no "name".
    EXPECT_EQ(recorder.notifications()[0].object,
              Value(Dictionary{{"device", Dictionary{{"ProductID", 63999}, {"VendorID", 1240}}}}));
}

TEST_F(HIDDeviceConnectorTest, ConnectAgainStartsANewSessionWithoutANewNotification) {
    connector.connectDataToDevice();
    loop.advance(1s);
    connector.connectDataToDevice();
    EXPECT_EQ(bus.countSent(0x80, 0x80), 3u);
    EXPECT_EQ(bus.sentReports().back(), connectReport);
    EXPECT_EQ(bus.liveManagers(), 1u);
    // The new timer replaced the old one: still one request a tick.
    loop.advance(1s);
    EXPECT_EQ(bus.countSent(0x31, 0x00), 20u);

    // With the instrument gone unnoticed, Connect falls silently to searching: the window keeps
    // showing Connected until the session ends.
    bus.instrumentAttached = false;
    connector.connectDataToDevice();
    loop.advance(1s);
    EXPECT_EQ(bus.sentReports().size(), 23u);
    EXPECT_THAT(recorder.names(), ElementsAre(HIDDeviceConnected));
    EXPECT_THAT(log.infoLines,
                ElementsAre("[INFO] Send (50,100) is Data to Device", "[INFO] Connect >> ",
                            "[INFO] Connect >> ", "[INFO] Connect >> "));
}

TEST_F(HIDDeviceConnectorTest, DisconnectBeforeAnyConnectPostsNothing) {
    connector.disconnectDataToDevice();
    EXPECT_THAT(recorder.notifications(), IsEmpty());
    EXPECT_THAT(bus.calls(), IsEmpty());
    EXPECT_THAT(log.infoLines, ElementsAre("[INFO] terminated >> "));
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

    ASSERT_THAT(recorder.names(),
                ElementsAre(HIDDeviceConnected, HIDDeviceDataReceived, HIDDeviceDisconnected));
    EXPECT_EQ(recorder.notifications()[2].object, emptyDevice);
    EXPECT_EQ(bus.sentReports().size(), 12u);
    EXPECT_EQ(sentAtPost[HIDDeviceDisconnected], 12u);
    EXPECT_EQ(bus.liveManagers(), 0u);
    EXPECT_EQ(loop.activeTimers(), 0u);
    EXPECT_EQ(log.infoLines.back(), unplug ? "[INFO] Connect >> " : "[INFO] terminated >> ");

    // No session is left to end.
    connector.disconnectDataToDevice();
    EXPECT_EQ(recorder.notifications().size(), 3u);
}

INSTANTIATE_TEST_SUITE_P(DisconnectOrUnplug, SessionEndTest, ::testing::Bool());

TEST_F(HIDDeviceConnectorTest, EveryInputReportIsPostedAsItsReadingText) {
    connector.connectDataToDevice();
    bus.sendInputReport({0x04, 0x06, 0, 0, 0, 0, 0, 0});
    bus.sendInputReport({0x04, 0x06, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF});
    bus.sendInputReport({0xED, 0x03, 1, 2, 3, 4, 5, 6, 7, 8});
    // A short report overwrites only the bytes it has.
    bus.sendInputReport({0xE7});

    std::vector<Value> data;
    for (const auto& n : recorder.notifications()) {
        if (n.name == HIDDeviceDataReceived) {
            data.push_back(*n.object["data"]);
        }
    }
    EXPECT_THAT(data, ElementsAre("1.540", "1.540", "1.005", "0.999"));
}

TEST_F(HIDDeviceConnectorTest, ApplicationTerminatedSilencesTheSessionWithoutAWord) {
    connector.applicationTerminated();
    EXPECT_THAT(bus.calls(), IsEmpty());

    connector.connectDataToDevice();
    loop.advance(200ms);
    connector.applicationTerminated();
    EXPECT_THAT(std::vector(bus.calls().end() - 3, bus.calls().end()),
                ElementsAre("unregisterMatching", "unregisterRemoval", "unschedule"));
    bus.unplug();
    loop.advance(10s);
    EXPECT_EQ(bus.sentReports().size(), 4u);
    EXPECT_THAT(recorder.names(), ElementsAre(HIDDeviceConnected));
}

TEST(HIDDeviceConnectorShared, OneConnectorForAllThreadsPostingOnTheDefaultCentre) {
    // The shared connector is never destroyed, so neither is what it was given.
    static auto* const loop = new ManualRunLoop;
    static auto* const log = new RecordingLog;
    static auto* const bus = new FakeHidBus;
    HIDDeviceConnector::setUpSharedInstance(bus->managerFactory(), *loop, *log);

    std::vector<HIDDeviceConnector*> seen(4);
    std::vector<std::thread> threads;
    for (auto& slot : seen) {
        threads.emplace_back([&slot] { slot = &HIDDeviceConnector::sharedInstance(); });
    }
    for (auto& t : threads) {
        t.join();
    }
    EXPECT_THAT(seen, ::testing::Each(&HIDDeviceConnector::sharedInstance()));

    NotificationRecorder recorder(NotificationCenter::defaultCenter(),
                                  {HIDDeviceConnected, HIDDeviceDisconnected});
    HIDDeviceConnector::sharedInstance().connectDataToDevice();
    loop->advance(1s);
    HIDDeviceConnector::sharedInstance().disconnectDataToDevice();
    EXPECT_THAT(recorder.names(), ElementsAre(HIDDeviceConnected, HIDDeviceDisconnected));
    EXPECT_EQ(bus->countSent(0x31, 0x00), 10u);
}

} // namespace
} // namespace velmora::test
