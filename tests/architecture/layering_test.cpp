// The layers as the includes have them: no folder includes one above it, and the logic includes
// only ISO C++ and ICU. The platform lives in adapter subfolders, named after what they wrap.

#include "tests/architecture/include_rules.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <regex>

namespace velmora::test {
namespace {

namespace fs = std::filesystem;

const fs::path sourceDir = VELMORA_SOURCE_DIR;

struct TreeCheck {
    int files = 0;
    // Each wrong include with its file and line.
    std::vector<std::string> violations;
};

TreeCheck checkTree() {
    static const std::regex includeLine(R"(^\s*#\s*include\s*([<"])([^>"]+)[>"])");
    TreeCheck check;
    for (const auto& layer : layerFolders()) {
        for (const auto& entry : fs::recursive_directory_iterator(sourceDir / layer)) {
            const auto extension = entry.path().extension();
            if (!entry.is_regular_file() || (extension != ".h" && extension != ".cpp")) {
                continue;
            }
            ++check.files;
            const std::string file = entry.path().lexically_relative(sourceDir).generic_string();
            std::ifstream in(entry.path());
            std::string line;
            for (int number = 1; std::getline(in, line); ++number) {
                std::smatch match;
                if (line.find("include") == std::string::npos ||
                    !std::regex_search(line, match, includeLine)) {
                    continue;
                }
                const Include include = resolve(sourceDir, file, match[2], match[1] == "\"");
                if (const auto why = violation(file, include)) {
                    check.violations.push_back(file + ":" + std::to_string(number) + ": " + *why);
                }
            }
        }
    }
    return check;
}

TEST(Layering, EveryFolderIncludesOnlyItsOwnAndTheLayersBelowAndTheLogicNoPlatform) {
    ASSERT_TRUE(fs::is_regular_file(sourceDir / "ui" / "view_controller.h")) << sourceDir;
    const TreeCheck check = checkTree();
    EXPECT_GT(check.files, 200);
    EXPECT_TRUE(check.violations.empty()) << ::testing::PrintToString(check.violations);
}

struct RuleCase {
    const char* file;
    Include include;
    bool allowed;
};

TEST(Layering, TheRulesTellLayersAdaptersAndPlatformHeadersApart) {
    const RuleCase cases[] = {
        {"search/a.cpp", {"data/stones.h", true}, true},
        {"search/a.cpp", {"foundation/text.h", true}, true},
        {"search/a.cpp", {"ui/view_controller.h", true}, false},
        {"data/a.cpp", {"device/hid_manager.h", true}, false},
        {"device/a.cpp", {"data/stones.h", true}, false},
        {"ui/a.cpp", {"device/instrument_link.h", true}, true},
        {"ui/a.cpp", {"app/app_delegate.h", true}, false},
        {"ui/a.cpp", {"ui/qt/element_binding.h", true}, false},
        {"device/sim/a.cpp", {"device/hid_manager.h", true}, true},
        {"device/sim/a.h", {"device/hidapi/hidapi_manager.h", true}, false},
        {"foundation/a.cpp", {"unistd.h", false}, false},
        {"foundation/a.cpp", {"locale.h", false}, false},
        {"foundation/a.cpp", {"sys/types.h", false}, false},
        {"foundation/a.cpp", {"charconv", false}, true},
        {"data/a.cpp", {"unicode/ucnv.h", false}, true},
        {"ui/a.cpp", {"QWidget", false}, false},
        {"device/a.cpp", {"hidapi.h", false}, false},
        {"app/a.cpp", {"sqlite3.h", false}, false},
        {"app/a.cpp", {"generated.h", false}, false},
        {"foundation/posix/a.cpp", {"unistd.h", false}, true},
        {"foundation/posix/a.cpp", {"data/stones.h", true}, false},
        {"device/udev/a.cpp", {"device/hidapi/plug_notifier.h", true}, true},
        {"device/udev/a.cpp", {"ui/view.h", true}, false},
        {"ui/qt/a.cpp", {"ui_main_window.h", false}, true},
        {"app/qt/a.cpp", {"device/sim/simulated_instrument.h", true}, true},
        {"app/cli/a.cpp", {"CLI/CLI.hpp", false}, true},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(!violation(c.file, c.include), c.allowed) << c.file << " with " << c.include.name;
    }
}

} // namespace
} // namespace velmora::test
