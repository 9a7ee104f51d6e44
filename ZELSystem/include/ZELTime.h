#ifndef ZELTIME_H
#define ZELTIME_H

#include <cstdint>

#include "ZELExport.h"

/// A moment as calendar and clock show it.
struct ZELSYSTEM_API ZELTime {
    int year;    ///< of the common era, four digits
    int month;   ///< 1 to 12
    int day;     ///< 1 to 31
    int hour;    ///< 0 to 23
    int minute;  ///< 0 to 59
    int second;  ///< 0 to 60

    /// \returns the present moment where the process's time zone is in force.
    static ZELTime Local() noexcept;

    /// \returns the present moment in universal time.
    static ZELTime Utc() noexcept;

    /// \returns the moment \p seconds after the start of 1970 in universal time, shown in that time or local
    /// time.
    static ZELTime UtcOf(std::int64_t seconds) noexcept;
    static ZELTime LocalOf(std::int64_t seconds) noexcept;

    /// \returns the moment that the environment variable SOURCE_DATE_EPOCH gives, as seconds after the start
    /// of 1970, in universal time, so that what bears a date can be made twice the same; where it is not set,
    /// or is no such number, the present moment in local time.
    static ZELTime OfBuild();

    friend bool operator==(const ZELTime&, const ZELTime&) noexcept = default;
};

#endif
