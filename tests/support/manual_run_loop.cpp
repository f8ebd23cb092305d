#include "tests/support/manual_run_loop.h"

#include <cassert>

namespace velmora::test {

void ManualRunLoop::post(Task task) {
    const std::lock_guard lock(mutex_);
    queue_.push_back(std::move(task));
}

RunLoop::TimerId ManualRunLoop::scheduleRepeating(std::chrono::milliseconds interval, Task task) {
    assert(interval.count() > 0);
    const TimerId id = next_++;
    timers_.emplace(id, Timer{interval, now_ + interval, std::move(task)});
    return id;
}

void ManualRunLoop::cancel(TimerId id) {
    timers_.erase(id);
}

std::size_t ManualRunLoop::pendingTasks() {
    const std::lock_guard lock(mutex_);
    return queue_.size();
}

std::size_t ManualRunLoop::runPending() {
    std::size_t ran = 0;
    for (;;) {
        Task task;
        {
            const std::lock_guard lock(mutex_);
            if (queue_.empty()) {
                return ran;
            }
            task = std::move(queue_.front());
            queue_.pop_front();
        }
        task();
        ++ran;
    }
}

void ManualRunLoop::advance(std::chrono::milliseconds by) {
    const auto end = now_ + by;
    runPending();
    for (;;) {
        // The earliest due timer; ties fire in the order they were scheduled.
        auto next = timers_.end();
        for (auto it = timers_.begin(); it != timers_.end(); ++it) {
            if (next == timers_.end() || it->second.due < next->second.due) {
                next = it;
            }
        }
        if (next == timers_.end() || next->second.due > end) {
            break;
        }
        now_ = next->second.due;
        next->second.due += next->second.interval;
        // Copy: the task may cancel its own timer.
        const Task task = next->second.task;
        task();
        runPending();
    }
    now_ = end;
}

} // namespace velmora::test
