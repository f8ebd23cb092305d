#include "app/cli/stop_signal.h"

#include <atomic>
#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace velmora::cli {

namespace {

std::atomic<StopSignal*> interruptTarget = nullptr;
static_assert(std::atomic<StopSignal*>::is_always_lock_free, "read in a signal handler");

void requestStop(int /*signal*/) {
    if (StopSignal* stop = interruptTarget.load()) {
        stop->request();
    }
}

} // namespace

// A pipe rather than a condition variable, because writing to it is all that a signal handler may
// safely do.
StopSignal::StopSignal() {
    if (pipe(fds_.data()) != 0) {
        fds_ = {-1, -1};
        return;
    }
    // Requests beyond what the pipe holds are as good as lost: one is enough to wake the waiter.
    fcntl(fds_[1], F_SETFL, fcntl(fds_[1], F_GETFL) | O_NONBLOCK);
}

StopSignal::~StopSignal() {
    for (const int fd : fds_) {
        if (fd >= 0) {
            close(fd);
        }
    }
}

void StopSignal::request() noexcept {
    const char byte = 1;
    [[maybe_unused]] const auto written = write(fds_[1], &byte, 1);
}

void StopSignal::wait() {
    char byte = 0;
    while (read(fds_[0], &byte, 1) < 0 && errno == EINTR) {
    }
}

InterruptRequestsStop::InterruptRequestsStop(StopSignal& stop) {
    interruptTarget = &stop;
    struct sigaction action {};
    action.sa_handler = requestStop;
    // Once asked, the default comes back: should stopping ever hang, a second Ctrl-C still ends
    // the process.
    action.sa_flags = SA_RESETHAND;
    sigemptyset(&action.sa_mask);
    sigaction(SIGINT, &action, &previousInterrupt_);
    sigaction(SIGTERM, &action, &previousTerminate_);
}

InterruptRequestsStop::~InterruptRequestsStop() {
    sigaction(SIGINT, &previousInterrupt_, nullptr);
    sigaction(SIGTERM, &previousTerminate_, nullptr);
    interruptTarget = nullptr;
}

} // namespace velmora::cli
