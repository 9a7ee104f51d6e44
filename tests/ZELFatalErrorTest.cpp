#include "ZELFatalError.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>

namespace {

TEST(ZELFatalErrorDeathTest, WritesOneLineAndAborts) {
    EXPECT_EXIT(ZELFatalError("AssertionFailed:Hex", "HexToBinary", 122), testing::KilledBySignal(SIGABRT),
                "^AssertionFailed:Hex, HexToBinary, line 122\n$");
}

TEST(ZELFatalErrorDeathTest, WritesOutStandardOutputFirst) {
    EXPECT_EXIT(
        {
            // Standard output goes where the test looks, still through its buffer.
            dup2(STDERR_FILENO, STDOUT_FILENO);
            std::printf("waiting\n");
            ZELFatalError("AssertionFailed:Bin", "HexToBinary", 164);
        },
        testing::KilledBySignal(SIGABRT), "^waiting\nAssertionFailed:Bin, HexToBinary, line 164\n$");
}

}  // namespace
