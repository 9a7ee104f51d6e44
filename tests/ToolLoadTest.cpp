// `zandic load`: what it writes of the packages that got loaded, and how it refuses others.
#include "ToolRunner.h"

namespace {

class ToolLoadTest : public ToolTest {};

constexpr const char* kPackageUuid = R"(Uuid="00000000-0000-0000-0000000000000001")";

TEST_F(ToolLoadTest, WritesOneLineAPackageAndATotal) {
    const ToolRun run = OnSample({"load", "BomEffectivity"});

    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(WithoutTimes(run.out), ExpectedOutput("load-BomEffectivity.txt"));
}

TEST_F(ToolLoadTest, CountsEveryKind) {
    const ToolRun run = OnSample({"load", "BomServices", "BomStorageMap.rbomap"});

    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(WithoutTimes(run.out), ExpectedOutput("load-new-kinds.txt"));
}

TEST_F(ToolLoadTest, APackageStandsBehindWhatItUses) {
    const std::string out = OnSample({"load", "BomWorkshop", "BomDocuments"}).out;

    EXPECT_EQ(out.find("BomWorkshop "), 0U);
    EXPECT_LT(out.find("BomPeople "), out.find("BomDocuments "));
    EXPECT_EQ(LinesIn(out), 4);
}

TEST_F(ToolLoadTest, APackageAskedForTwiceHasOneLine) {
    EXPECT_EQ(WithoutTimes(OnSample({"load", "BomPeople", "BomPeople.metadata", "BomPeople"}).out),
              WithoutTimes(OnSample({"load", "BomPeople"}).out));
}

TEST_F(ToolLoadTest, EveryLineEndsWithMilliseconds) {
    const std::string out = WithoutTimes(OnSample({"load", "BomEffectivity", "BomWorkshop"}).out);

    std::size_t timed = 0;
    for (std::size_t at = 0; (at = out.find(" # ms\n", at)) != out.npos; ++at) ++timed;
    EXPECT_EQ(timed, 6U);
}

TEST_F(ToolLoadTest, ThePackageHasTheNameOfItsDocument) {
    Own().MakeFile("Short.metadata",
                   R"(<Package Name="LongName" Uuid="00000000-0000-0000-0000000000000001"/>)");

    const ToolRun run = OnOwn({"load", "Short"});

    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(WithoutTimes(run.out),
              "LongName  00000000-0000-0000-0000000000000001 # ms\n"
              "total     1 package # ms\n");
    EXPECT_EQ(run.err,
              "OxmDicFromXML:OxmDicFromXML-*** WARNING *** Package name LongName differs from the name asked "
              "for: Short.\n");
}

TEST_F(ToolLoadTest, WhatIsNotThereIsRefusedInOneLine) {
    const ToolRun run = OnSample({"--quiet", "load", "BomNothing"});

    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(WithoutPlaces(run.err),
              "zandic: BomNothing: error: there is no document BomNothing.metadata in samples\n");
}

TEST_F(ToolLoadTest, AFaultIsToldWithFileLineAndColumn) {
    MakePackage(
        "Faulty", kPackageUuid,
        "  <Class Name=\"Part\" Uuid=\"00000000-0000-0000-0000000000000002\" Persistent=\"Maybe\"/>\n");

    const ToolRun run = OnOwn({"load", "Faulty"});

    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(WithoutPlaces(LastLine(run.err)),
              "zandic: own/Faulty.metadata:2:65: error: \"Maybe\" is no valid value of Persistent");
}

TEST_F(ToolLoadTest, ColumnsCountCharacters) {
    MakePackage("Faulty", kPackageUuid,
                "  <Class Alias=\"Stück\" Name=\"Teil\" Uuid=\"00000000-0000-0000-0000000000000002\" "
                "Persistent=\"?\"/>\n");

    EXPECT_EQ(WithoutPlaces(LastLine(OnOwn({"load", "Faulty"}).err)),
              "zandic: own/Faulty.metadata:2:79: error: \"?\" is no valid value of Persistent");
}

TEST_F(ToolLoadTest, WhatIsNotWellFormedIsToldWithItsPlace) {
    Own().MakeFile("Broken.metadata", "<Package Name=\"Broken\">\n  <Class\n</Package>\n");

    const ToolRun run = OnOwn({"load", "Broken"});

    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(WithoutPlaces(LastLine(run.err)).find("zandic: own/Broken.metadata:2:3: error: "), 0U);
}

TEST_F(ToolLoadTest, TheFaultIsTheOneOfThePrerequisite) {
    MakePackage("Below", kPackageUuid, "<Class Name=\"Part\" Persistent=\"Yes\"/>\n");
    MakePackage("Above", R"(Uuid="00000000-0000-0000-0000000000000009" UseNames="Below")", "");

    const ToolRun run = OnOwn({"--quiet", "load", "Above", "Below"});

    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(WithoutPlaces(run.err).find("zandic: own/Below.metadata:2:1: error: "), 0U);
    EXPECT_EQ(LinesIn(run.err), 1) << "the same fault is told once";
}

TEST_F(ToolLoadTest, WhatGotLoadedIsWrittenBesideARefusal) {
    const ToolRun run = OnSample({"--quiet", "load", "BomNothing", "BomPeople"});

    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(LinesIn(run.out), 2);
    EXPECT_EQ(LinesIn(run.err), 1);
}

TEST_F(ToolLoadTest, NamesThatLeaveThePathAreRefused) {
    for (const std::string name : {"../samples/BomPeople", "dir/BomPeople", "dir\\BomPeople"}) {
        const ToolRun run = OnSample({"--quiet", "load", name});

        EXPECT_EQ(run.status, 1);
        EXPECT_EQ(run.err, "zandic: " + name + ": error: \"" + name + "\" cannot be the name of a package\n");
    }
}

TEST_F(ToolLoadTest, AnUnknownContentWordIsRefused) {
    const ToolRun run = OnSample({"--quiet", "load", "BomPeople.xml"});

    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.err, "zandic: BomPeople.xml: error: \"xml\" is no content word\n");
}

TEST_F(ToolLoadTest, WithoutAPathItSaysHowToGiveOne) {
    const ToolRun run = Run({"load", "BomPeople"});

    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(
        run.err,
        "zandic: BomPeople: error: there is no path to search: give --path, or set ZELDictionaryPath\n");
}

TEST_F(ToolLoadTest, WithoutTimesItIsTheSameInEveryRun) {
    EXPECT_EQ(
        OnSample({"--quiet", "load", "--no-times", "BomWorkshop"}).out,
        "BomWorkshop  02D26687-F464-48A5-BF474B50D3AD637C  1 Class  2 Simple  1 Relationship  1 Unique  1 "
        "Enum  3 Enumerator\n"
        "total        1 package                            1 Class  2 Simple  1 Relationship  1 Unique  1 "
        "Enum  3 Enumerator\n");
}

TEST_F(ToolLoadTest, Json) {
    EXPECT_EQ(OnSample({"--quiet", "load", "--no-times", "--json", "BomWorkshop"}).out,
              ExpectedOutput("load.json"));
    EXPECT_NE(OnSample({"--quiet", "load", "--json", "BomWorkshop"}).out.find("\"milliseconds\": "),
              std::string::npos);
}

TEST_F(ToolLoadTest, LoadsEvenWhereProgramsAreToldNotTo) {
    EXPECT_EQ(Run({"--path", ZANDIC_SAMPLES, "load", "BomPeople"}, {"VALKOR_META=OFF"}).status, 0);
}

}  // namespace
