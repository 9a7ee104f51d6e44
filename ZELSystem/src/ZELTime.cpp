#include "ZELTime.h"

#include <ctime>

namespace {

ZELTime TimeOf(const std::tm& time) noexcept {
    return {time.tm_year + 1900, time.tm_mon + 1, time.tm_mday, time.tm_hour, time.tm_min, time.tm_sec};
}

}  // namespace

ZELTime ZELTime::Local() noexcept { return LocalOf(std::time(nullptr)); }

ZELTime ZELTime::Utc() noexcept { return UtcOf(std::time(nullptr)); }

ZELTime ZELTime::UtcOf(std::int64_t seconds) noexcept {
    const std::time_t moment = seconds;
    std::tm time{};
    gmtime_r(&moment, &time);
    return TimeOf(time);
}

ZELTime ZELTime::LocalOf(std::int64_t seconds) noexcept {
    const std::time_t moment = seconds;
    std::tm time{};
    tzset();  // localtime_r need not look whether the zone has changed
    localtime_r(&moment, &time);
    return TimeOf(time);
}
