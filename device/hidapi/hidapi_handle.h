#pragma once

// A device opened by hidapi, for its worker thread.

#include "device/hidapi/hid_handle.h"

#include <hidapi.h>

namespace velmora::hidapi {

class HidapiHandle final : public HidHandle {
public:
    explicit HidapiHandle(hid_device* device) : device_(device) {}

    int write(std::span<const std::uint8_t> report) override {
        return hid_write(device_, report.data(), report.size());
    }
    int read(std::span<std::uint8_t> buffer, std::chrono::milliseconds timeout) override {
        return hid_read_timeout(device_, buffer.data(), buffer.size(),
                                static_cast<int>(timeout.count()));
    }
    void close() override { hid_close(device_); }

private:
    hid_device* device_;
};

} // namespace velmora::hidapi
