#include "app/cli/cli.h"
#include "app/cli/output.h"
#include "app/cli/stop_signal.h"
#include "app/cli/watch_platform.h"
#include "app/cli/watch_sources.h"
#include "foundation/notification_center.h"

#include <CLI/CLI.hpp>
#include <charconv>
#include <ostream>
#include <thread>

namespace velmora::cli {

namespace {

// 0x04D8 and 0X04d8 are hexadecimal, 1240 is decimal. A leading zero does not make a number
// octal, as it would for most parsers: 01240 is still 1240.
std::optional<std::uint16_t> parseSixteenBitNumber(std::string_view text) {
    int base = 10;
    if (text.starts_with("0x") || text.starts_with("0X")) {
        base = 16;
        text.remove_prefix(2);
    }
    std::uint16_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value, base);
    if (text.empty() || error != std::errc() || end != text.data() + text.size()) {
        return std::nullopt;
    }
    return value;
}

const CLI::Validator sixteenBitNumber(
    [](std::string& text) {
        const auto value = parseSixteenBitNumber(text);
        if (!value) {
            return std::string(
                "a number from 0 to 0xFFFF is needed, written in hex as 0x04D8 or in "
                "decimal as 1240");
        }
        text = std::to_string(*value);
        return std::string();
    },
    "");

struct WatchRequest {
    std::string source;
    WatchOptions options;
    std::vector<std::string> given; // the options typed beyond the common ones
};

// "hid, usb and serial"
std::string takersOf(const std::string& option) {
    std::vector<std::string> names;
    for (const auto& source : watchSources()) {
        if (std::ranges::find(source.takes, option) != source.takes.end()) {
            names.push_back(source.name);
        }
    }
    std::string text;
    for (std::size_t k = 0; k < names.size(); ++k) {
        text += (k == 0 ? "" : k + 1 == names.size() ? " and " : ", ") + names[k];
    }
    return text;
}

// Prints each notification the source posts as one record: its name, then the fields the source
// takes from it.
class NotificationPrinter {
public:
    NotificationPrinter(const WatchSource& source, Context& context) {
        for (const auto& subscribe : source.notifications) {
            tokens_.push_back(
                subscribe(NotificationCenter::defaultCenter(), [&context](const Fields& fields) {
                    printRecord(*context.out, context.json, fields);
                    context.out->flush();
                }));
        }
    }
    NotificationPrinter(const NotificationPrinter&) = delete;
    NotificationPrinter& operator=(const NotificationPrinter&) = delete;
    ~NotificationPrinter() {
        for (const auto token : tokens_) {
            NotificationCenter::defaultCenter().removeObserver(token);
        }
    }

private:
    std::vector<NotificationCenter::Token> tokens_;
};

void runWatch(const WatchRequest& request, Context& context) {
    const auto& sources = watchSources();
    const auto source = std::ranges::find(sources, request.source, &WatchSource::name);
    for (const auto& option : request.given) {
        if (std::ranges::find(source->takes, option) == source->takes.end()) {
            *context.err << option << " applies to watch " << takersOf(option) << " only\n";
            context.exitCode = exitUsage;
            return;
        }
    }
    // The watchers' own lines stay off standard output when it carries JSON Lines.
    std::ostream& lines = context.json ? *context.err : *context.out;
    const auto watch = source->make(request.options, context, lines);
    if (!watch) {
        return;
    }
    StopSignal stop;
    if (!stop.valid()) {
        *context.err << "Cannot watch: the system gave no pipe to wait for Ctrl-C on\n";
        context.exitCode = exitAlert;
        return;
    }
    const auto ending = watchPlatform().endOn(stop);
    const NotificationPrinter printer(*source, context);
    // The watcher blocks its own thread; should it ever end by itself, the wait ends with it.
    std::thread watcher([&] {
        watch->start();
        stop.request();
    });
    stop.wait();
    watch->stop();
    watcher.join();
}

} // namespace

void addWatchCommand(CLI::App& app, Context& context) {
    auto* command = app.add_subcommand(
        "watch", "Start a device watcher and print each notification as it comes, until Ctrl-C");
    auto request = std::make_shared<WatchRequest>();
    std::vector<std::string> names;
    for (const auto& source : watchSources()) {
        names.push_back(source.name);
    }
    command
        ->add_option("source", request->source, "What to watch: " + CLI::detail::join(names, ", "))
        ->required()
        ->check(CLI::IsMember(names));
    const auto addNumber = [&](const char* name, std::optional<std::uint16_t>& value,
                               const char* typeName, const std::string& description) {
        command->add_option(name, value, description)
            ->transform(sixteenBitNumber)
            ->type_name(typeName);
    };
    addNumber("--vendor", request->options.vendorId, "ID",
              "USB vendor identifier (hid, usb: default " + hex(instrumentVendorId, 4) +
                  "; serial: only ports of it)");
    addNumber("--product", request->options.productId, "ID",
              "USB product identifier (hid, usb: default " + hex(instrumentProductId, 4) +
                  "; serial: only ports of it)");
    addNumber("--usage-page", request->options.usagePage, "PAGE",
              "hid: only devices with this HID usage page (default: any)");
    addNumber("--usage", request->options.usage, "USAGE",
              "hid: only devices with this HID usage (default: any)");
    command
        ->add_option("--interval", request->options.interval,
                     "serial: seconds between polls (default 0.25)")
        ->type_name("SECONDS");
    command->callback([&context, request, command] {
        request->given.clear();
        for (const CLI::Option* option : command->get_options()) {
            if (option->nonpositional() && option->count() > 0) {
                request->given.push_back(option->get_name());
            }
        }
        runWatch(*request, context);
    });
}

} // namespace velmora::cli
