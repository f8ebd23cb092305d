#include "foundation/posix/event_loop.h"

#include <algorithm>
#include <cassert>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

namespace velmora {

// The loop sleeps in poll() on a pipe; post() and stop() write a byte to it to wake the loop. A
// write to a pipe is one of the few things a signal handler may do.
EventLoop::EventLoop(Time time) : time_(time) {
    int fds[2];
    if (pipe(fds) != 0) {
        std::perror("velmora: cannot create the event loop");
        std::abort();
    }
    wakeRead_ = fds[0];
    wakeWrite_ = fds[1];
    for (const int fd : fds) {
        fcntl(fd, F_SETFL, fcntl(fd, F_GETFL) | O_NONBLOCK);
        fcntl(fd, F_SETFD, FD_CLOEXEC);
    }
}

EventLoop::~EventLoop() {
    close(wakeRead_);
    close(wakeWrite_);
}

void EventLoop::post(Task task) {
    {
        const std::lock_guard lock(mutex_);
        queue_.push_back(std::move(task));
    }
    wake();
}

RunLoop::TimerId EventLoop::scheduleRepeating(std::chrono::milliseconds interval, Task task) {
    assert(interval.count() > 0);
    const TimerId id = next_++;
    timers_.emplace(id, Timer{interval, clock() + interval, std::move(task)});
    return id;
}

void EventLoop::cancel(TimerId id) {
    timers_.erase(id);
}

std::chrono::milliseconds EventLoop::now() const {
    return std::chrono::duration_cast<std::chrono::milliseconds>(clock().time_since_epoch());
}

void EventLoop::run() {
    while (!stopRequested_.exchange(false)) {
        // One task, then one due timer: neither starves the other.
        const bool ranTask = runOneTask();
        const bool firedTimer = !stopRequested_.load() && fireOneDueTimer();
        if (!ranTask && !firedTimer) {
            waitForWork();
        }
    }
}

void EventLoop::stop() {
    stopRequested_.store(true);
    wake();
}

void EventLoop::runPending() {
    while (runOneTask()) {
    }
}

bool EventLoop::runOneTask() {
    Task task;
    {
        const std::lock_guard lock(mutex_);
        if (queue_.empty()) {
            return false;
        }
        task = std::move(queue_.front());
        queue_.pop_front();
    }
    task();
    return true;
}

std::map<RunLoop::TimerId, EventLoop::Timer>::iterator EventLoop::earliestTimer() {
    return std::min_element(timers_.begin(), timers_.end(),
                            [](auto& a, auto& b) { return a.second.due < b.second.due; });
}

bool EventLoop::fireOneDueTimer() {
    const auto now = clock();
    const auto earliest = earliestTimer();
    if (earliest == timers_.end() || earliest->second.due > now) {
        return false;
    }
    Timer& timer = earliest->second;
    while (timer.due <= now) {
        timer.due += timer.interval;
    }
    // A copy: the task may cancel its own timer.
    const Task task = timer.task;
    task();
    return true;
}

void EventLoop::waitForWork() {
    int timeoutMs = -1;
    const auto earliest = earliestTimer();
    if (earliest != timers_.end()) {
        const auto ahead = earliest->second.due - clock();
        if (time_ == Time::fastForward) {
            skipped_ += std::max(ahead, Clock::duration::zero());
            timeoutMs = 0;
        } else {
            const auto wait = std::chrono::ceil<std::chrono::milliseconds>(ahead);
            timeoutMs = static_cast<int>(std::max<std::chrono::milliseconds::rep>(wait.count(), 0));
        }
    }
    pollfd wakeUp{wakeRead_, POLLIN, 0};
    poll(&wakeUp, 1, timeoutMs);
    char drained[64];
    while (read(wakeRead_, drained, sizeof drained) > 0) {
    }
}

void EventLoop::wake() {
    // May run in a signal handler: keep the interrupted code's errno.
    const int savedErrno = errno;
    const char byte = 1;
    // A full pipe already holds a wake-up, so a failed write loses nothing.
    [[maybe_unused]] const auto written = write(wakeWrite_, &byte, 1);
    errno = savedErrno;
}

} // namespace velmora
