#include "tests/architecture/include_rules.h"

#include <iterator>
#include <map>
#include <set>
#include <sstream>

namespace velmora::test {
namespace {

namespace fs = std::filesystem;

const std::map<std::string, std::set<std::string>> layersBelow = {
    {"foundation", {}},
    {"data", {"foundation"}},
    {"device", {"foundation"}},
    {"search", {"data", "foundation"}},
    {"records", {"search", "data", "device", "foundation"}},
    {"ui", {"records", "search", "data", "device", "foundation"}},
    {"app", {"ui", "records", "search", "data", "device", "foundation"}},
};

const std::set<std::string> adapterFolders = {"qt",     "hidapi", "libusb", "udev",
                                              "serial", "sqlite", "posix",  "cli"};

// The headers of the ISO C++ library, C++23's included; the C headers in their <cxxx> form only.
const std::set<std::string> standardHeaders = [] {
    std::istringstream names(
        "algorithm any array atomic barrier bit bitset cassert cctype cerrno cfenv cfloat charconv "
        "chrono cinttypes climits clocale cmath compare complex concepts condition_variable "
        "coroutine csetjmp csignal cstdarg cstddef cstdint cstdio cstdlib cstring ctime cuchar "
        "cwchar cwctype deque exception execution expected filesystem format forward_list fstream "
        "functional future initializer_list iomanip ios iosfwd iostream istream iterator latch "
        "limits list locale map mdspan memory memory_resource mutex new numbers numeric optional "
        "ostream print queue random ranges ratio regex scoped_allocator semaphore set shared_mutex "
        "source_location span spanstream sstream stack stacktrace stdexcept stop_token streambuf "
        "string string_view syncstream system_error thread tuple type_traits typeindex typeinfo "
        "unordered_map unordered_set utility valarray variant vector version");
    return std::set<std::string>(std::istream_iterator<std::string>(names), {});
}();

struct Place {
    std::string layer;
    bool adapter = false;
};

Place placeOf(const std::string& path) {
    const fs::path folder = fs::path(path).parent_path();
    Place place;
    for (const auto& part : folder) {
        if (place.layer.empty()) {
            place.layer = part.string();
        } else if (adapterFolders.contains(part.string())) {
            place.adapter = true;
        }
    }
    return place;
}

} // namespace

const std::vector<std::string>& layerFolders() {
    static const std::vector<std::string> folders = {"foundation", "data", "device", "search",
                                                     "records",    "ui",   "app"};
    return folders;
}

std::optional<std::string> violation(const std::string& file, const Include& include) {
    const Place from = placeOf(file);
    if (!include.inTree) {
        if (from.adapter || standardHeaders.contains(include.name) ||
            include.name.starts_with("unicode/")) {
            return std::nullopt;
        }
        return "logic includes <" + include.name + ">, which is neither ISO C++ nor ICU";
    }
    const Place to = placeOf(include.name);
    if (to.layer != from.layer && !layersBelow.at(from.layer).contains(to.layer)) {
        return "includes " + include.name + ", which is not in its layer or below";
    }
    if (to.adapter && !from.adapter) {
        return "logic includes " + include.name + ", an adapter's";
    }
    return std::nullopt;
}

Include resolve(const fs::path& root, const std::string& file, const std::string& name,
                bool quoted) {
    if (quoted) {
        for (const fs::path& candidate : {fs::path(file).parent_path() / name, fs::path(name)}) {
            if (fs::is_regular_file(root / candidate)) {
                return {candidate.lexically_normal().generic_string(), true};
            }
        }
    }
    return {name, false};
}

} // namespace velmora::test
