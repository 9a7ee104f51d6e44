#include "ZELLineSink.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <vector>

#include "ZELTestOutput.h"

namespace {

/// Keeps what it is given.
class KeepingSink : public ZELLineSink {
public:
    void Write(const ZELLine& line) override {
        texts.emplace_back(line.text);
        last = line;
    }

    std::vector<std::string> texts;
    ZELLine last;
};

TEST(ZELLineSinkTest, WithoutASinkLinesGoToTheirStream) {
    CaughtOutput caught;

    ZELWriteLine({.text = "to output"});
    ZELWriteLine({.text = "to error", .stream = ZELLineStream::Error});
    ZELWriteLine({.text = ""});
    caught.Stop();

    EXPECT_EQ(caught.output, "to output\n\n");
    EXPECT_EQ(caught.error, "to error\n");
}

TEST(ZELLineSinkTest, LinesKeepTheirOrderAmongTheProgramsOwn) {
    CaughtOutput caught;

    std::printf("before\n");
    ZELWriteLine({.text = "line"});
    std::printf("after\n");
    caught.Stop();

    EXPECT_EQ(caught.output, "before\nline\nafter\n");
}

TEST(ZELLineSinkTest, ALongErrorLineArrivesWhole) {
    const std::string text(10000, 'x');
    CaughtOutput caught;

    ZELWriteLine({.text = text, .stream = ZELLineStream::Error});
    caught.Stop();

    EXPECT_EQ(caught.error, text + "\n");
}

TEST(ZELLineSinkTest, ASinkTakesLinesUntilItIsTakenAway) {
    KeepingSink sink;
    CaughtOutput caught;

    EXPECT_EQ(ZELSetLineSink(&sink), nullptr);
    ZELWriteLine({.text = "one",
                  .stream = ZELLineStream::Error,
                  .severity = ZELLineSeverity::Warning,
                  .fromDocument = true});
    EXPECT_EQ(ZELSetLineSink(nullptr), &sink);
    ZELWriteLine({.text = "two"});
    caught.Stop();

    EXPECT_EQ(sink.texts, std::vector<std::string>{"one"});
    EXPECT_EQ(sink.last.stream, ZELLineStream::Error);
    EXPECT_EQ(sink.last.severity, ZELLineSeverity::Warning);
    EXPECT_TRUE(sink.last.fromDocument);
    EXPECT_EQ(caught.output, "two\n");
    EXPECT_EQ(caught.error, "");
}

TEST(ZELLineSinkDeathTest, LinesMayBeWrittenAtProcessExit) {
    EXPECT_EXIT(
        {
            std::atexit([] { ZELWriteLine({.text = "last words", .stream = ZELLineStream::Error}); });
            std::exit(0);
        },
        testing::ExitedWithCode(0), "last words");
}

}  // namespace
