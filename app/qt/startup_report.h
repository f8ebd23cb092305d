#pragma once

// --measure-startup: once the window has been painted for the first time and the set-up's
// queued work has run, prints how long that took since the given moment and how much memory the
// process then holds, and quits.

#include <chrono>
#include <functional>
#include <iosfwd>

class QWidget;

namespace velmora::qt {

// Runs task once the window has been painted for the first time and the work queued by then has
// run: for what the first paint does not need.
void afterFirstPaint(QWidget& window, std::function<void()> task);

void reportStartupThenQuit(QWidget& window, std::chrono::steady_clock::time_point started,
                           std::ostream& out);

} // namespace velmora::qt
