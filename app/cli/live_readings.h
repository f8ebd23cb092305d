#pragma once

// The read command's session with the instrument: Connect, each reading printed as the live
// reading field shows it, Disconnect.

#include "device/hid_device_connector.h"
#include "foundation/locale.h"
#include "foundation/log.h"

#include <iosfwd>
#include <optional>

namespace velmora::cli {

// Runs the session on its own event loop until count readings are printed (or for ever without a
// count) or until Ctrl-C, then disconnects. False, with nothing printed, when Connect found no
// instrument.
bool printLiveReadings(const HIDDeviceConnector::ManagerFactory& managers, Log& log,
                       const Locale& locale, std::optional<int> count, bool json,
                       std::ostream& out);

} // namespace velmora::cli
