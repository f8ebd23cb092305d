#include "app/cli/command_run_loop.h"

#include <cassert>

namespace velmora::cli {

void CommandRunLoop::post(Task task) {
    const std::lock_guard lock(mutex_);
    queue_.push_back(std::move(task));
}

RunLoop::TimerId CommandRunLoop::scheduleRepeating(std::chrono::milliseconds, Task) {
    assert(false && "a window command starts no timer");
    return 0;
}

void CommandRunLoop::cancel(TimerId) {}

void CommandRunLoop::runPending() {
    for (;;) {
        Task task;
        {
            const std::lock_guard lock(mutex_);
            if (queue_.empty()) {
                return;
            }
            task = std::move(queue_.front());
            queue_.pop_front();
        }
        task();
    }
}

} // namespace velmora::cli
