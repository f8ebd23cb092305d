// A HID report descriptor as a device may hand it out.

#include "device/hid_report_descriptor.h"

#include <cassert>
#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto length = velmora::maxInputReportSize({data, size});
    assert(!length || *length >= 0);
    return 0;
}
