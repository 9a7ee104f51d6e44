// Which lines go to which stream, and what becomes of the tool when nobody takes them.
#include "ToolRunner.h"

namespace {

constexpr const char* kUnknownAttribute =
    "OxmDicFromXML:FillClass- *** WARNING *** Unknown attribute:Owner=Structure team.\n";

class ToolStreamsTest : public ToolTest {
protected:
    static std::string Data(const ToolRun& run) { return WithoutTimes(run.out); }
};

TEST_F(ToolStreamsTest, WarningsOfADocumentReachStandardError) {
    const ToolRun run = OnSample({"load", "BomItems"});

    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.err, kUnknownAttribute);
}

TEST_F(ToolStreamsTest, QuietKeepsThemBack) {
    const ToolRun run = OnSample({"--quiet", "load", "BomItems"});

    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(Data(run), Data(OnSample({"load", "BomItems"})));
}

TEST_F(ToolStreamsTest, TheToolsOwnLineIsTheLast) {
    const ToolRun run = OnSample({"load", "BomNothing"});

    EXPECT_EQ(
        WithoutPlaces(run.err),
        "OxmDicFromXML:OxmDicFromXML-*** ERROR *** Could not find document BomNothing.metadata in samples.\n"
        "zandic: BomNothing: error: there is no document BomNothing.metadata in samples\n");
    for (const std::string level : {"0", "1", "2", "5", "-1"}) {
        EXPECT_EQ(LastLine(OnSample({"--trace-level", level, "load", "BomNothing"}).err), LastLine(run.err))
            << level;
    }
}

TEST_F(ToolStreamsTest, QuietKeepsTheToolsOwnLine) {
    EXPECT_EQ(OnSample({"--quiet", "load", "BomNothing"}).err,
              LastLine(OnSample({"load", "BomNothing"}).err) + "\n");
}

TEST_F(ToolStreamsTest, TheTraceGoesToStandardError) {
    const ToolRun run = OnSample({"--trace-level", "1", "load", "BomItems"});

    EXPECT_EQ(run.status, 0);
    EXPECT_NE(run.err.find("ZanDictionary::LoadXml- === start ===.\n"), run.err.npos);
    EXPECT_NE(run.err.find(kUnknownAttribute), run.err.npos);
    EXPECT_EQ(Data(run), Data(OnSample({"load", "BomItems"})));
}

TEST_F(ToolStreamsTest, AHigherLevelTellsMore) {
    const auto told = [this](const char* level) {
        return LinesIn(OnSample({"--trace-level", level, "load", "BomItems"}).err);
    };

    EXPECT_LT(told("0"), told("1"));
    EXPECT_LT(told("1"), told("2"));
    EXPECT_LT(told("2"), told("4"));
    EXPECT_LT(told("4"), told("5"));
}

TEST_F(ToolStreamsTest, AWarningIsToldOnceAtEveryLevel) {
    for (const std::string level : {"-1", "0", "1", "5"}) {
        const std::string err = OnSample({"--trace-level", level, "load", "BomItems"}).err;

        const std::size_t first = err.find(kUnknownAttribute);
        EXPECT_NE(first, err.npos) << level;
        EXPECT_EQ(err.find(kUnknownAttribute, first + 1), err.npos) << level;
    }
}

TEST_F(ToolStreamsTest, QuietBeatsTheTrace) {
    EXPECT_EQ(OnSample({"--quiet", "--trace-level", "5", "load", "BomItems"}).err, "");
}

TEST_F(ToolStreamsTest, ListedOperationsAreTraced) {
    const std::string list = Own().MakeFile("methods", "# loading\nZanDictionary::LoadXml\n");

    const ToolRun run = OnSample({"--trace-methods", list, "load", "BomPeople"});

    EXPECT_EQ(run.status, 0);
    EXPECT_NE(run.err.find("ZanDictionary::LoadXml- === start ===.\n"), run.err.npos);
    EXPECT_EQ(run.err.find("ZanDictionary::GetPackage"), run.err.npos);
}

TEST_F(ToolStreamsTest, AListThatIsNotThereEndsTheRun) {
    const ToolRun run = OnSample({"--trace-methods", Own().Path("nothing"), "load", "BomPeople"});

    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(WithoutPlaces(LastLine(run.err)),
              "zandic: own/nothing: error: the list of traced methods cannot be read");
}

TEST_F(ToolStreamsTest, VariablesOfTheTraceDoNotMixLinesIntoTheData) {
    const std::vector<std::string> load{"--path", ZANDIC_SAMPLES, "--quiet", "load", "BomPeople"};
    const std::string plain = WithoutTimes(Run(load).out);

    EXPECT_EQ(WithoutTimes(Run(load, {"ZANDIC_TRACE_LEVEL=5"}).out), plain);
    EXPECT_EQ(WithoutTimes(Run(load, {"ZANDIC_TRACE_METHODS=/nowhere"}).out), plain);
}

TEST_F(ToolStreamsTest, VariablesOfTheTraceAloneTellOnlyOfDocuments) {
    EXPECT_EQ(Run({"--path", ZANDIC_SAMPLES, "load", "BomItems"}, {"ZANDIC_TRACE_LEVEL=5"}).err,
              kUnknownAttribute);
}

TEST_F(ToolStreamsTest, AReaderThatStopsEarlyEndsItWithoutAWord) {
    const std::string err = Own().Path("err");
    const std::string status = Own().Path("status");

    // More than a pipe holds: the tool cannot be done before the reader goes.
    EXPECT_EQ(Shell("{ \"$TOOL\" --quiet --path \"$SAMPLES\" dump --json BomEffectivity 2> '" + err +
                    "'; echo $? > '" + status + "'; } | head -n 1 > /dev/null"),
              0);

    EXPECT_EQ(Shell("test ! -s '" + err + "'"), 0);
    EXPECT_EQ(Shell("grep -qx 141 '" + status + "'"), 0) << "ended by the signal";
}

TEST_F(ToolStreamsTest, AFullDiskIsAFault) {
    const std::string err = Own().Path("err");

    EXPECT_EQ(Shell("\"$TOOL\" --quiet --path \"$SAMPLES\" dump --json BomEffectivity > /dev/full 2> '" +
                    err + "'"),
              1);
    EXPECT_EQ(Shell("grep -qx 'zandic: standard output: error: No space left on device' '" + err + "'"), 0);
    EXPECT_EQ(Shell("\"$TOOL\" --help > /dev/full 2> /dev/null"), 1);
}

}  // namespace
