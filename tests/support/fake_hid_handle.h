#pragma once

// A device handle for a worker thread, scripted from the test's thread. read() hands out the
// queued results one by one, waiting up to its timeout for the next, as a device does; writes and
// the close are recorded, along with anything done out of turn.

#include "device/hid_device.h"
#include "device/hidapi/hid_handle.h"

#include <algorithm>
#include <condition_variable>
#include <deque>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

namespace velmora::test {

// What the test scripts and what the handle saw; read the record once the worker has stopped.
struct FakeHidScript {
    // none: the next read fails, as when the device is pulled out.
    void queue(std::optional<Bytes> result) {
        const std::lock_guard lock(mutex);
        results.push_back(std::move(result));
        changed.notify_all();
    }
    // False after a few seconds without.
    bool waitForWrites(std::size_t count) {
        std::unique_lock lock(mutex);
        return changed.wait_for(lock, std::chrono::seconds(5),
                                [&] { return writes.size() >= count; });
    }

    std::mutex mutex;
    std::condition_variable changed;
    std::deque<std::optional<Bytes>> results;
    bool reading = false;
    bool gone = false;
    // The record.
    std::vector<Bytes> writes;
    std::thread::id writerThread;
    int closes = 0;
    int faults = 0; // a close during a read; a read, write or close after the removal or the close
    std::chrono::milliseconds longestReadTimeout{0};
};

class FakeHidHandle final : public hidapi::HidHandle {
public:
    explicit FakeHidHandle(std::shared_ptr<FakeHidScript> script) : s_(std::move(script)) {}

    int write(std::span<const std::uint8_t> report) override {
        const std::lock_guard lock(s_->mutex);
        s_->faults += s_->gone || s_->closes > 0;
        s_->writes.emplace_back(report.begin(), report.end());
        s_->writerThread = std::this_thread::get_id();
        s_->changed.notify_all();
        return static_cast<int>(report.size());
    }

    int read(std::span<std::uint8_t> buffer, std::chrono::milliseconds timeout) override {
        std::unique_lock lock(s_->mutex);
        s_->faults += s_->gone || s_->closes > 0;
        s_->longestReadTimeout = std::max(s_->longestReadTimeout, timeout);
        s_->reading = true;
        s_->changed.wait_for(lock, timeout, [&] { return !s_->results.empty(); });
        s_->reading = false;
        if (s_->results.empty()) {
            return 0;
        }
        const auto result = std::move(s_->results.front());
        s_->results.pop_front();
        s_->gone = !result;
        const auto length = result ? std::min(buffer.size(), result->size()) : 0;
        std::copy_n(result.value_or(Bytes{}).begin(), length, buffer.begin());
        return result ? static_cast<int>(length) : -1;
    }

    void close() override {
        const std::lock_guard lock(s_->mutex);
        s_->faults += s_->reading || s_->closes > 0;
        ++s_->closes;
    }

private:
    std::shared_ptr<FakeHidScript> s_;
};

} // namespace velmora::test
