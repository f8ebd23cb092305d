#include "foundation/bundle.h"

#include <system_error>

namespace velmora {

const Bundle& Bundle::main() {
    static const Bundle bundle = [] {
        std::error_code ec;
        const auto exe = std::filesystem::read_symlink("/proc/self/exe", ec);
        return forExecutable(ec ? std::nullopt : std::optional(exe));
    }();
    return bundle;
}

} // namespace velmora
