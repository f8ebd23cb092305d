#include "device/hidapi/hid_device_worker.h"

#include <array>

namespace velmora::hidapi {

HidDeviceWorker::HidDeviceWorker(std::unique_ptr<HidHandle> handle, RunLoop& runLoop,
                                 Handlers handlers)
    : handle_(std::move(handle)), runLoop_(runLoop),
      handlers_(std::make_shared<const Handlers>(std::move(handlers))), weakHandlers_(handlers_),
      thread_([this] { run(); }) {}

HidDeviceWorker::~HidDeviceWorker() {
    {
        const std::lock_guard lock(mutex_);
        stopping_ = true;
    }
    thread_.join();
    handle_->close();
}

void HidDeviceWorker::write(Bytes report) {
    const std::lock_guard lock(mutex_);
    if (!stopping_) {
        writes_.push_back(std::move(report));
    }
}

void HidDeviceWorker::run() {
    // Large enough for any full-speed HID report.
    std::array<std::uint8_t, 64> buffer{};
    for (;;) {
        std::deque<Bytes> writes;
        {
            const std::lock_guard lock(mutex_);
            if (stopping_) {
                return;
            }
            writes.swap(writes_);
        }
        for (const auto& report : writes) {
            // Unchecked: a lost request is only an unanswered one.
            handle_->write(report);
        }

        const int length = handle_->read(buffer, readTimeout);
        if (length < 0) {
            {
                const std::lock_guard lock(mutex_);
                stopping_ = true;
                writes_.clear();
            }
            runLoop_.post([handlers = weakHandlers_] {
                if (const auto h = handlers.lock()) {
                    h->removed();
                }
            });
            return;
        }
        if (length > 0) {
            runLoop_.post([handlers = weakHandlers_,
                           report = Bytes(buffer.begin(), buffer.begin() + length)] {
                if (const auto h = handlers.lock()) {
                    h->input(report);
                }
            });
        }
    }
}

} // namespace velmora::hidapi
