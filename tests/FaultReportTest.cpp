#include "FaultReport.h"

#include <gtest/gtest.h>

#include "ReaderFixture.h"

namespace {

constexpr ZanDicTraceScope kFirst("First");
constexpr ZanDicTraceScope kSecond("Second:Label -");

class FaultReportTest : public ReaderFixture {
protected:
    FaultReportTest() { report.Enter(document); }

    static Fault Error() {
        Fault fault{ZanDicDiagnosticCode::TuningFailed};
        fault.detail = "because";
        fault.lines.push_back({kFirst, "one"});
        return fault;
    }

    static Fault Warning() {
        Fault fault = Error();
        fault.severity = ZanDicSeverity::Warning;
        return fault;
    }

    FaultDocument document{"some.metadata", "some"};
    FaultReport report;
};

TEST_F(FaultReportTest, AnErrorFailsAndStopsWithoutObserver) {
    EXPECT_EQ(report.Report(Error()), E_FAIL);

    EXPECT_TRUE(report.IsStopped());
    EXPECT_EQ(Written(), "First- one.\n");
}

TEST_F(FaultReportTest, AWarningDoesNeither) {
    EXPECT_EQ(report.Report(Warning()), S_OK);

    EXPECT_FALSE(report.IsStopped());
    EXPECT_EQ(Written(), "First- one.\n");
}

TEST_F(FaultReportTest, AnObserverSaysWhetherToGoOn) {
    FaultCollector goesOn(true);

    EXPECT_EQ(report.Report(Error()), E_FAIL);

    EXPECT_FALSE(report.IsStopped());
}

TEST_F(FaultReportTest, AnObserverThatStopsStops) {
    FaultCollector stops(false);

    EXPECT_EQ(report.Report(Error()), E_FAIL);

    EXPECT_TRUE(report.IsStopped());
}

TEST_F(FaultReportTest, TheAnswerToAWarningDoesNotMatter) {
    FaultCollector stops(false);

    report.Report(Warning());

    EXPECT_FALSE(report.IsStopped());
}

TEST_F(FaultReportTest, AMessageThatBeginsWithADashBringsItsSeparator) {
    Fault fault = Error();
    fault.lines = std::vector<FaultLine>{{kFirst, "-*** one"}, {kFirst, "- *** two"}, {kSecond, "three"}};

    report.Report(fault);

    EXPECT_EQ(Written(), "First-*** one.\nFirst- *** two.\nSecond:Label -- three.\n");
}

TEST_F(FaultReportTest, LinesAreTheDocumentsAndBearTheSeverity) {
    report.Report(Error());
    report.Report(Warning());

    ASSERT_EQ(Lines().size(), 2U);
    EXPECT_TRUE(Lines()[0].fromDocument);
    EXPECT_EQ(Lines()[0].severity, ZELLineSeverity::Error);
    EXPECT_EQ(Lines()[1].severity, ZELLineSeverity::Warning);
}

TEST_F(FaultReportTest, EachLineIsWrittenFromItsLevelOn) {
    Fault fault = Warning();
    fault.lines = std::vector<FaultLine>{{kFirst, "one", TraceLevel::Call}, {kFirst, "two"}};

    report.Report(fault);

    EXPECT_EQ(Written(), "First- two.\n");
}

TEST_F(FaultReportTest, TheObserverIsToldWhatTheLinesSay) {
    FaultCollector faults;
    Fault fault = Warning();
    fault.lines = std::vector<FaultLine>{{kFirst, "one", TraceLevel::Call}, {kSecond, "-two"}};

    report.Report(fault);

    ASSERT_EQ(faults.rows.size(), 1U);
    EXPECT_EQ(faults.rows[0].traceText, "First- one.\nSecond:Label --two.");
    EXPECT_TRUE(faults.rows[0].traced);
    EXPECT_EQ(faults.rows[0].file, "some.metadata");
    EXPECT_EQ(faults.rows[0].package, "some");
    EXPECT_EQ(faults.rows[0].reason, "because");
}

TEST_F(FaultReportTest, AFaultWithoutLinesIsToldAndNotTraced) {
    FaultCollector faults;
    Fault fault = Error();
    fault.lines.clear();

    report.Report(fault);

    EXPECT_EQ(Written(), "");
    ASSERT_EQ(faults.rows.size(), 1U);
    EXPECT_FALSE(faults.rows[0].traced);
}

TEST_F(FaultReportTest, AFaultKnowsThePartsOfItsTagAndItsPlace) {
    const auto dom = ZELVBTXMLDocument::CreateFromMemory("<A>\n  <B Name=\"n\" X=\"v\"/></A>", nullptr);
    const ZELVBTXMLNode node = *dom->Root().Children().begin();
    FaultCollector faults;
    Fault fault{ZanDicDiagnosticCode::InvalidValue};
    fault.node = node;
    fault.attribute = node.getAttribute("X");
    fault.element = "n";

    report.Report(fault);

    ASSERT_EQ(faults.rows.size(), 1U);
    EXPECT_EQ(faults.rows[0].tag, "B");
    EXPECT_EQ(faults.rows[0].attribute, "X");
    EXPECT_EQ(faults.rows[0].value, "v");
    EXPECT_EQ(faults.rows[0].place.line, 2);
    EXPECT_EQ(faults.rows[0].place.column, 15);
    EXPECT_EQ(faults.rows[0].reason, "\"v\" is no valid value of X");
}

TEST_F(FaultReportTest, WithoutAttributeTheTagIsThePlace) {
    const auto dom = ZELVBTXMLDocument::CreateFromMemory("<A>\n  <B/></A>", nullptr);
    FaultCollector faults;
    Fault fault{ZanDicDiagnosticCode::MissingAttribute};
    fault.node = *dom->Root().Children().begin();
    fault.attributeName = "Uuid";
    fault.element = "n";

    report.Report(fault);

    ASSERT_EQ(faults.rows.size(), 1U);
    EXPECT_EQ(faults.rows[0].place.column, 3);
    EXPECT_EQ(faults.rows[0].attribute, "Uuid");
    EXPECT_EQ(faults.rows[0].reason, "attribute Uuid of B \"n\" is missing");
}

TEST_F(FaultReportTest, NobodyWantsAWarningThatIsNeitherTracedNorObserved) {
    EXPECT_FALSE(FaultReport::IsWanted(kFirst, TraceLevel::Call));
    EXPECT_TRUE(FaultReport::IsWanted(kFirst, TraceLevel::Error));

    FaultCollector faults;
    EXPECT_TRUE(FaultReport::IsWanted(kFirst, TraceLevel::Call));
}

TEST_F(FaultReportTest, GoesOnNotesTheFailure) {
    HRESULT result = S_OK;
    EXPECT_TRUE(report.GoesOn(S_FALSE, result));
    EXPECT_EQ(result, S_OK);
    EXPECT_TRUE(report.GoesOn(E_FAIL, result));
    EXPECT_EQ(result, E_FAIL);
    EXPECT_TRUE(report.GoesOn(S_OK, result));
    EXPECT_EQ(result, E_FAIL);

    report.Report(Error());
    EXPECT_FALSE(report.GoesOn(E_FAIL, result));
}

}  // namespace
