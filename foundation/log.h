#pragma once

// The system log. The instrument session writes its "[INFO] ..." lines here; the application sends
// them to syslog (and to standard error with --verbose), the tests record them.

#include <string_view>

namespace velmora {

class Log {
public:
    virtual ~Log() = default;
    virtual void info(std::string_view line) = 0;
    virtual void error(std::string_view line) = 0;
};

} // namespace velmora
