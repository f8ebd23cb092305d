#pragma once

// A system log that keeps its lines, so tests check them word for word.

#include "foundation/log.h"

#include <string>
#include <vector>

namespace velmora::test {

class RecordingLog final : public Log {
public:
    void info(std::string_view line) override { infoLines.emplace_back(line); }
    void error(std::string_view line) override { errorLines.emplace_back(line); }

    std::vector<std::string> infoLines;
    std::vector<std::string> errorLines;
};

} // namespace velmora::test
