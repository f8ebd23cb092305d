#pragma once

// The one thread that touches an open device. hidapi is not thread-safe, so every write, every
// read and the close of a device happen on its worker. The loop's thread queues writes; the worker
// reads with a short timeout, so that it notices in time that it is told to stop, and hands what
// it reads back through RunLoop::post, so no logic runs off the loop's thread. A failed read is
// the device's removal: the worker posts it once and touches the device no more.

#include "device/hid_device.h"
#include "device/hidapi/hid_handle.h"
#include "foundation/run_loop.h"

#include <chrono>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <span>
#include <thread>

namespace velmora::hidapi {

class HidDeviceWorker {
public:
    // Both run on the loop's thread, and may drop the worker.
    struct Handlers {
        std::function<void(std::span<const std::uint8_t> report)> input;
        std::function<void()> removed;
    };

    // Long enough not to spin, short enough that stopping never holds up the window.
    static constexpr std::chrono::milliseconds readTimeout{20};

    HidDeviceWorker(std::unique_ptr<HidHandle> handle, RunLoop& runLoop, Handlers handlers);
    // Tells the thread to stop, waits for it, then closes the device: never during a read. What
    // it posted and the loop has not run yet is dropped.
    ~HidDeviceWorker();
    HidDeviceWorker(const HidDeviceWorker&) = delete;
    HidDeviceWorker& operator=(const HidDeviceWorker&) = delete;

    // Queues a report for the worker to write. Dropped once the device is gone.
    void write(Bytes report);

private:
    void run();

    std::unique_ptr<HidHandle> handle_;
    RunLoop& runLoop_;
    // Posted work reaches the handlers only while the worker lives.
    std::shared_ptr<const Handlers> handlers_;
    std::weak_ptr<const Handlers> weakHandlers_;

    std::mutex mutex_;
    std::deque<Bytes> writes_;
    bool stopping_ = false;

    std::thread thread_; // last: it starts once everything above is in place
};

} // namespace velmora::hidapi
