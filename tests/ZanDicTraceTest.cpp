#include "ZanDicTrace.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <sstream>
#include <string>

#include "DictionaryFixture.h"
#include "NewProcess.h"
#include "ZELTestDirectory.h"
#include "ZanDicData.h"

namespace {

constexpr ZanDicTraceScope kScope("ZanDicThing::Do");
constexpr ZanDicTraceScope kManagerScope("ZanDicThing::Manage", "RC=");

std::string AddressText(const void* address) {
    std::ostringstream text;
    text << address;
    return text.str();
}

class ZanDicTraceTest : public DictionaryFixture {
protected:
    /// Lists the lines of \p content.
    HRESULT List(const std::string& content) {
        return ZanDicSetTraceMethodsFile(_Directory.MakeFile("methods.txt", content).c_str());
    }

    TestDirectory _Directory;
};

}  // namespace

TEST_F(ZanDicTraceTest, WritesOnlyErrorsAndWarningsAtLevelZero) {
    kScope.Error("*** ERROR *** bad");
    kScope.Warning("*** WARNING *** odd");
    kScope.Start();
    kScope.Say(TraceLevel::Detail, "detail");
    kScope.Exit(S_OK);

    EXPECT_EQ(Written(),
              "ZanDicThing::Do- *** ERROR *** bad.\n"
              "ZanDicThing::Do- *** WARNING *** odd.\n");
}

TEST_F(ZanDicTraceTest, WritesStartAndExitButNoDetailAtLevelOne) {
    TraceFromNow(1);
    kScope.Start();
    kScope.Say(TraceLevel::Information, "information");
    kScope.Say(TraceLevel::Detail, "detail");
    kScope.Exit(S_OK);

    EXPECT_EQ(Written(), "ZanDicThing::Do- === start ===.\nZanDicThing::Do- === exit === rc=OK.\n");
}

TEST_F(ZanDicTraceTest, WritesEverythingAtLevelFive) {
    TraceFromNow(5);
    kScope.Say(TraceLevel::Information, "information");
    kScope.Say(TraceLevel::Tag, "tag");
    kScope.Say(TraceLevel::Detail, "detail");

    EXPECT_EQ(Written(), "ZanDicThing::Do- information.\nZanDicThing::Do- tag.\nZanDicThing::Do- detail.\n");
}

TEST_F(ZanDicTraceTest, WritesNotEvenErrorsAtANegativeLevel) {
    TraceFromNow(-1);
    kScope.Error("*** ERROR *** bad");

    EXPECT_EQ(Written(), "");
}

TEST_F(ZanDicTraceTest, WritesEveryLineOfAListedOperationAtANegativeLevel) {
    List("ZanDicThing::Do\n");
    TraceFromNow(-1);
    kScope.Error("*** ERROR *** bad");
    kScope.Say(TraceLevel::Detail, "detail");
    kManagerScope.Error("*** ERROR *** other");

    EXPECT_EQ(Written(), "ZanDicThing::Do- *** ERROR *** bad.\nZanDicThing::Do- detail.\n");
}

TEST_F(ZanDicTraceTest, ComparesListedNamesWholeAndExactly) {
    List("ZanDicThing\nzandicthing::do\nZanDicThing::Do \nZanDicThing::DoIt\n");
    kScope.Start();

    EXPECT_EQ(Written(), "");
}

TEST_F(ZanDicTraceTest, SaysExitWithTheWordOfTheScope) {
    TraceFromNow(1);

    EXPECT_EQ(kScope.Exit(E_FAIL), E_FAIL);
    EXPECT_EQ(kManagerScope.Exit(S_FALSE), S_FALSE);
    EXPECT_EQ(Written(), "ZanDicThing::Do- === exit === rc=KO.\nZanDicThing::Manage- === exit === RC=OK.\n");
}

TEST_F(ZanDicTraceTest, LetsAMessageWithADashFollowTheNameDirectly) {
    kScope.Error("-*** ERROR *** bad");
    kScope.Error("- *** ERROR *** bad");

    EXPECT_EQ(Written(), "ZanDicThing::Do-*** ERROR *** bad.\nZanDicThing::Do- *** ERROR *** bad.\n");
}

TEST_F(ZanDicTraceTest, PutsANumberBetweenTheSeparatorAndTheMessage) {
    kScope.Error() << 234 << "- *** ERROR *** Input argument is NULL.";
    kScope.Error() << -1 << " is negative";

    EXPECT_EQ(Written(),
              "ZanDicThing::Do- 234- *** ERROR *** Input argument is NULL..\n"
              "ZanDicThing::Do- -1 is negative.\n");
}

TEST_F(ZanDicTraceTest, TakesNoValueForASeparator) {
    kScope.Error() << ZELString("-name") << " is odd";

    EXPECT_EQ(Written(), "ZanDicThing::Do- -name is odd.\n");
}

TEST_F(ZanDicTraceTest, KeepsATrailingBlankOfAMarker) {
    TraceFromNow(1);
    kScope.Start("=== start === ");

    EXPECT_EQ(Written(), "ZanDicThing::Do- === start === .\n");
}

TEST_F(ZanDicTraceTest, RendersEachKindOfOperand) {
    const ZELString name("Part");
    const unsigned char bytes[] = {0xAB, 0xCD};
    kScope.Error() << "v=" << 7U << "," << true << "," << -3LL << "," << OXMDicTYPE_Class << "," << name
                   << "," << &name << "," << ZELUnicodeString("Teil") << "," << ZELDbBinary(bytes, 2) << ","
                   << ZELDbBinary() << "," << static_cast<const ZELString*>(nullptr)
                   << static_cast<const char*>(nullptr);

    EXPECT_EQ(Written(), "ZanDicThing::Do- v=7,1,-3,5,Part,Part,Teil,ABCD,UNDEFINED,.\n");
}

TEST_F(ZanDicTraceTest, RendersAddressesAsStandardOutputDoes) {
    const void* const address = this;
    kScope.Error() << "@=" << address << " " << static_cast<const void*>(nullptr);

    EXPECT_EQ(Written(), "ZanDicThing::Do- @=" + AddressText(address) + " 0.\n");
}

TEST_F(ZanDicTraceTest, GivesEachLineItsSeverity) {
    TraceFromNow(1);
    kScope.Error("*** ERROR *** bad");
    kScope.Warning("*** WARNING *** odd");
    kScope.Start();

    ASSERT_EQ(Lines().size(), 3U);
    EXPECT_EQ(Lines()[0].severity, ZELLineSeverity::Error);
    EXPECT_EQ(Lines()[1].severity, ZELLineSeverity::Warning);
    EXPECT_EQ(Lines()[2].severity, ZELLineSeverity::None);
    EXPECT_EQ(Lines()[0].stream, ZELLineStream::Output);
}

TEST_F(ZanDicTraceTest, MarksTheLinesThatADocumentCaused) {
    {
        const ZanDicTrace::DocumentScope document;
        kScope.Error("inside");
        {
            const ZanDicTrace::DocumentScope nested(false);
            kScope.Error("nested");
        }
        ZanDicWriteError("inside again");
    }
    kScope.Error("outside");

    ASSERT_EQ(Lines().size(), 4U);
    EXPECT_TRUE(Lines()[0].fromDocument);
    EXPECT_FALSE(Lines()[1].fromDocument);
    EXPECT_TRUE(Lines()[2].fromDocument);
    EXPECT_FALSE(Lines()[3].fromDocument);
}

TEST_F(ZanDicTraceTest, WritesSomeLinesWhateverTheSettings) {
    TraceFromNow(-1);
    ZanDicWriteAlways("to output");
    ZanDicWriteError("to error");

    EXPECT_EQ(Written(), "to output\n");
    EXPECT_EQ(WrittenErrors(), "to error\n");
}

TEST_F(ZanDicTraceTest, EvaluatesNoOperandOfALineThatIsNotWritten) {
    int evaluated = 0;
    const auto operand = [&] { return ++evaluated; };
    if (auto line = kScope.Line(TraceLevel::Detail)) line << operand();
    ZanDicSetTraceLevel(5);
    if (auto line = kScope.Line(TraceLevel::Detail)) line << operand();

    EXPECT_EQ(evaluated, 1);
}

TEST_F(ZanDicTraceTest, DecidesByOneComparisonWhenNothingIsListed) {
    EXPECT_EQ(ZanDicTrace::threshold, 0);

    List("ZanDicThing::Do\n");
    EXPECT_GE(ZanDicTrace::threshold, 5);

    ZanDicSetTraceMethodsFile(nullptr);
    EXPECT_EQ(ZanDicTrace::threshold, 0);
}

TEST_F(ZanDicTraceTest, PassesOverCommentsInTheMethodsFile) {
    TraceFromNow(5);
    EXPECT_EQ(List("#ZanDicThing::Do\nZanDictionary::Insert\n"), S_OK);

    EXPECT_EQ(Written(), "ZanDicData::InitTraces- _ZANDIC_TraceMethods[1]=ZanDictionary::Insert.\n");
}

TEST_F(ZanDicTraceTest, ListsEmptyLinesAndTrimsNothing) {
    TraceFromNow(5);
    List("\n #no comment\n\nZanDicThing::Do ");

    EXPECT_EQ(Written(),
              "ZanDicData::InitTraces- _ZANDIC_TraceMethods[1]=.\n"
              "ZanDicData::InitTraces- _ZANDIC_TraceMethods[2]= #no comment.\n"
              "ZanDicData::InitTraces- _ZANDIC_TraceMethods[3]=.\n"
              "ZanDicData::InitTraces- _ZANDIC_TraceMethods[4]=ZanDicThing::Do .\n");
}

TEST_F(ZanDicTraceTest, CutsALongLineAndSkipsItsRest) {
    TraceFromNow(5);
    List(std::string(100, 'x') + "\nsecond\n");

    EXPECT_EQ(Written(), "ZanDicData::InitTraces- _ZANDIC_TraceMethods[1]=" + std::string(79, 'x') +
                             ".\nZanDicData::InitTraces- _ZANDIC_TraceMethods[2]=second.\n");
}

TEST_F(ZanDicTraceTest, ForgetsTheListBeforeWithANewFile) {
    List("ZanDicThing::Do\n");
    List("ZanDicThing::Manage\n");
    kScope.Start();
    kManagerScope.Start();

    EXPECT_EQ(Written(), "ZanDicThing::Manage- === start ===.\n");
}

TEST_F(ZanDicTraceTest, WarnsOfAMethodsFileThatCannotBeOpened) {
    List("ZanDicThing::Do\n");
    TraceFromNow(-1);
    const std::string path = _Directory.Path("missing.txt");

    EXPECT_EQ(ZanDicSetTraceMethodsFile(path.c_str()), E_FAIL);
    EXPECT_EQ(Written(), "ZanDicData::InitTraces*** WARNING *** Could not open " + path + " file.\n");
    ClearWritten();
    kScope.Start();
    EXPECT_EQ(Written(), "ZanDicThing::Do- === start ===.\n") << "the list before is kept";
}

TEST_F(ZanDicTraceTest, SaysTheSettingsWithoutReadingThemAgain) {
    ::setenv("ZANDIC_TRACE_LEVEL", "5", 1);
    TraceFromNow(1);
    ZanDicData second;
    ::unsetenv("ZANDIC_TRACE_LEVEL");

    EXPECT_EQ(ZanDicGetTraceLevel(), 1);
    EXPECT_EQ(Written(), "ZanDicData::InitTraces- _ZANDIC_TraceFirstTime=0, _ZANDIC_TraceLevel=1.\n");
}

TEST_F(ZanDicTraceTest, WritesTheCallStackBehindItsLine) {
    testing::internal::CaptureStderr();
    kScope.CallStack();

    EXPECT_NE(testing::internal::GetCapturedStderr(), "");
    EXPECT_EQ(Written(), "ZanDicThing::Do- *** ERROR *** Printing call stack:.\n");
}

TEST_F(ZanDicTraceTest, ReadsTheLevelWhenTheLibraryIsLoaded) {
    EXPECT_EQ(OutputOfNewProcess("ZANDIC_TRACE_LEVEL=1"),
              "ZanDicData::InitTraces- _ZANDIC_TraceFirstTime=0, _ZANDIC_TraceLevel=1.\n");
    EXPECT_EQ(OutputOfNewProcess("ZANDIC_TRACE_LEVEL=3x"),
              "ZanDicData::InitTraces- _ZANDIC_TraceFirstTime=0, _ZANDIC_TraceLevel=3.\n");
    EXPECT_EQ(OutputOfNewProcess("ZANDIC_TRACE_LEVEL=x"), "");
    EXPECT_EQ(OutputOfNewProcess("ZANDIC_TRACE_LEVEL=-1"), "");
}

TEST_F(ZanDicTraceTest, ReadsTheMethodsFileWhenTheLibraryIsLoaded) {
    const std::string path = _Directory.MakeFile("methods.txt", "ZanDicData::InitTraces\n");

    EXPECT_EQ(OutputOfNewProcess("ZANDIC_TRACE_METHODS=" + path),
              "ZanDicData::InitTraces- _ZANDIC_TraceMethods[1]=ZanDicData::InitTraces.\n"
              "ZanDicData::InitTraces- _ZANDIC_TraceFirstTime=0, _ZANDIC_TraceLevel=0.\n");
}

TEST_F(ZanDicTraceTest, WarnsWhenTheLibraryIsLoadedWithoutItsMethodsFile) {
    const std::string path = _Directory.Path("missing.txt");

    EXPECT_EQ(OutputOfNewProcess("ZANDIC_TRACE_LEVEL=-1 ZANDIC_TRACE_METHODS=" + path),
              "ZanDicData::InitTraces*** WARNING *** Could not open " + path + " file.\n");
}
