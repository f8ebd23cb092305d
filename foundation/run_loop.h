#pragma once

// The main thread's loop of deferred work: tasks queued to run after the current event, and
// repeating timers. The application runs it on Qt's event loop, the command-line tool on a plain
// blocking loop, the tests on a manual loop with a virtual clock.

#include <chrono>
#include <cstdint>
#include <functional>

namespace velmora {

class RunLoop {
public:
    using Task = std::function<void()>;
    using TimerId = std::uint64_t;

    virtual ~RunLoop() = default;

    // Queues a task to run on the loop's thread after the current one. Safe to call from any
    // thread: this is how worker threads hand their results to the main thread.
    virtual void post(Task task) = 0;

    // Runs task every interval, first after one interval, until cancelled. Loop thread only.
    virtual TimerId scheduleRepeating(std::chrono::milliseconds interval, Task task) = 0;

    // Stops a timer; an unknown or already cancelled id is ignored. Loop thread only.
    virtual void cancel(TimerId id) = 0;

    // The clock the timers run on, from a start of the loop's choosing: what tells how long a
    // reading has held still. Loop thread only.
    virtual std::chrono::milliseconds now() const = 0;
};

} // namespace velmora
