#pragma once

// --measure-startup: once the window has been painted for the first time and the set-up's
// queued work has run, prints how long that took since the given moment and how much memory the
// process then holds, and quits.

#include <chrono>
#include <iosfwd>

class QWidget;

namespace velmora::qt {

void reportStartupThenQuit(QWidget& window, std::chrono::steady_clock::time_point started,
                           std::ostream& out);

} // namespace velmora::qt
