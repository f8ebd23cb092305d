#include "tests/support/fake_watch_platform.h"

namespace velmora::test {

using cli::StopSignal;
using cli::watchPlatform;

namespace {

// Plugs the devices in, and once they are reported runs the script and then ends the watch.
template <class Watcher, class Device>
std::unique_ptr<Watcher> scriptedWatcher(const std::vector<Device>& devices,
                                         const std::function<void(Watcher&)>& script,
                                         std::function<void()> end) {
    auto watcher = std::make_unique<Watcher>();
    for (const auto& device : devices) {
        watcher->plug(device);
    }
    Watcher* bus = watcher.get();
    watcher->later([bus, script, end = std::move(end)] {
        if (script) {
            script(*bus);
        }
        bus->later(end);
    });
    return watcher;
}

} // namespace

FakeWatchPlatform::FakeWatchPlatform() : saved_(watchPlatform()) {
    watchPlatform().endOn = [this](StopSignal& stop) {
        stop_ = &stop;
        return std::shared_ptr<void>();
    };
}

FakeWatchPlatform::~FakeWatchPlatform() {
    watchPlatform() = saved_;
}

void FakeWatchPlatform::serialSnapshots(std::vector<std::vector<SerialDevice>> snapshots,
                                        std::size_t endAtCall) {
    watchPlatform().serialPorts = [this, snapshots, endAtCall] {
        return std::make_unique<FakeSerialPortSource>(snapshots,
                                                      [this, endAtCall](std::size_t call) {
                                                          if (call == endAtCall) {
                                                              stop_->request();
                                                          }
                                                      });
    };
}

void FakeWatchPlatform::usbDevices(std::vector<FakeUsbDevice> devices,
                                   std::function<void(FakeUsbWatcher&)> script) {
    watchPlatform().usbWatcher = [this, devices, script](std::string&) {
        return scriptedWatcher(devices, script, [this] { stop_->request(); });
    };
}

void FakeWatchPlatform::hidDevices(std::vector<FakeHidDeviceDescription> devices,
                                   std::function<void(FakeHidWatcher&)> script) {
    watchPlatform().hidWatcher = [this, devices, script](std::ostream&) {
        return scriptedWatcher(devices, script, [this] { stop_->request(); });
    };
}

void FakeWatchPlatform::keepRealInterrupts() {
    watchPlatform().endOn = saved_.endOn;
}

} // namespace velmora::test
