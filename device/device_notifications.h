#pragma once

// The names of the instrument session's notifications, shared by the session that posts them and
// the window and tools that observe them. Each object is a dictionary with one key: "device" for
// the two connection notifications, "data" (the reading text) for a reading.

#include <string>

namespace velmora {

inline const std::string HIDDeviceConnected = "HIDDeviceConnected";
inline const std::string HIDDeviceDisconnected = "HIDDeviceDisconnected";
inline const std::string HIDDeviceDataReceived = "HIDDeviceDataReceived";

} // namespace velmora
