#include "tests/support/fake_hid_handle.h"

#include <algorithm>

namespace velmora::test {

using namespace std::chrono_literals;

void FakeHidScript::queueInputReport(Bytes report) {
    const std::lock_guard lock(mutex_);
    results_.emplace_back(std::move(report));
    changed_.notify_all();
}

void FakeHidScript::queueRemoval() {
    const std::lock_guard lock(mutex_);
    results_.emplace_back(std::nullopt);
    changed_.notify_all();
}

bool FakeHidScript::waitForWrites(std::size_t count) {
    std::unique_lock lock(mutex_);
    return changed_.wait_for(lock, 5s, [&] { return record_.writes.size() >= count; });
}

FakeHidScript::Record FakeHidScript::record() const {
    const std::lock_guard lock(mutex_);
    return record_;
}

int FakeHidHandle::write(std::span<const std::uint8_t> report) {
    auto& s = *script_;
    const std::lock_guard lock(s.mutex_);
    s.record_.faults += s.gone_ || s.record_.closes > 0;
    s.record_.writes.emplace_back(report.begin(), report.end());
    s.record_.writerThread = std::this_thread::get_id();
    s.changed_.notify_all();
    return static_cast<int>(report.size());
}

int FakeHidHandle::read(std::span<std::uint8_t> buffer, std::chrono::milliseconds timeout) {
    auto& s = *script_;
    std::unique_lock lock(s.mutex_);
    s.record_.faults += s.gone_ || s.record_.closes > 0;
    s.record_.longestReadTimeout = std::max(s.record_.longestReadTimeout, timeout);
    s.reading_ = true;
    s.changed_.wait_for(lock, timeout, [&] { return !s.results_.empty(); });
    s.reading_ = false;
    if (s.results_.empty()) {
        return 0;
    }
    const auto result = std::move(s.results_.front());
    s.results_.pop_front();
    if (!result) {
        s.gone_ = true;
        return -1;
    }
    const auto length = std::min(buffer.size(), result->size());
    std::copy_n(result->begin(), length, buffer.begin());
    return static_cast<int>(length);
}

void FakeHidHandle::close() {
    auto& s = *script_;
    const std::lock_guard lock(s.mutex_);
    s.record_.faults += s.reading_ || s.record_.closes > 0;
    ++s.record_.closes;
}

} // namespace velmora::test
