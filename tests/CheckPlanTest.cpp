#include "CheckPlan.h"

#include <gtest/gtest.h>

#include "ZELTestDirectory.h"

namespace {

using tool::CheckPlan;

class CheckPlanTest : public ::testing::Test {
protected:
    CheckPlanTest() {
        std::filesystem::create_directories(first);
        std::filesystem::create_directories(second);
    }

    /// "DIRECTORIES: NAME=FILE (tuning) ..." for each round, with "own" for the directory of the test.
    std::string Rounds(const CheckPlan& plan) const {
        std::string text;
        for (const tool::CheckRound& round : plan.rounds) {
            text += round.directories + ":";
            for (const tool::CheckTarget& target : round.targets) {
                text += " " + target.name + "=" + target.file + (target.isForTuning ? " (tuning)" : "");
            }
            text += "\n";
        }
        for (std::size_t at = 0; (at = text.find(own.Path(), at)) != text.npos;) {
            text.replace(at, own.Path().size(), "own");
        }
        return text;
    }

    TestDirectory own;
    const std::string first = own.Path() + "/first";
    const std::string second = own.Path() + "/second";
};

TEST_F(CheckPlanTest, WhatHoldsASeparatorOrEndsInAContentWordIsAFile) {
    EXPECT_TRUE(tool::IsFileOperand("dir/P"));
    EXPECT_TRUE(tool::IsFileOperand("dir\\P"));
    EXPECT_TRUE(tool::IsFileOperand("P.metadata"));
    EXPECT_TRUE(tool::IsFileOperand("P.tuning"));
    EXPECT_TRUE(tool::IsFileOperand("P.rbodef"));
    EXPECT_TRUE(tool::IsFileOperand("P.rbomap"));
    EXPECT_TRUE(tool::IsFileOperand("P.metaplm"));
    EXPECT_FALSE(tool::IsFileOperand("P"));
    EXPECT_FALSE(tool::IsFileOperand("P.xml"));
    EXPECT_FALSE(tool::IsFileOperand("metadata"));
    EXPECT_FALSE(tool::IsFileOperand(".metadata"));
}

TEST_F(CheckPlanTest, ANameIsLookedForOnThePath) {
    own.MakeFile("second/P.metadata", "");
    CheckPlan plan;

    plan.AddName("P", first + ":" + second);
    plan.AddName("Q", first + ":" + second);

    EXPECT_EQ(Rounds(plan), "own/first:own/second: P.metadata=own/second/P.metadata Q.metadata=\n");
}

TEST_F(CheckPlanTest, ANameWithoutMetadataMeansTheKindThatThereIs) {
    own.MakeFile("first/P.rbomap", "");
    CheckPlan plan;

    plan.AddName("P", first);

    EXPECT_EQ(Rounds(plan), "own/first: P.rbomap=own/first/P.rbomap\n");
}

TEST_F(CheckPlanTest, ADocumentThatIsNotHereIsLookedForOnThePath) {
    own.MakeFile("first/P.rbomap", "");
    CheckPlan plan;

    plan.AddFile("P.rbomap", first);

    EXPECT_EQ(Rounds(plan), "own/first:own/first: P.rbomap=own/first/P.rbomap\n");
}

TEST_F(CheckPlanTest, AFileBringsItsDirectoryInFrontOfThePath) {
    own.MakeFile("second/P.metadata", "");
    CheckPlan plan;

    plan.AddFile(second + "/P.metadata", first);

    EXPECT_EQ(Rounds(plan), "own/second:own/first: P.metadata=own/second/P.metadata\n");
}

TEST_F(CheckPlanTest, FilesOfOneDirectoryShareARound) {
    own.MakeFile("first/P.metadata", "");
    own.MakeFile("first/Q.rbodef", "");
    own.MakeFile("second/P.metadata", "");
    CheckPlan plan;

    plan.AddFile(first + "/P.metadata", "");
    plan.AddFile(second + "/P.metadata", "");
    plan.AddFile(first + "/Q.rbodef", "");
    plan.AddFile(first + "/P.metadata", "");

    EXPECT_EQ(Rounds(plan),
              "own/first: P.metadata=own/first/P.metadata Q.rbodef=own/first/Q.rbodef\n"
              "own/second: P.metadata=own/second/P.metadata\n");
}

TEST_F(CheckPlanTest, TwoKindsOfOnePackageHaveARoundEach) {
    own.MakeFile("first/P.metadata", "");
    own.MakeFile("first/P.rbodef", "");
    CheckPlan plan;

    plan.AddPath(first, true);

    EXPECT_EQ(Rounds(plan),
              "own/first: P.metadata=own/first/P.metadata\nown/first: P.rbodef=own/first/P.rbodef\n");
}

TEST_F(CheckPlanTest, ATuningDocumentIsReadWithItsPackage) {
    own.MakeFile("first/P.tuning", "");
    own.MakeFile("second/P.rbodef", "");
    CheckPlan plan;

    plan.AddFile(first + "/P.tuning", second);
    EXPECT_EQ(Rounds(plan), "own/first:own/second: P.rbodef=own/second/P.rbodef (tuning)\n");
    plan.AddFile(first + "/P.tuning", "");

    ASSERT_EQ(plan.findings.size(), 1U);
    EXPECT_EQ(plan.findings[0].code, "file-not-found");
    EXPECT_EQ(plan.findings[0].text, "there is no document of package \"P\", which it tunes");
}

TEST_F(CheckPlanTest, WithoutAllOnlyMetadataAndNoShadowsAreLookedAt) {
    own.MakeFile("first/P.metadata", "");
    own.MakeFile("first/Q.rbodef", "");
    own.MakeFile("second/P.metadata", "");
    CheckPlan plan;

    plan.AddPath(first + ":" + second, false);

    EXPECT_EQ(Rounds(plan), "own/first:own/second: P.metadata=own/first/P.metadata\n");
    EXPECT_TRUE(plan.findings.empty());
}

TEST_F(CheckPlanTest, OfTwoOfOneNameTheSecondIsShadowed) {
    own.MakeFile("first/P.metadata", "");
    own.MakeFile("second/P.metadata", "");
    own.MakeFile("second/R.tuning", "");
    CheckPlan plan;

    plan.AddPath(first + ":" + second + ":" + first + "/.", true);

    EXPECT_EQ(Rounds(plan), "own/first:own/second:own/first/.: P.metadata=own/first/P.metadata\n");
    ASSERT_EQ(plan.findings.size(), 2U);
    EXPECT_EQ(plan.findings[0].code, "shadowed-document");
    EXPECT_EQ(plan.findings[0].severity, ZanDicSeverity::Warning);
    EXPECT_EQ(plan.findings[0].at.file, second + "/P.metadata");
    EXPECT_EQ(plan.findings[0].notes[0].at.file, first + "/P.metadata");
    EXPECT_EQ(plan.findings[1].at.file, second + "/R.tuning");
}

TEST_F(CheckPlanTest, WhatIsNoDocumentIsAFinding) {
    own.MakeFile("first/P.xml", "");
    CheckPlan plan;

    plan.AddFile(first + "/", "");
    plan.AddFile(first + "/Gone.metadata", "");
    plan.AddFile(first + "/P.xml", "");

    ASSERT_EQ(plan.findings.size(), 3U);
    EXPECT_EQ(plan.findings[0].text,
              "it is a directory: give it by --path, with --all for all that is in it");
    EXPECT_EQ(plan.findings[1].text, "there is no such document");
    EXPECT_EQ(plan.findings[2].code, "invalid-file-extension");
    EXPECT_TRUE(plan.rounds.empty());
}

TEST_F(CheckPlanTest, FilesAreShownWithoutAPointlessBeginning) {
    EXPECT_EQ(tool::ShownFile("./P.metadata"), "P.metadata");
    EXPECT_EQ(tool::ShownFile("././dir/P.metadata"), "dir/P.metadata");
    EXPECT_EQ(tool::ShownFile("../P.metadata"), "../P.metadata");
}

}  // namespace
