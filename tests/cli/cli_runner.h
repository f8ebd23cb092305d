#pragma once

// Runs velmora-cli in-process and keeps what it printed.

#include <string>
#include <vector>

namespace velmora::test {

struct CliResult {
    int status = -1;
    std::string out;
    std::string err;
};

CliResult runCli(std::vector<std::string> args);

} // namespace velmora::test
