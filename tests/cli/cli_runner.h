#pragma once

// Runs velmora-cli in-process and keeps what it printed; and a reference file of the given rows
// for its --reference.

#include "app/cli/cli.h"
#include "tests/support/reference_rows.h"
#include "tests/support/temp_dir.h"

#include <sstream>
#include <string>
#include <vector>

namespace velmora::test {

struct CliResult {
    int status = -1;
    std::string out;
    std::string err;
    bool operator==(const CliResult&) const = default;
    friend std::ostream& operator<<(std::ostream& os, const CliResult& r) {
        return os << "exit " << r.status << ", out \"" << r.out << "\", err \"" << r.err << '"';
    }
};

inline CliResult runCli(std::vector<std::string> args) {
    args.insert(args.begin(), "velmora-cli");
    std::vector<const char*> argv;
    for (const auto& a : args) {
        argv.push_back(a.c_str());
    }
    std::ostringstream out;
    std::ostringstream err;
    const int status = cli::run(static_cast<int>(argv.size()), argv.data(), out, err);
    return {status, out.str(), err.str()};
}

struct ReferenceFile {
    explicit ReferenceFile(const std::vector<std::string>& rows)
        : path(dir.write("ref.csv", referenceText(rows)).string()) {}

    // The command over this file, with these arguments.
    CliResult run(const std::string& command, std::vector<std::string> args) const {
        args.insert(args.begin(), {command, "--reference", path});
        return runCli(args);
    }

    TempDir dir;
    std::string path;
};

} // namespace velmora::test
