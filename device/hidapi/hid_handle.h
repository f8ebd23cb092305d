#pragma once

// An open HID device as its worker thread uses it: the three calls the worker makes, so that the
// worker runs against hidapi in the application and against a scripted handle in the tests.

#include <chrono>
#include <cstdint>
#include <span>

namespace velmora::hidapi {

class HidHandle {
public:
    virtual ~HidHandle() = default;
    // The bytes written, or -1.
    virtual int write(std::span<const std::uint8_t> report) = 0;
    // Waits up to timeout for one input report: its length, 0 when none came, -1 when the device
    // is gone.
    virtual int read(std::span<std::uint8_t> buffer, std::chrono::milliseconds timeout) = 0;
    virtual void close() = 0;
};

} // namespace velmora::hidapi
