#pragma once

// The system log through syslog(3), and standard error as well with --verbose.

#include "foundation/log.h"

namespace velmora {

class SysLog final : public Log {
public:
    explicit SysLog(bool alsoToStderr = false);
    void info(std::string_view line) override;
    void error(std::string_view line) override;

private:
    bool alsoToStderr_;
};

} // namespace velmora
