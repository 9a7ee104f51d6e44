#include "ZanDicProfiling.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

class KeepingProfiler : public ZanDicProfiler {
public:
    void StepIn(std::string_view operation, std::string_view subject) override {
        calls.push_back("in " + ZanDicProfiling::PhaseName(operation, subject));
    }
    void StepOut(std::string_view operation, std::string_view subject) override {
        calls.push_back("out " + ZanDicProfiling::PhaseName(operation, subject));
    }
    void ResetAll() override { calls.emplace_back("reset"); }

    std::vector<std::string> calls;
};

TEST(ZanDicProfilingTest, NamesAPhaseByItsOperationAndSubject) {
    EXPECT_EQ(ZanDicProfiling::PhaseName("ZanDictionary::LoadXml", "Parts"),
              "ZanDictionary::LoadXml [Parts]");
}

TEST(ZanDicProfilingTest, AProfilerIsToldUntilItIsTakenAway) {
    KeepingProfiler profiler;

    EXPECT_EQ(ZanDicSetProfiler(&profiler), nullptr);
    ZanDicProfiling::StepIn("Load", "Parts");
    ZanDicProfiling::StepOut("Load", "Parts");
    ZanDicProfiling::ResetAll();
    EXPECT_EQ(ZanDicSetProfiler(nullptr), &profiler);
    ZanDicProfiling::StepIn("Load", "Others");
    ZanDicProfiling::StepOut("Load", "Others");
    ZanDicProfiling::ResetAll();

    EXPECT_EQ(profiler.calls, (std::vector<std::string>{"in Load [Parts]", "out Load [Parts]", "reset"}));
}

}  // namespace
