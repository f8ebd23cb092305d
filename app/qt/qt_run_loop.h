#pragma once

// The application's run loop: Qt's event loop on the main thread. Posted tasks are queued calls
// (safe from any thread while the loop lives), timers are precise QTimers.

#include "foundation/run_loop.h"

#include <QObject>
#include <map>
#include <memory>

class QTimer;

namespace velmora {

class QtRunLoop final : public RunLoop {
public:
    // Tasks and timers run in the thread of context (the main thread's application object). Tasks
    // still queued when the loop goes are dropped.
    explicit QtRunLoop(QObject* context);
    ~QtRunLoop() override;

    void post(Task task) override;
    TimerId scheduleRepeating(std::chrono::milliseconds interval, Task task) override;
    void cancel(TimerId id) override;
    std::chrono::milliseconds now() const override;

private:
    // What posted tasks are queued on: the loop's own, so posting from another thread reads
    // nothing that the main thread may change meanwhile.
    const std::unique_ptr<QObject> receiver_;
    std::map<TimerId, QTimer*> timers_;
    TimerId next_ = 1;
};

} // namespace velmora
