#pragma once

// Puts fakes in the place of the machine's devices for `velmora-cli watch`, and gives the test the
// command's stop, for as long as it lives.

#include "app/cli/watch_platform.h"
#include "tests/support/fake_hid_watcher.h"
#include "tests/support/fake_serial_port_source.h"
#include "tests/support/fake_usb_watcher.h"

#include <cstddef>
#include <functional>
#include <vector>

namespace velmora::test {

class FakeWatchPlatform {
public:
    FakeWatchPlatform();
    FakeWatchPlatform(const FakeWatchPlatform&) = delete;
    FakeWatchPlatform& operator=(const FakeWatchPlatform&) = delete;
    ~FakeWatchPlatform();

    // The serial ports take these snapshots; the watch is told to end at the call numbered
    // endAtCall.
    void serialSnapshots(std::vector<std::vector<SerialDevice>> snapshots, std::size_t endAtCall);

    // The bus holds these devices; once they are reported, script runs on the watcher, then the
    // watch is told to end.
    void usbDevices(std::vector<FakeUsbDevice> devices,
                    std::function<void(FakeUsbWatcher&)> script = {});

    // The same for HID devices; what the watcher's adapter would tell goes to its diagnostics.
    void hidDevices(std::vector<FakeHidDeviceDescription> devices,
                    std::function<void(FakeHidWatcher&)> script = {});

    void keepRealInterrupts();

private:
    cli::WatchPlatform saved_;
    cli::StopSignal* stop_ = nullptr;
};

} // namespace velmora::test
