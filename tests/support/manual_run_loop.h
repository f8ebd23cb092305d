#pragma once

// A run loop with a virtual clock: nothing happens until the test says so. runPending() runs the
// queued tasks (and those they queue); advance(ms) moves the clock, firing every timer that falls
// due in order and running the queued work after each firing, so "every 0.1 s for ten minutes" is
// checked in milliseconds.

#include "foundation/run_loop.h"

#include <algorithm>
#include <cassert>
#include <chrono>
#include <deque>
#include <map>
#include <mutex>

namespace velmora::test {

class ManualRunLoop final : public RunLoop {
public:
    // May come from another thread.
    void post(Task task) override {
        const std::lock_guard lock(mutex_);
        queue_.push_back(std::move(task));
    }
    TimerId scheduleRepeating(std::chrono::milliseconds interval, Task task) override {
        assert(interval.count() > 0);
        timers_.emplace(next_, Timer{interval, now_ + interval, std::move(task)});
        return next_++;
    }
    void cancel(TimerId id) override { timers_.erase(id); }
    std::chrono::milliseconds now() const override { return now_; }

    // Runs queued tasks until none is left.
    void runPending() {
        for (;;) {
            std::unique_lock lock(mutex_);
            if (queue_.empty()) {
                return;
            }
            const Task task = std::move(queue_.front());
            queue_.pop_front();
            lock.unlock();
            task();
        }
    }

    void advance(std::chrono::milliseconds by) {
        const auto end = now_ + by;
        runPending();
        for (;;) {
            // The earliest due timer; ties fire in the order they were scheduled.
            const auto next =
                std::ranges::min_element(timers_, {}, [](auto& timer) { return timer.second.due; });
            if (next == timers_.end() || next->second.due > end) {
                break;
            }
            now_ = next->second.due;
            next->second.due += next->second.interval;
            const Task task = next->second.task; // a copy: the task may cancel its own timer
            task();
            runPending();
        }
        now_ = end;
    }

    std::size_t activeTimers() const { return timers_.size(); }

private:
    struct Timer {
        std::chrono::milliseconds interval;
        std::chrono::milliseconds due;
        Task task;
    };

    std::mutex mutex_;
    std::deque<Task> queue_;
    std::map<TimerId, Timer> timers_;
    TimerId next_ = 1;
    std::chrono::milliseconds now_{0};
};

} // namespace velmora::test
