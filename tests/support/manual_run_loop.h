#pragma once

// A run loop with a virtual clock: nothing happens until the test says so. runPending() runs the
// queued tasks (and those they queue); advance(ms) moves the clock, firing every timer that falls
// due in order and running the queued work after each firing, so "every 0.1 s for ten minutes" is
// checked in milliseconds.

#include "foundation/run_loop.h"

#include <chrono>
#include <cstdint>
#include <deque>
#include <map>
#include <mutex>

namespace velmora::test {

class ManualRunLoop final : public RunLoop {
public:
    void post(Task task) override;
    TimerId scheduleRepeating(std::chrono::milliseconds interval, Task task) override;
    void cancel(TimerId id) override;

    // Runs queued tasks until none is left; returns how many ran.
    std::size_t runPending();
    void advance(std::chrono::milliseconds by);

    std::chrono::milliseconds now() const { return now_; }
    std::size_t activeTimers() const { return timers_.size(); }
    std::size_t pendingTasks();

private:
    struct Timer {
        std::chrono::milliseconds interval;
        std::chrono::milliseconds due;
        Task task;
    };

    std::mutex mutex_; // post() may come from another thread
    std::deque<Task> queue_;
    std::map<TimerId, Timer> timers_;
    TimerId next_ = 1;
    std::chrono::milliseconds now_{0};
};

} // namespace velmora::test
