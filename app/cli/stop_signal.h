#pragma once

// How a long-running command learns that it is to end: a wake-up that one thread waits for and any
// thread, or a signal handler, gives.

#include <array>
#include <signal.h>

namespace velmora::cli {

class StopSignal {
public:
    StopSignal();
    StopSignal(const StopSignal&) = delete;
    StopSignal& operator=(const StopSignal&) = delete;
    ~StopSignal();

    // False when the system gave no pipe to wait on.
    bool valid() const { return fds_[0] >= 0; }
    // Safe from any thread and from a signal handler.
    void request() noexcept;
    // Returns once request() has been called, before or during the wait.
    void wait();

private:
    std::array<int, 2> fds_{-1, -1};
};

// While it lives, SIGINT (Ctrl-C) and SIGTERM request the stop instead of ending the process.
class InterruptRequestsStop {
public:
    explicit InterruptRequestsStop(StopSignal& stop);
    InterruptRequestsStop(const InterruptRequestsStop&) = delete;
    InterruptRequestsStop& operator=(const InterruptRequestsStop&) = delete;
    ~InterruptRequestsStop();

private:
    struct sigaction previousInterrupt_ {};
    struct sigaction previousTerminate_ {};
};

} // namespace velmora::cli
