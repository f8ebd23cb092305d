#pragma once

// A device handle for a worker thread, scripted from the test's thread. read() hands out the
// queued results one by one, waiting up to its timeout for the next, as a device does; writes and
// the close are recorded, along with anything done out of turn.

#include "device/hidapi/hid_handle.h"
#include "foundation/value.h"

#include <condition_variable>
#include <deque>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

namespace velmora::test {

class FakeHidScript {
public:
    struct Record {
        std::vector<Bytes> writes;
        std::thread::id writerThread;
        int closes = 0;
        // A close during a read; a read, write or close after the removal or the close.
        int faults = 0;
        std::chrono::milliseconds longestReadTimeout{0};
    };

    void queueInputReport(Bytes report);
    // The next read fails: the device was pulled out.
    void queueRemoval();
    // Waits until that many reports were written; false after a few seconds without.
    bool waitForWrites(std::size_t count);
    Record record() const;

private:
    friend class FakeHidHandle;

    mutable std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<std::optional<Bytes>> results_; // none: the removal
    bool reading_ = false;
    bool gone_ = false;
    Record record_;
};

class FakeHidHandle final : public hidapi::HidHandle {
public:
    explicit FakeHidHandle(std::shared_ptr<FakeHidScript> script) : script_(std::move(script)) {}

    int write(std::span<const std::uint8_t> report) override;
    int read(std::span<std::uint8_t> buffer, std::chrono::milliseconds timeout) override;
    void close() override;

private:
    std::shared_ptr<FakeHidScript> script_;
};

} // namespace velmora::test
