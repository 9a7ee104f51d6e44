#include "ZELStackTrace.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ZELTestOutput.h"

namespace {

TEST(ZELStackTraceTest, WritesTheCallsToStandardErrorOnly) {
    CaughtOutput caught;

    ZELPrintStackTrace();
    caught.Stop();

    EXPECT_EQ(caught.output, "");
    EXPECT_THAT(caught.error, testing::StartsWith("#1 0x"));
    EXPECT_THAT(caught.error, testing::HasSubstr("\n#2 0x"));
    EXPECT_THAT(caught.error, testing::HasSubstr("ZELStackTraceTest"));
    EXPECT_THAT(caught.error, testing::EndsWith("\n"));
}

}  // namespace
