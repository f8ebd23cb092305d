#include "tests/support/scripted_deliveries.h"

namespace velmora::test {

void ScriptedDeliveries::deliver(std::function<void()> delivery) {
    const std::lock_guard lock(mutex_);
    deliveries_.push_back(std::move(delivery));
    wake_.notify_all();
}

void ScriptedDeliveries::later(std::function<void()> step) {
    const std::lock_guard lock(mutex_);
    steps_.push_back(std::move(step));
    wake_.notify_all();
}

void ScriptedDeliveries::run() {
    std::unique_lock lock(mutex_);
    while (true) {
        auto& from = !deliveries_.empty() ? deliveries_ : steps_;
        if (from.empty()) {
            if (stopped_) {
                return;
            }
            wake_.wait(lock);
            continue;
        }
        const auto task = std::move(from.front());
        from.pop_front();
        lock.unlock();
        task();
        lock.lock();
    }
}

void ScriptedDeliveries::stop() {
    const std::lock_guard lock(mutex_);
    stopped_ = true;
    wake_.notify_all();
}

} // namespace velmora::test
