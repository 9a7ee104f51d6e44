#include "ZELTime.h"

#include <charconv>
#include <ctime>
#include <optional>
#include <string>

#include "ZELEnvironment.h"

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

ZELTime ZELTime::OfBuild() {
    constexpr std::int64_t kEndOfYear9999 = 253402300799;
    const std::optional<std::string> value = ZELGetEnv("SOURCE_DATE_EPOCH");
    if (!value) return Local();
    std::int64_t seconds = 0;
    const char* const end = value->data() + value->size();
    const auto [stop, error] = std::from_chars(value->data(), end, seconds);
    const bool valid = error == std::errc() && stop == end && seconds >= 0 && seconds <= kEndOfYear9999;
    return valid ? UtcOf(seconds) : Local();
}
