#include "ZELTime.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>
#include <tuple>

namespace {

TEST(ZELTimeTest, ShowsUniversalTime) {
    EXPECT_EQ(ZELTime::UtcOf(0), (ZELTime{1970, 1, 1, 0, 0, 0}));
    EXPECT_EQ(ZELTime::UtcOf(951827696), (ZELTime{2000, 2, 29, 12, 34, 56}));
    EXPECT_EQ(ZELTime::UtcOf(-1), (ZELTime{1969, 12, 31, 23, 59, 59}));
}

TEST(ZELTimeTest, ShowsLocalTimeOfTheZoneInForce) {
    setenv("TZ", "XYZ-2", 1);
    EXPECT_EQ(ZELTime::LocalOf(951827696), (ZELTime{2000, 2, 29, 14, 34, 56}));

    setenv("TZ", "XYZ+3", 1);
    EXPECT_EQ(ZELTime::LocalOf(951827696), (ZELTime{2000, 2, 29, 9, 34, 56}));
}

TEST(ZELTimeTest, ThePresentLiesBetweenTwoReadingsOfTheClock) {
    setenv("TZ", "UTC0", 1);
    const ZELTime earliest = ZELTime::UtcOf(std::time(nullptr));
    const ZELTime utc = ZELTime::Utc();
    const ZELTime local = ZELTime::Local();
    const ZELTime latest = ZELTime::UtcOf(std::time(nullptr));

    const auto inOrder = [](const ZELTime& a, const ZELTime& b) {
        return std::tie(a.year, a.month, a.day, a.hour, a.minute, a.second) <=
               std::tie(b.year, b.month, b.day, b.hour, b.minute, b.second);
    };
    EXPECT_TRUE(inOrder(earliest, utc));
    EXPECT_TRUE(inOrder(utc, local));
    EXPECT_TRUE(inOrder(local, latest));
}

TEST(ZELTimeTest, ABuildHasTheMomentThatTheEnvironmentGivesInUniversalTime) {
    setenv("TZ", "XYZ-2", 1);
    setenv("SOURCE_DATE_EPOCH", "951827696", 1);
    EXPECT_EQ(ZELTime::OfBuild(), (ZELTime{2000, 2, 29, 12, 34, 56}));

    unsetenv("SOURCE_DATE_EPOCH");
    EXPECT_GT(ZELTime::OfBuild().year, 2000);
}

TEST(ZELTimeTest, ABuildPassesOverWhatIsNoNumberOfSeconds) {
    for (const char* const value : {"", "soon", "12 ", "-1", "99999999999999999999", "253402300800"}) {
        setenv("SOURCE_DATE_EPOCH", value, 1);
        EXPECT_GT(ZELTime::OfBuild().year, 2000) << value;
        EXPECT_LT(ZELTime::OfBuild().year, 9999) << value;
    }
    unsetenv("SOURCE_DATE_EPOCH");
}

}  // namespace
