#include "ZELTraceChannel.h"

#include <gtest/gtest.h>

#include <string>

#include "ZELTestOutput.h"

namespace {

TEST(ZELTraceChannelTest, IsFoundByNameWhileItLives) {
    EXPECT_EQ(ZELTraceChannel::Find("Load"), nullptr);
    {
        ZELTraceChannel load("Load", "Traces of the load", "STDERR", 1024);
        const ZELTraceChannel other("Other", "Others", "STDERR", 1024);

        EXPECT_EQ(ZELTraceChannel::Find("Load"), &load);
        EXPECT_EQ(ZELTraceChannel::Find("Other"), &other);
        EXPECT_STREQ(load.Name(), "Load");
        EXPECT_STREQ(load.Title(), "Traces of the load");
        EXPECT_STREQ(load.Target(), "STDERR");
        EXPECT_EQ(load.BufferSize(), 1024);
    }
    EXPECT_EQ(ZELTraceChannel::Find("Load"), nullptr);
}

TEST(ZELTraceChannelTest, LeavesTheRegisterWhereverItStands) {
    auto* const older = new ZELTraceChannel("A", "", "STDERR", 16);
    const ZELTraceChannel newer("B", "", "STDERR", 16);

    delete older;

    EXPECT_EQ(ZELTraceChannel::Find("A"), nullptr);
    EXPECT_EQ(ZELTraceChannel::Find("B"), &newer);
}

TEST(ZELTraceChannelTest, WritesLinesToStandardErrorAndCutsLongOnes) {
    const ZELTraceChannel channel("C", "", "STDERR", 8);
    CaughtOutput caught;

    channel.Write("short");
    channel.Write("exactly");
    channel.Write("rather long");
    caught.Stop();

    EXPECT_EQ(caught.error, "short\nexactly\nrather \n");
    EXPECT_EQ(caught.output, "");
}

TEST(ZELTraceChannelTest, DropsLinesForAnotherTarget) {
    const ZELTraceChannel channel("D", "", "FILE", 1024);
    CaughtOutput caught;

    channel.Write("line");
    caught.Stop();

    EXPECT_EQ(caught.error, "");
    EXPECT_EQ(caught.output, "");
}

}  // namespace
