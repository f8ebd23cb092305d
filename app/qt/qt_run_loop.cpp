#include "app/qt/qt_run_loop.h"

#include <QMetaObject>
#include <QTimer>
#include <chrono>

namespace velmora {

QtRunLoop::QtRunLoop(QObject* context) : receiver_(std::make_unique<QObject>()) {
    receiver_->moveToThread(context->thread());
}

QtRunLoop::~QtRunLoop() {
    for (auto& [id, timer] : timers_) {
        delete timer;
    }
}

void QtRunLoop::post(Task task) {
    QMetaObject::invokeMethod(receiver_.get(), std::move(task), Qt::QueuedConnection);
}

RunLoop::TimerId QtRunLoop::scheduleRepeating(std::chrono::milliseconds interval, Task task) {
    auto* timer = new QTimer;
    timer->setTimerType(Qt::PreciseTimer);
    timer->setInterval(interval);
    QObject::connect(timer, &QTimer::timeout, timer, std::move(task));
    timer->start();
    const TimerId id = next_++;
    timers_.emplace(id, timer);
    return id;
}

void QtRunLoop::cancel(TimerId id) {
    const auto it = timers_.find(id);
    if (it == timers_.end()) {
        return;
    }
    // The timer may be cancelling itself from inside its own timeout: stop now, free later.
    it->second->stop();
    it->second->deleteLater();
    timers_.erase(it);
}

// The monotonic clock, as Qt's precise timers.
std::chrono::milliseconds QtRunLoop::now() const {
    return std::chrono::duration_cast<std::chrono::milliseconds>(
        std::chrono::steady_clock::now().time_since_epoch());
}

} // namespace velmora
