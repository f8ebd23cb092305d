#include "foundation/notification_center.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

TEST(NotificationCenter, DeliversToObserversOfThatNameOnly) {
    NotificationCenter center;
    std::vector<std::string> seen;
    center.addObserver("HIDDeviceDataReceived", [&](const Notification& n) {
        seen.push_back(*(*n.object["data"]).asString());
    });
    center.addObserver("HIDDeviceConnected",
                       [&](const Notification&) { seen.push_back("connected"); });

    center.post("HIDDeviceDataReceived", Dictionary{{"data", "1.540"}});
    center.post("Unrelated");
    EXPECT_EQ(seen, std::vector<std::string>{"1.540"});
}

TEST(NotificationCenter, RemovedObserverHearsNothingAndObserversMayRemoveThemselves) {
    NotificationCenter center;
    int calls = 0;
    NotificationCenter::Token token = 0;
    token = center.addObserver("X", [&](const Notification&) {
        ++calls;
        center.removeObserver(token);
    });
    center.post("X");
    center.post("X");
    EXPECT_EQ(calls, 1);
}

TEST(Value, DictionaryKeepsInsertionOrderAndReplacesInPlace) {
    Dictionary d;
    d.set("ProductID", 63999);
    d.set("VendorID", 1240);
    d.set("ProductID", 1);
    ASSERT_EQ(d.size(), 2u);
    EXPECT_EQ(d.entries()[0].first, "ProductID");
    EXPECT_EQ(Value(Dictionary{{"device", d}}).describe(),
              R"({"device":{"ProductID":1,"VendorID":1240}})");
    EXPECT_EQ(Value(Dictionary{}), Value(Dictionary{}));
    EXPECT_NE(Value(Dictionary{{"a", 1}}), Value(Dictionary{{"a", "1"}}));
}

} // namespace
} // namespace velmora
