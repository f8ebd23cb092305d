#pragma once

// Word from udev that a hidraw device node came or went: on Linux, the hidapi watcher enumerates
// only then.

#include "device/hidapi/plug_notifier.h"

#include <memory>
#include <string>

namespace velmora {

// None, with the reason in error, when udev cannot be followed.
std::unique_ptr<hidapi::PlugNotifier> makeUdevHidrawNotifier(std::string& error);

} // namespace velmora
