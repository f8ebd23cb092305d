#pragma once

// Word that HID devices may have come or gone, so that the hidapi watcher enumerates them only
// then rather than every second. On Linux it comes from udev (device/udev/).

namespace velmora::hidapi {

class PlugNotifier {
public:
    virtual ~PlugNotifier() = default;
    // Whether a device came or went since the last call. Never waits.
    virtual bool changed() = 0;
};

} // namespace velmora::hidapi
