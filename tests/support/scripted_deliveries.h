#pragma once

// The delivery thread of a scripted watcher: what the watcher queues is delivered in order, and
// each of the test's later() steps runs once everything queued before it has been delivered.
// run() returns when stop() has come and nothing is left, so a test that calls stop() first runs
// its whole script on its own thread.

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>

namespace velmora::test {

class ScriptedDeliveries {
public:
    // Both safe from any thread, and from a delivery or a step.
    void deliver(std::function<void()> delivery);
    void later(std::function<void()> step);

    void run();
    void stop();

private:
    std::mutex mutex_;
    std::condition_variable wake_;
    std::deque<std::function<void()>> deliveries_;
    std::deque<std::function<void()>> steps_;
    bool stopped_ = false;
};

} // namespace velmora::test
