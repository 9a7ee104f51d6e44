// `zandic express`: where schemas go, that they do not depend on who asked before, and what is told.
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>

#include "ToolRunner.h"

namespace {

namespace fs = std::filesystem;

constexpr const char* kPackageUuid = R"(Uuid="00000000-0000-0000-0000000000000001")";

std::string TextOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file.is_open()) << path;
    return {std::istreambuf_iterator<char>(file), {}};
}

class ToolExpressTest : public ToolTest {
protected:
    ToolExpressTest() { Own().MakeDirectory("there"); }

    std::string There() const { return Own().Path("there"); }

    /// \returns the last line of a run that must have refused something.
    std::string Refusal(const ToolRun& run) const {
        EXPECT_EQ(run.status, 1);
        EXPECT_EQ(run.out, "");
        return WithoutPlaces(LastLine(run.err));
    }
};

TEST_F(ToolExpressTest, WritesOneSchemaForEachName) {
    const ToolRun run = OnSample({"express", "BomServices", "BomPeople", "--to", There()});

    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(WithoutPlaces(run.out), "own/there/BomServices.express\nown/there/BomPeople.express\n");
    EXPECT_EQ(TextOf(There() + "/BomServices.express"), ExpectedOutput("express-BomServices.txt"));
}

TEST_F(ToolExpressTest, WritesToThePresentDirectory) {
    EXPECT_EQ(Shell("cd '" + There() + "' && \"$TOOL\" --path \"$SAMPLES\" express BomServices > ../out"), 0);

    EXPECT_EQ(TextOf(Own().Path("out")), "BomServices.express\n");
    EXPECT_EQ(TextOf(There() + "/BomServices.express"), ExpectedOutput("express-BomServices.txt"));
}

TEST_F(ToolExpressTest, WritesToStandardOutput) {
    const ToolRun run = OnSample({"express", "BomServices", "--stdout"});

    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, ExpectedOutput("express-BomServices.txt"));
}

TEST_F(ToolExpressTest, StandardOutputLeavesNoFileBehind) {
    const std::string places = Own().MakeDirectory("places");

    EXPECT_EQ(Run({"--path", ZANDIC_SAMPLES, "express", "BomServices", "BomPeople", "--stdout"},
                  {"TMPDIR=" + places})
                  .status,
              0);

    EXPECT_TRUE(fs::is_empty(places));
}

TEST_F(ToolExpressTest, StandardOutputNeedsAPlaceMeanwhile) {
    EXPECT_EQ(Refusal(Run({"--path", ZANDIC_SAMPLES, "express", "BomServices", "--stdout"},
                          {"TMPDIR=" + Own().Path("none")})),
              "zandic: standard output: error: there is no place for a temporary file");
}

TEST_F(ToolExpressTest, RedefinitionsAreMarkedThoughNobodyAskedBefore) {
    const ToolRun run = OnSample({"express", "BomItems", "--stdout"});

    EXPECT_NE(run.out.find("    (* -- Specialization : "), run.out.npos);
}

TEST_F(ToolExpressTest, TheSampleAgreesWithItsDumpByAnIndependentReading) {
    const std::string names =
        "BomDocuments BomEffectivity BomItems BomPeople BomServices BomStorage.rbodef BomStorageMap.rbomap "
        "BomWorkshop";

    EXPECT_EQ(Shell("cd '" + There() + "' && \"$TOOL\" --quiet --path \"$SAMPLES\" express " + names +
                    " > ../out 2> ../err && \"$TOOL\" --quiet --path \"$SAMPLES\" dump --json " + names +
                    " > ../dump && \"$SAMPLES/../scripts/check_express\" ../dump *.express > ../checked"),
              0);

    EXPECT_EQ(LinesIn(TextOf(Own().Path("checked"))), 8) << TextOf(Own().Path("checked"));
}

TEST_F(ToolExpressTest, ASchemaIsWrittenUnderTheNameOfThePackage) {
    Own().MakeFile("File.metadata", "<Package Name=\"Own\" " + std::string(kPackageUuid) + "/>\n");

    EXPECT_EQ(WithoutPlaces(OnOwn({"express", "File", "Own", "--to", There()}).out),
              "own/there/Own.express\n");
    EXPECT_EQ(WithoutPlaces(OnSample({"express", "BomStorage.rbodef", "--to", There()}).out),
              "own/there/BomStorage.express\n");
}

TEST_F(ToolExpressTest, AnEarlyEndIsAWarning) {
    const ToolRun run = OnSample({"--quiet", "express", "BomItems", "--to", There()});

    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(
        run.err,
        "zandic: BomItems: warning: 1 of 6 classes are not written: BomPhysicalPart ends the schema, since "
        "it is not persistent and has no subclasses\n");
}

TEST_F(ToolExpressTest, AnInstanceEndsASchemaAsWell) {
    MakePackage("P", kPackageUuid,
                R"(<Class Name="A" Uuid="00000000-0000-0000-0000000000000011" Persistent="Yes"/>)"
                R"(<Instance Name="B" Uuid="00000000-0000-0000-0000000000000012" Persistent="Yes"/>)"
                R"(<Class Name="C" Uuid="00000000-0000-0000-0000000000000013" Persistent="Yes"/>)");

    const ToolRun run = OnOwn({"express", "P", "--stdout"});

    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(
        run.err,
        "zandic: P: warning: 2 of 3 classes are not written: B ends the schema, since it is an instance\n");
    EXPECT_NE(run.out.find("ENTITY A ;"), run.out.npos);
    EXPECT_EQ(run.out.find("ENTITY C ;"), run.out.npos);
}

TEST_F(ToolExpressTest, AClassThatIsNotPersistentStaysWhereItHasSubclasses) {
    MakePackage("P", kPackageUuid,
                R"(<Class Name="A" Uuid="00000000-0000-0000-0000000000000011" Persistent="No"/>)"
                R"(<Class Name="B" Uuid="00000000-0000-0000-0000000000000012" Persistent="Yes")"
                R"( SuperRef="00000000-0000-0000-0000000000000011"/>)");

    const ToolRun run = OnOwn({"express", "P", "--stdout"});

    EXPECT_EQ(run.err, "");
    EXPECT_NE(run.out.find("ENTITY B SUBTYPE OF (A)"), run.out.npos);
}

TEST_F(ToolExpressTest, TheDirectoryMustExist) {
    EXPECT_EQ(Refusal(OnSample({"express", "BomServices", "--to", Own().Path("none")})),
              "zandic: own/none: error: there is no such directory");
    EXPECT_EQ(Refusal(OnSample({"express", "BomServices", "--to", ""})),
              "zandic: error: there is no such directory");
}

TEST_F(ToolExpressTest, APackageThatIsRefusedKeepsNoOtherBack) {
    const ToolRun run = OnSample({"express", "BomNothing", "BomServices", "--to", There()});

    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(WithoutPlaces(run.out), "own/there/BomServices.express\n");
    EXPECT_EQ(WithoutPlaces(LastLine(run.err)),
              "zandic: BomNothing: error: there is no document BomNothing.metadata in samples");
}

TEST_F(ToolExpressTest, WhatCannotBeWrittenIsAFault) {
    Own().MakeDirectory("there/BomServices.express");

    EXPECT_EQ(Refusal(OnSample({"express", "BomServices", "--to", There()})),
              "zandic: own/there/BomServices.express: error: it could not be written: Is a directory");
    EXPECT_EQ(Refusal(OnSample({"express", "BomServices", "--to", "/proc"})),
              "zandic: /proc/BomServices.express: error: it could not be written: No such file or directory");
}

TEST_F(ToolExpressTest, AFileThatDoesNotFitIsAFaultAndTheOldOneStays) {
    const std::string old = Own().MakeFile("there/BomItems.express", "old");

    EXPECT_EQ(Shell("ulimit -f 1; \"$TOOL\" --path \"$SAMPLES\" express BomItems --to '" + There() + "' > '" +
                    Own().Path("out") + "' 2> '" + Own().Path("err") + "'"),
              1);

    const std::string err = TextOf(Own().Path("err"));
    EXPECT_NE(err.find("File too large"), err.npos) << err;
    EXPECT_EQ(WithoutPlaces(LastLine(err)),
              "zandic: own/there/BomItems.express: error: it could not be written: File too large");
    EXPECT_EQ(TextOf(old), "old");
}

}  // namespace
