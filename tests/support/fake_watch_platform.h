#pragma once

// Puts fakes in the place of the machine's devices for `velmora-cli watch` for as long as it
// lives, and ends the watch once the fakes' script has played.

#include "app/cli/watch_platform.h"
#include "tests/support/fake_hid.h"
#include "tests/support/fake_hid_watcher.h"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <vector>

namespace velmora::test {

class FakeWatchPlatform {
public:
    FakeWatchPlatform() : saved_(cli::watchPlatform()) {
        cli::watchPlatform().endOn = [this](cli::StopSignal& stop) {
            stop_ = &stop;
            return std::shared_ptr<void>();
        };
    }
    ~FakeWatchPlatform() { cli::watchPlatform() = saved_; }
    FakeWatchPlatform(const FakeWatchPlatform&) = delete;
    FakeWatchPlatform& operator=(const FakeWatchPlatform&) = delete;

    // Each poll of the serial ports gives the next snapshot, the last one again once they are
    // done; the watch ends at the poll numbered endAtPoll.
    void serialSnapshots(std::vector<std::vector<SerialDevice>> snapshots, std::size_t endAtPoll) {
        struct Ports final : SerialPortSource {
            std::vector<SerialDevice> availablePorts() override { return poll(); }
            std::function<std::vector<SerialDevice>()> poll;
        };
        cli::watchPlatform().serialPorts = [this, snapshots, endAtPoll] {
            auto ports = std::make_unique<Ports>();
            ports->poll = [this, snapshots, endAtPoll, polls = std::size_t{0}]() mutable {
                if (++polls == endAtPoll) {
                    stop_->request(); // set once the watch began
                }
                return snapshots.empty() ? std::vector<SerialDevice>{}
                                         : snapshots[std::min(polls, snapshots.size()) - 1];
            };
            return ports;
        };
    }

    // The HID devices plugged in; once they are reported, the script plays on their watcher.
    void hidDevices(std::vector<FakeHidDeviceDescription> devices,
                    std::function<void(FakeHidWatcher&)> script = {}) {
        cli::watchPlatform().hidWatcher = [this, devices, script](std::ostream&) {
            auto watcher = std::make_unique<FakeHidWatcher>();
            for (const auto& device : devices) {
                watcher->plug(device);
            }
            watcher->script = [bus = watcher.get(), script, this] {
                if (script) {
                    script(*bus);
                }
                stop_->request();
            };
            return watcher;
        };
    }

    // `read` finds the instrument on this bus.
    void instrument(FakeHidBus& bus) {
        cli::watchPlatform().instrument = [&bus](Log&, std::function<void()>) {
            return bus.managerFactory();
        };
    }

    // `read`'s session skips ahead to the next request whenever nothing is left to do: seconds of
    // readings play in moments.
    void fastForward() { cli::watchPlatform().sessionTime = EventLoop::Time::fastForward; }

    // Ctrl-C and SIGTERM end the command, as they do outside the tests.
    void keepRealInterrupts() { cli::watchPlatform().endOn = saved_.endOn; }

private:
    cli::WatchPlatform saved_;
    cli::StopSignal* stop_ = nullptr;
};

} // namespace velmora::test
