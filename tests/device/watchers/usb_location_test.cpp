#include "device/usb_location.h"

#include <array>
#include <gtest/gtest.h>
#include <set>
#include <vector>

namespace velmora {
namespace {

std::optional<std::uint64_t> idOf(std::uint8_t bus, std::vector<std::uint8_t> ports) {
    return usbLocationId(bus, ports);
}

TEST(UsbLocationId, PacksTheBusThenThePortsFromTheRootDown) {
    EXPECT_EQ(idOf(3, {1, 4, 2}), 0x0301040200000000u);
    EXPECT_EQ(idOf(1, {}), 0x0100000000000000u); // a root hub
    EXPECT_EQ(idOf(255, {255, 255, 255, 255, 255, 255, 255}), 0xFFFFFFFFFFFFFFFFu);
}

TEST(UsbLocationId, EveryPlaceOnTheBusHasItsOwn) {
    const std::vector<std::pair<std::uint8_t, std::vector<std::uint8_t>>> places{
        {1, {}}, {1, {1}}, {1, {1, 1}}, {1, {2}}, {2, {1}}, {1, {1, 2}}, {1, {2, 1}}};
    std::set<std::uint64_t> ids;
    for (const auto& [bus, ports] : places) {
        ids.insert(idOf(bus, ports).value());
    }
    EXPECT_EQ(ids.size(), places.size());
}

TEST(UsbLocationId, NoneForAPathUsbCannotHave) {
    EXPECT_EQ(idOf(1, {1, 2, 3, 4, 5, 6, 7, 8}), std::nullopt);
    EXPECT_EQ(idOf(1, {1, 0, 3}), std::nullopt);
}

} // namespace
} // namespace velmora
