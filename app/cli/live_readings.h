#pragma once

// The read command's session with the instrument: Connect, each reading printed as the live
// reading field shows it (or only the steady ones), Disconnect.

#include "device/hid_device_connector.h"
#include "foundation/locale.h"
#include "foundation/log.h"

#include <iosfwd>
#include <optional>

namespace velmora::cli {

enum class SessionEnd {
    NoInstrument, // Connect found none; nothing was printed
    Unplugged,    // the instrument went away mid-stream
    Stopped,      // count readings printed, or Ctrl-C or SIGTERM
};

struct PrintedReadings {
    std::optional<int> count; // readings printed before the session ends; none: no end
    bool json = false;
    // One reading each time the stream settles at a new value, with the window's spread and the
    // time since Connect in JSON.
    bool steady = false;
};

// Runs the session on its own event loop until count readings are printed (or for ever without a
// count), the instrument is unplugged, or the command is told to end; then disconnects.
SessionEnd printLiveReadings(const HIDDeviceConnector::ManagerFactory& managers, Log& log,
                             const Locale& locale, const PrintedReadings& options,
                             std::ostream& out);

} // namespace velmora::cli
