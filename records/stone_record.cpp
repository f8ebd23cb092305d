#include "records/stone_record.h"

#include <cstdio>

namespace velmora {

std::string isoTimeText(std::chrono::sys_seconds time) {
    using namespace std::chrono;
    const auto day = floor<days>(time);
    const year_month_day date(day);
    const hh_mm_ss clock(time - day);
    char text[32];
    std::snprintf(text, sizeof text, "%04d-%02u-%02uT%02d:%02d:%02dZ", int(date.year()),
                  unsigned(date.month()), unsigned(date.day()), int(clock.hours().count()),
                  int(clock.minutes().count()), int(clock.seconds().count()));
    return text;
}

std::optional<std::chrono::sys_seconds> parseIsoTime(const std::string& text) {
    using namespace std::chrono;
    int y = 0;
    unsigned mo = 0, d = 0;
    int h = 0, mi = 0, s = 0;
    int end = 0;
    if (std::sscanf(text.c_str(), "%4d-%2u-%2uT%2d:%2d:%2dZ%n", &y, &mo, &d, &h, &mi, &s, &end) !=
            6 ||
        static_cast<std::size_t>(end) != text.size()) {
        return std::nullopt;
    }
    const year_month_day date{year(y), month(mo), day(d)};
    if (!date.ok() || h > 23 || mi > 59 || s > 59 || h < 0 || mi < 0 || s < 0) {
        return std::nullopt;
    }
    return sys_days(date) + hours(h) + minutes(mi) + seconds(s);
}

} // namespace velmora
