// What is told of how far things are, and when.
#include "Progress.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <condition_variable>
#include <mutex>
#include <string>
#include <vector>

namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;
using tool::Progress;
using tool::ProgressState;
using tool::ProgressText;

constexpr std::size_t kWidth = 79;

/// Keeps what it is told, as the profiler behind.
class Told final : public ZanDicProfiler {
public:
    void StepIn(std::string_view operation, std::string_view subject) override {
        steps.push_back("in " + std::string(operation) + " " + std::string(subject));
    }
    void StepOut(std::string_view operation, std::string_view subject) override {
        steps.push_back("out " + std::string(operation) + " " + std::string(subject));
    }
    void ResetAll() override { steps.emplace_back("reset"); }

    std::vector<std::string> steps;
};

/// A terminal line that remembers what was drawn.
class Screen {
public:
    Progress::Draw Draw() {
        return [this](std::string_view line) {
            const std::lock_guard lock(_Mutex);
            _LINES.emplace_back(line);
            _Changed.notify_all();
        };
    }

    /// Waits for the next line that is drawn. \returns it.
    std::string WaitForLine() {
        std::unique_lock lock(_Mutex);
        const std::size_t before = _LINES.size();
        _Changed.wait(lock, [&] { return _LINES.size() > before; });
        return _LINES.back();
    }

    std::vector<std::string> Lines() {
        const std::lock_guard lock(_Mutex);
        return _LINES;
    }

private:
    std::mutex _Mutex;
    std::condition_variable _Changed;
    std::vector<std::string> _LINES;
};

TEST(ProgressTextTest, OfSeveralItTellsHowManyAreDone) {
    EXPECT_EQ(ProgressText({"loading", "Items", 1, 4, 7, 3s}, kWidth),
              "loading Items [#####...............] 1 of 4, 3 s");
    EXPECT_EQ(ProgressText({"loading", "Items", 9, 4, 7, 3s}, kWidth),
              "loading Items [####################] 9 of 4, 3 s");
}

TEST(ProgressTextTest, OfOneAPieceRunsToAndFro) {
    EXPECT_EQ(ProgressText({"saving", "Items", 0, 1, 0, 2s}, kWidth),
              "saving Items [####................] 2 s");
    EXPECT_EQ(ProgressText({"saving", "Items", 0, 1, 16, 2s}, kWidth),
              "saving Items [................####] 2 s");
    EXPECT_EQ(ProgressText({"saving", "Items", 0, 1, 17, 2s}, kWidth),
              "saving Items [...............####.] 2 s");
    EXPECT_EQ(ProgressText({"saving", "Items", 0, 1, 32, 2s}, kWidth),
              "saving Items [####................] 2 s");
}

TEST(ProgressTextTest, ALongNameIsCut) {
    const std::string text = ProgressText({"loading", std::string(200, 'n'), 1, 4, 0, 3s}, kWidth);

    EXPECT_EQ(text.size(), kWidth);
    EXPECT_THAT(text, HasSubstr("] 1 of 4, 3 s"));
}

TEST(ProgressTextTest, NothingMovesTheCursor) {
    EXPECT_THAT(ProgressText({"loading", "a\nb\033", 0, 1, 0, 0s}, kWidth),
                StartsWith("loading a\\nb\\x1B ["));
}

TEST(ProgressTest, PassesOnWhatItHears) {
    Told told;
    Screen screen;
    Progress progress(told, screen.Draw(), 1h);

    progress.StepIn("load", "A");
    progress.StepOut("load", "A");
    progress.ResetAll();

    EXPECT_THAT(told.steps, ElementsAre("in load A", "out load A", "reset"));
}

TEST(ProgressTest, WhatIsShortIsNotTold) {
    Told told;
    Screen screen;
    {
        Progress progress(told, screen.Draw(), 1h);
        progress.StepIn("load", "A");
        progress.StepOut("load", "A");
    }
    EXPECT_THAT(screen.Lines(), IsEmpty());
}

TEST(ProgressTest, WhatTakesLongerIsDrawnAndTakenAwayAtItsEnd) {
    Told told;
    Screen screen;
    Progress progress(told, screen.Draw(), 0ms);
    progress.Expect("loading", 3);
    progress.Done();

    progress.StepIn("load", "A");
    const std::string first = screen.WaitForLine();
    progress.StepIn("load", "B");
    std::string second = screen.WaitForLine();
    progress.StepOut("load", "B");
    progress.StepOut("load", "A");

    EXPECT_THAT(first, StartsWith("loading A [######..............] 1 of 3, "));
    EXPECT_THAT(second, StartsWith("loading B "));
    EXPECT_EQ(screen.Lines().back(), "");
}

TEST(ProgressTest, BetweenTheStepsNothingIsDrawn) {
    Told told;
    Screen screen;
    Progress progress(told, screen.Draw(), 0ms);
    progress.StepIn("load", "A");
    screen.WaitForLine();
    progress.StepOut("load", "A");
    const std::size_t drawn = screen.Lines().size();

    std::this_thread::sleep_for(250ms);

    EXPECT_EQ(screen.Lines().size(), drawn);
}

}  // namespace
