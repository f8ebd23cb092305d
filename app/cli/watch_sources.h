#pragma once

// The kinds of device `velmora-cli watch` follows: for each, how its watcher is made from the
// command's options, and the fields printed for each notification it posts.

#include "app/cli/cli.h"
#include "app/cli/output.h"
#include "device/instrument_usb_ids.h"
#include "foundation/notification_center.h"

#include <cstdint>
#include <functional>
#include <iosfwd>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace velmora::cli {

struct WatchOptions {
    std::optional<std::uint16_t> vendorId;  // --vendor
    std::optional<std::uint16_t> productId; // --product
    std::optional<double> interval;         // --interval, in seconds
    std::optional<std::uint16_t> usagePage; // --usage-page
    std::optional<std::uint16_t> usage;     // --usage
};

// A watcher as the command drives it: start() blocks until stop(), which may come from any thread.
class Watch {
public:
    virtual ~Watch() = default;
    virtual void start() = 0;
    virtual void stop() = 0;
};

// A watcher together with the source it watches through, which it owns. begin is the watcher's
// blocking start.
template <class Source, class Monitor, void (Monitor::*begin)() = &Monitor::start>
class MonitorWatch final : public Watch {
public:
    // makeMonitor(source) gives the watcher over the source.
    template <class MakeMonitor>
    MonitorWatch(std::unique_ptr<Source> source, MakeMonitor makeMonitor)
        : source_(std::move(source)), monitor_(makeMonitor(*source_)) {}

    Monitor& monitor() { return monitor_; }
    void start() override { (monitor_.*begin)(); }
    void stop() override { monitor_.stop(); }

private:
    std::unique_ptr<Source> source_;
    Monitor monitor_;
};

struct WatchSource {
    // Observes one kind of notification on center, handing print the record of each.
    using Subscribe = std::function<NotificationCenter::Token(
        NotificationCenter& center, std::function<void(const Fields&)> print)>;

    std::string name; // as typed after `watch`
    // The options beyond the common ones that it takes, as typed: "--vendor", "--interval", ...
    std::vector<std::string> takes;
    std::vector<Subscribe> notifications;
    // The watcher's own diagnostic lines go to lines. Null after telling why on context.err and
    // setting context.exitCode.
    std::function<std::unique_ptr<Watch>(const WatchOptions& options, Context& context,
                                         std::ostream& lines)>
        make;
};

const std::vector<WatchSource>& watchSources();

// The entries of the table; the two over HID are in watch_sources_hid.cpp.
WatchSource usbSource();
WatchSource serialSource();
WatchSource hidSource();
WatchSource blink1Source();

// What the entries share in printing: 0x04D8 for hex(0x04D8, 4).
std::string hex(std::uint64_t value, int digits);

// Prints each notification of type N as one record: its name, then fieldsOf(notification).
template <Notification N, std::invocable<const N&> FieldsOf>
WatchSource::Subscribe printed(FieldsOf fieldsOf) {
    return [fieldsOf](NotificationCenter& center, std::function<void(const Fields&)> print) {
        return center.addObserver<N>([fieldsOf, print = std::move(print)](const N& notification) {
            Fields fields{{"notification", std::string(N::name)}};
            for (auto& field : fieldsOf(notification)) {
                fields.push_back(std::move(field));
            }
            print(fields);
        });
    };
}

} // namespace velmora::cli
