#pragma once

// The instrument session's notifications, shared by the session that posts them and the window
// and tools that observe them.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace velmora {

// The instrument as the session found it: the identifiers it matched, and its product string when
// it has one.
struct MatchedHIDDevice {
    std::int64_t productId = 0;
    std::int64_t vendorId = 0;
    std::optional<std::string> name = std::nullopt;

    bool operator==(const MatchedHIDDevice&) const = default;
};

struct HIDDeviceConnected {
    static constexpr std::string_view name = "HIDDeviceConnected";
    MatchedHIDDevice device;
};

// The session has let go of its device by the time it says so, so its id is empty; the HID
// monitor names the removed device by its "LocationID" text.
struct HIDDeviceDisconnected {
    static constexpr std::string_view name = "HIDDeviceDisconnected";
    std::string id;
};

// One reading, as its text: "1.540".
struct HIDDeviceDataReceived {
    static constexpr std::string_view name = "HIDDeviceDataReceived";
    std::string data;
};

} // namespace velmora
