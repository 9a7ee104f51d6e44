// `zandic stats`: counts, lists of the greatest, times and memory.
#include <gmock/gmock.h>

#include <nlohmann/json.hpp>

#include "ToolRunner.h"

namespace {

using testing::HasSubstr;
using testing::Not;

class ToolStatsTest : public ToolTest {};

TEST_F(ToolStatsTest, WithoutTimesItIsTheSameInEveryRun) {
    const ToolRun run = OnSample({"--quiet", "stats", "--no-times"});

    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, ExpectedOutput("stats.txt"));
    EXPECT_EQ(run.err, "");
}

TEST_F(ToolStatsTest, TimesAndMemoryHaveColumnsOfTheirOwn) {
    const std::string out = OnSample({"--quiet", "stats", "BomItems"}).out;

    EXPECT_THAT(out, HasSubstr("load time"));
    EXPECT_THAT(out, HasSubstr(" ms "));
    EXPECT_THAT(out, HasSubstr(" KiB\n"));
}

TEST_F(ToolStatsTest, TheListsAreAsLongAsAsked) {
    const auto stats = nlohmann::json::parse(OnSample({"--quiet", "stats", "--json", "--top", "2"}).out);
    const auto none = OnSample({"--quiet", "stats", "--no-times", "--top", "0"});

    EXPECT_EQ(stats["deepest"].size(), 2U);
    EXPECT_EQ(stats["widest"].size(), 2U);
    EXPECT_EQ(stats["mostReferredTo"].size(), 2U);
    EXPECT_EQ(none.status, 0);
    EXPECT_THAT(none.out, Not(HasSubstr("Widest")));
}

TEST_F(ToolStatsTest, Json) {
    EXPECT_EQ(OnSample({"--quiet", "stats", "--no-times", "--json", "BomEffectivity", "--top", "3"}).out,
              ExpectedOutput("stats.json"));
}

TEST_F(ToolStatsTest, JsonHasTheMeasuredAsKeys) {
    const auto stats = nlohmann::json::parse(OnSample({"--quiet", "stats", "--json", "BomPeople"}).out);

    EXPECT_GT(stats["packages"][0]["milliseconds"], 0.0);
    EXPECT_TRUE(stats["packages"][0]["bytes"].is_number_integer());
    EXPECT_TRUE(stats["total"].contains("milliseconds"));
}

TEST_F(ToolStatsTest, ARedefinedAttributeCountsOnce) {
    MakePackage("Redefining", R"(Uuid="00000000-0000-0000-0000000000000001")",
                R"(<Class Name="Above" Uuid="00000000-0000-0000-0000000000000002" Persistent="Yes">
                     <Simple Name="A" Uuid="00000000-0000-0000-0000000000000003" Type="String"/>
                     <Simple Name="B" Uuid="00000000-0000-0000-0000000000000004" Type="String"/>
                   </Class>
                   <Class Name="Below" Uuid="00000000-0000-0000-0000000000000005" Persistent="Yes"
                          SuperRef="00000000-0000-0000-0000000000000002">
                     <Simple Name="A" Uuid="00000000-0000-0000-0000000000000006" Type="String"/>
                     <Simple Name="C" Uuid="00000000-0000-0000-0000000000000007" Type="String"/>
                   </Class>
                   <Class Name="Beside" Uuid="00000000-0000-0000-0000000000000008" Persistent="Yes"
                          SuperRef="00000000-0000-0000-0000000000000002"/>)");

    const auto stats = nlohmann::json::parse(OnOwn({"--quiet", "stats", "--json"}).out);

    ASSERT_EQ(stats["widest"].size(), 3U);
    EXPECT_EQ(stats["widest"][0]["name"], "Redefining::Below");
    EXPECT_EQ(stats["widest"][0]["attributes"], 3);
    EXPECT_EQ(stats["widest"][0]["own"], 2);
    EXPECT_EQ(stats["widest"][1]["name"], "Redefining::Above");
    EXPECT_EQ(stats["widest"][2]["attributes"], 2) << "what a sister has does not count";
}

TEST_F(ToolStatsTest, WrongUse) {
    EXPECT_EQ(OnSample({"stats", "--top", "many"}).status, 2);
    EXPECT_EQ(OnSample({"stats", "BomItems::BomPart"}).status, 2);
    EXPECT_EQ(OnSample({"--quiet", "stats", "BomNothing"}).status, 1);
}

}  // namespace
