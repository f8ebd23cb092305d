#pragma once

// A whole reference file's text: the header line, then the given rows.

#include "tests/support/reference_rows.h"

#include <string>
#include <vector>

namespace velmora::test {

inline std::string referenceText(const std::vector<std::string>& rows) {
    std::string text = referenceHeader;
    for (const auto& r : rows) {
        text += "\r\n" + r;
    }
    return text;
}

} // namespace velmora::test
