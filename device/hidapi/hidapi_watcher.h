#pragma once

// The HID watchers' HidWatcher over hidapi. hidapi tells of no device coming or going, so the
// watcher finds out for itself, on the thread that runs it: it enumerates the devices whenever its
// notifier has word of a change and, without a notifier, every second. Each device reported is
// opened and read by a worker thread of its own, which hands the reports back to that thread.

#include "device/hid_watcher.h"
#include "device/hidapi/plug_notifier.h"

#include <iosfwd>
#include <memory>

namespace velmora::hidapi {

// Devices that cannot be opened are still reported, and told of on diagnostics.
std::unique_ptr<HidWatcher> makeHidapiWatcher(std::unique_ptr<PlugNotifier> notifier,
                                              std::ostream& diagnostics);

} // namespace velmora::hidapi
