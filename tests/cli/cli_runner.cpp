#include "tests/cli/cli_runner.h"

#include "app/cli/cli.h"

#include <sstream>

namespace velmora::test {

CliResult runCli(std::vector<std::string> args) {
    args.insert(args.begin(), "velmora-cli");
    std::vector<const char*> argv;
    for (const auto& a : args) {
        argv.push_back(a.c_str());
    }
    std::ostringstream out;
    std::ostringstream err;
    CliResult result;
    result.status = cli::run(static_cast<int>(argv.size()), argv.data(), out, err);
    result.out = out.str();
    result.err = err.str();
    return result;
}

} // namespace velmora::test
