// `zandic tree`: the hierarchies of packages and classes.
#include <gmock/gmock.h>

#include <nlohmann/json.hpp>

#include "ToolRunner.h"

namespace {

using testing::HasSubstr;

class ToolTreeTest : public ToolTest {
protected:
    std::string Tree(std::vector<std::string> arguments) const {
        arguments.insert(arguments.begin(), {"--quiet", "tree"});
        const ToolRun run = OnOwn(arguments);
        EXPECT_EQ(run.status, 0) << run.err;
        return run.out;
    }

    /// A package of classes, each derived from the one before it.
    void MakeChain(int length) const {
        std::string classes;
        for (int number = 0; number < length; ++number) {
            classes += "<Class Name=\"C" + std::to_string(number) + "\" Uuid=\"" + Uuid(number) +
                       "\" Persistent=\"Yes\"" +
                       (number > 0 ? " SuperRef=\"" + Uuid(number - 1) + "\"" : std::string()) + "/>\n";
        }
        MakePackage("Chain", R"(Uuid="F0000000-0000-0000-0000000000000000")", classes);
    }

    static std::string Uuid(int number) {
        const std::string digits = std::to_string(number);
        return "00000000-0000-0000-0001" + std::string(12 - digits.size(), '0') + digits;
    }
};

TEST_F(ToolTreeTest, OfAllPackagesEachHierarchyStandsOnceWhereItBegins) {
    const ToolRun run = OnSample({"--quiet", "tree"});

    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, ExpectedOutput("tree-path.txt"));
    EXPECT_EQ(run.err, "");
}

TEST_F(ToolTreeTest, OfAPackageItSaysWhatTheFirstOnesAreDerivedFrom) {
    EXPECT_EQ(OnSample({"--quiet", "tree", "BomEffectivity"}).out, ExpectedOutput("tree-package.txt"));
}

TEST_F(ToolTreeTest, AttributesStandUnderTheirClasses) {
    EXPECT_EQ(OnSample({"--quiet", "tree", "BomItems", "--attributes"}).out,
              ExpectedOutput("tree-attributes.txt"));
}

TEST_F(ToolTreeTest, OfAClassItShowsWhatIsAboveAndBelow) {
    EXPECT_EQ(OnSample({"--quiet", "tree", "BomItems::BomPart"}).out,
              "BomItem            abstract, 8 attributes, \"Item\"\n"
              "└─ BomPart         7 attributes, \"Part\"\n"
              "   └─ BomAssembly  2 attributes, \"Assembly\"\n");
}

TEST_F(ToolTreeTest, SubclassesOfOtherPackagesStandWithTheirNames) {
    EXPECT_THAT(OnSample({"--quiet", "tree", "BomItems::BomUsage", "--in", "BomEffectivity"}).out,
                HasSubstr("└─ BomEffectivity::BomEffectiveUsage"));
}

TEST_F(ToolTreeTest, TheDepthIsLimitedAndTheRestCounted) {
    EXPECT_EQ(OnSample({"--quiet", "tree", "BomItems::BomItem", "--depth", "1"}).out,
              "BomItem            abstract, 8 attributes, \"Item\"\n"
              "├─ BomPart         7 attributes, \"Part\", 1 more below\n"
              "└─ BomRawMaterial  2 attributes, \"Raw material\"\n");
    EXPECT_EQ(OnSample({"--quiet", "tree", "BomItems::BomItem", "--depth", "0"}).out,
              "BomItem  abstract, 8 attributes, \"Item\", 3 more below\n");
}

TEST_F(ToolTreeTest, InterfacesHaveAHierarchyToo) {
    EXPECT_EQ(OnSample({"--quiet", "tree", "BomServices::BomCosting"}).out,
              "BomQuery       Interface, \"Questions about a structure\"\n"
              "└─ BomCosting  Interface, \"Costs of a structure\"\n");
}

TEST_F(ToolTreeTest, SeveralNamesStandApart) {
    const std::string one = OnSample({"--quiet", "tree", "BomServices::BomCosting"}).out;

    EXPECT_EQ(OnSample({"--quiet", "tree", "BomServices::BomCosting", "BomServices::BomCosting"}).out,
              one + "\n" + one);
}

TEST_F(ToolTreeTest, AUuidLeadsToAClass) {
    EXPECT_EQ(OnSample({"--quiet", "tree", "5AAF3900-5E46-4551-BB9AE4FD947B8003", "--in", "BomItems"}).out,
              OnSample({"--quiet", "tree", "BomItems::BomPart"}).out);
}

TEST_F(ToolTreeTest, WhatIsNoClassIsRefused) {
    const ToolRun run = OnSample({"--quiet", "tree", "BomItems::BomPartSource"});

    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.err,
              "zandic: BomItems::BomPartSource: error: Enum BomItems::BomPartSource is no class and has no "
              "hierarchy\n");
}

TEST_F(ToolTreeTest, APackageWithoutClassesSaysSo) {
    MakePackage("Empty", R"(Uuid="00000000-0000-0000-0000000000000001")", "");

    EXPECT_EQ(Tree({"Empty"}), "Package Empty\n\n  There is no class.\n");
}

TEST_F(ToolTreeTest, ADeepChainIsDrawnOnlySoFarToTheRight) {
    MakeChain(2'000);

    const std::string out = Tree({"Chain::C1999"});

    EXPECT_EQ(LinesIn(out), 2'000);
    EXPECT_LT(out.size(), 2'000U * 120U) << "linear in the classes";
    EXPECT_THAT(out, HasSubstr("└─ (level 1999) C1999\n"));
}

TEST_F(ToolTreeTest, AsJsonItIsAListInWhichEachStandsBehindItsSuperClass) {
    const ToolRun run = OnSample({"--quiet", "tree", "BomItems::BomPart", "--json"});

    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, ExpectedOutput("tree.json"));
}

TEST_F(ToolTreeTest, AsJsonItTellsWhatTheDepthLeavesOut) {
    const auto tree = nlohmann::json::parse(
        OnSample({"--quiet", "tree", "BomItems::BomItem", "--json", "--depth", "0", "--attributes"}).out);

    ASSERT_EQ(tree["classes"].size(), 1U);
    EXPECT_EQ(tree["classes"][0]["leftOutBelow"], 3);
    EXPECT_EQ(tree["classes"][0]["attributes"][0]["name"], "ItemNumber");
    EXPECT_EQ(tree["classes"][0]["attributes"][0]["type"], "String(24)");
}

TEST_F(ToolTreeTest, ANumberIsNeededForTheDepth) {
    const ToolRun run = OnSample({"tree", "--depth", "-1"});

    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.err, "zandic: error: --depth cannot be '-1' (see 'zandic tree --help')\n");
    EXPECT_EQ(OnSample({"tree", "--depth", "all"}).status, 2);
    EXPECT_EQ(OnSample({"tree", "--depth"}).status, 2);
}

}  // namespace
