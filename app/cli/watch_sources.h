#pragma once

// The kinds of device `velmora-cli watch` follows: for each, how its watcher is made from the
// command's options, and the fields printed for each notification it posts.

#include "app/cli/cli.h"
#include "app/cli/output.h"
#include "foundation/value.h"

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
};

// A watcher as the command drives it: start() blocks until stop(), which may come from any thread.
class Watch {
public:
    virtual ~Watch() = default;
    virtual void start() = 0;
    virtual void stop() = 0;
};

struct WatchSource {
    using FieldsOf = std::function<Fields(const Value& object)>;

    std::string name; // as typed after `watch`
    bool takesInterval = false;
    std::vector<std::pair<std::string, FieldsOf>> notifications;
    // The watcher's own diagnostic lines go to lines. Null after telling why on context.err and
    // setting context.exitCode.
    std::function<std::unique_ptr<Watch>(const WatchOptions& options, Context& context,
                                         std::ostream& lines)>
        make;
};

const std::vector<WatchSource>& watchSources();

} // namespace velmora::cli
