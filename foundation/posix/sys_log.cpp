#include "foundation/posix/sys_log.h"

#include <cstdio>
#include <string>
#include <syslog.h>

namespace velmora {

SysLog::SysLog(bool alsoToStderr) : alsoToStderr_(alsoToStderr) {
    openlog("velmora", LOG_PID, LOG_USER);
}

void SysLog::info(std::string_view line) {
    const std::string s(line);
    syslog(LOG_INFO, "%s", s.c_str());
    if (alsoToStderr_) {
        std::fprintf(stderr, "%s\n", s.c_str());
    }
}

void SysLog::error(std::string_view line) {
    const std::string s(line);
    syslog(LOG_ERR, "%s", s.c_str());
    if (alsoToStderr_) {
        std::fprintf(stderr, "%s\n", s.c_str());
    }
}

} // namespace velmora
