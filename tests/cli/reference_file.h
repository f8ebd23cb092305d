#pragma once

// A reference file of the given rows in a temporary folder, for --reference.

#include "tests/support/reference_text.h"
#include "tests/support/temp_dir.h"

#include <string>
#include <vector>

namespace velmora::test {

struct ReferenceFile {
    explicit ReferenceFile(const std::vector<std::string>& rows)
        : path(dir.write("ref.csv", referenceText(rows)).string()) {}

    TempDir dir;
    std::string path;
};

} // namespace velmora::test
