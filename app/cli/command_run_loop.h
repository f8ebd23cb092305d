#pragma once

// The run loop of a command that drives the window: the work the window queues runs when the
// command has finished a gesture, as the application's loop runs it after the current event.
// These commands start no timers.

#include "foundation/run_loop.h"

#include <deque>
#include <mutex>

namespace velmora::cli {

class CommandRunLoop final : public RunLoop {
public:
    void post(Task task) override;
    // Timers need a loop that waits; asking this one for a timer is a programming error.
    TimerId scheduleRepeating(std::chrono::milliseconds interval, Task task) override;
    void cancel(TimerId id) override;

    // Runs queued tasks, and those they queue, until none is left.
    void runPending();

private:
    std::mutex mutex_;
    std::deque<Task> queue_;
};

} // namespace velmora::cli
