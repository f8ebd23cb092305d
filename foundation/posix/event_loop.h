#pragma once

// A plain blocking run loop for a program without a GUI toolkit: velmora-cli runs the instrument
// session on it. run() takes over the calling thread, which becomes the loop's thread, and runs
// posted tasks and due timers there until stop().
//
// Its clock is the machine's steady clock, or one that skips ahead to the next timer whenever
// nothing is left to do: then a session of minutes on the simulated instrument plays in moments,
// as the tests run it.

#include "foundation/run_loop.h"

#include <atomic>
#include <chrono>
#include <deque>
#include <map>
#include <mutex>

namespace velmora {

class EventLoop final : public RunLoop {
public:
    enum class Time { real, fastForward };

    explicit EventLoop(Time time = Time::real);
    ~EventLoop() override;
    EventLoop(const EventLoop&) = delete;
    EventLoop& operator=(const EventLoop&) = delete;

    void post(Task task) override;
    // On the steady clock. A timer that falls behind skips the ticks it missed rather than
    // firing them in a burst.
    TimerId scheduleRepeating(std::chrono::milliseconds interval, Task task) override;
    void cancel(TimerId id) override;
    std::chrono::milliseconds now() const override;

    // Returns once stop() was called, after the task or timer in hand; at once if stop() came
    // before. Work still queued stays for the next run().
    void run();
    // Safe from any thread and from a signal handler (Ctrl-C).
    void stop();
    // Runs the queued tasks, and those they queue, without waiting and without timers: a
    // command that drives the window runs the window's queued work after each gesture so.
    void runPending();

private:
    using Clock = std::chrono::steady_clock;

    struct Timer {
        std::chrono::milliseconds interval;
        Clock::time_point due;
        Task task;
    };

    Clock::time_point clock() const { return Clock::now() + skipped_; }
    std::map<TimerId, Timer>::iterator earliestTimer();
    bool runOneTask();
    bool fireOneDueTimer();
    void waitForWork();
    void wake();

    const Time time_;
    Clock::duration skipped_{}; // how far a fast-forward clock is ahead of the steady clock
    int wakeRead_ = -1;
    int wakeWrite_ = -1;
    std::atomic<bool> stopRequested_{false};
    static_assert(std::atomic<bool>::is_always_lock_free, "stop() must be signal-safe");

    std::mutex mutex_; // guards queue_ only: timers belong to the loop's thread
    std::deque<Task> queue_;
    std::map<TimerId, Timer> timers_;
    TimerId next_ = 1;
};

} // namespace velmora
