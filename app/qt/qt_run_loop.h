#pragma once

// The application's run loop: Qt's event loop on the main thread. Posted tasks are queued calls
// (safe from any thread), timers are precise QTimers.

#include "foundation/run_loop.h"

#include <QObject>
#include <QPointer>
#include <map>
#include <memory>

class QTimer;

namespace velmora {

class QtRunLoop final : public RunLoop {
public:
    // Tasks and timers run in the thread of context (the main thread's application object).
    explicit QtRunLoop(QObject* context);
    ~QtRunLoop() override;

    void post(Task task) override;
    TimerId scheduleRepeating(std::chrono::milliseconds interval, Task task) override;
    void cancel(TimerId id) override;

private:
    QPointer<QObject> context_;
    std::map<TimerId, QTimer*> timers_;
    TimerId next_ = 1;
};

} // namespace velmora
