// `zandic check` and `zandic explain`: what they print, in which form, and how they end.
#include <algorithm>
#include <fstream>
#include <iterator>
#include <nlohmann/json.hpp>
#include <set>

#include "ToolRunner.h"

namespace {

class ToolCheckTest : public ToolTest {
protected:
    static std::string U(unsigned number) {
        char text[36];
        std::snprintf(text, sizeof text, "00000000-0000-0000-%016X", number);
        return text;
    }

    /// A package with a class without UUID, one that it uses, and one with a warning.
    void MakeFaulty() const {
        MakePackage(
            "Broken", "Uuid=\"" + U(1) + "\"",
            "<Class Name=\"Item\" Uuid=\"" + U(2) + "\" Persistent=\"Yes\"/>\n<Class Name=\"Lost\"/>\n");
        MakePackage(
            "User", "Uuid=\"" + U(3) + "\" UseNames=\"Broken\"",
            "<Class Name=\"Part\" Uuid=\"" + U(4) + "\" Persistent=\"Yes\" SuperRef=\"" + U(2) + "\"/>\n");
        MakePackage("Free", "Uuid=\"" + U(5) + "\"",
                    "<Class Name=\"Free\" Uuid=\"" + U(6) + "\" Persistent=\"Yes\" Abstrakt=\"Yes\"/>\n");
    }

    void ExpectWrongUse(const std::vector<std::string>& arguments, const std::string& text) const {
        const ToolRun run = OnSample(arguments);

        EXPECT_EQ(run.status, 2);
        EXPECT_EQ(run.out, "");
        EXPECT_EQ(run.err, "zandic: error: " + text + " (see 'zandic check --help')\n");
    }

    std::string ContentOf(const std::string& name) const {
        std::ifstream file(Own().Path(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    }

    const std::string broken =
        "own/Broken.metadata:3:1: error[missing-attribute]: attribute Uuid of Class \"Lost\" is missing\n";
    const std::string folded =
        "own/Broken.metadata:3:1: note: 2 more faults follow from it: see --all-faults\n";
    const std::string warning =
        "own/Free.metadata:2:80: warning[unknown-attribute]: Class \"Free\" has no attribute Abstrakt; it is "
        "kept "
        "as a free attribute; did you mean Abstract?\n";
};

TEST_F(ToolCheckTest, AFaultIsALineAndWhatFollowsIsFolded) {
    MakeFaulty();

    const ToolRun run = OnOwn({"check"});

    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(WithoutPlaces(run.out), broken + folded + warning + "3 documents: 1 error, 1 warning\n");
    EXPECT_EQ(run.err, "");
}

TEST_F(ToolCheckTest, AllFaultsUnfoldsThem) {
    MakeFaulty();

    const ToolRun run = OnOwn({"check", "--all-faults", "User"});

    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(WithoutPlaces(run.out),
              broken +
                  "own/User.metadata:1:65: error[prerequisite-failed]: Package \"User\": package \"Broken\" "
                  "of UseNames is not "
                  "loaded\n"
                  "own/Broken.metadata:3:1: note: it follows from this missing-attribute\n"
                  "own/User.metadata:2:80: error[reference-not-found]: SuperRef of \"Part\": no object has "
                  "the UUID " +
                  U(2) +
                  "\n"
                  "own/Broken.metadata:3:1: note: it follows from this missing-attribute\n"
                  "1 document: 1 error\n");
}

TEST_F(ToolCheckTest, WarningsCountAsErrorsWhenStrict) {
    MakeFaulty();

    EXPECT_EQ(OnOwn({"check", "Free"}).status, 0);
    EXPECT_EQ(OnOwn({"check", "Free", "--strict"}).status, 1);
}

TEST_F(ToolCheckTest, TheSampleHasNoErrors) {
    const ToolRun run = OnSample({"check", "--all"});

    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out.find("error"), std::string::npos) << run.out;
    EXPECT_EQ(run.err, "");
}

TEST_F(ToolCheckTest, WithoutAFaultThereIsNothingToReport) {
    EXPECT_EQ(OnSample({"check", "BomPeople"}).out, "1 document: nothing to report\n");
}

TEST_F(ToolCheckTest, AFileNeedsNoPath) {
    MakeFaulty();

    const ToolRun run = Run({"check", Own().Path("User.metadata")});

    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(WithoutPlaces(run.out), broken + folded + "1 document: 1 error\n");
}

TEST_F(ToolCheckTest, FilesInThePresentDirectoryAreNamedAsTheyAreWritten) {
    MakeFaulty();

    EXPECT_EQ(Shell("cd " + Own().Path() +
                    " && \"$TOOL\" check Free.metadata > out; grep -q '^Free.metadata:2:80: ' out"),
              0);
}

TEST_F(ToolCheckTest, AMissingDocumentIsAFaultWithoutPlace) {
    MakeFaulty();

    const ToolRun run = OnOwn({"check", "Brokn", "gone/P.metadata"});

    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(
        WithoutPlaces(run.out),
        "Brokn.metadata: error[file-not-found]: there is no document Brokn.metadata; did you mean Broken?\n"
        "Brokn.metadata: note: searched is own\n"
        "gone/P.metadata: error[file-not-found]: there is no such document\n"
        "0 documents: 2 errors\n");
}

TEST_F(ToolCheckTest, LineEndsInNamesBreakNoLine) {
    MakePackage("P", "Uuid=\"" + U(1) + "\"", "<Class Name=\"A&#10;B\"/>\n");

    EXPECT_EQ(LinesIn(OnOwn({"check"}).out), 2);
}

TEST_F(ToolCheckTest, TheSameDocumentsGiveTheSameBytesInEveryFormat) {
    // Hashes differ from one process to the next by themselves.
    MakeFaulty();
    for (const char* const format : {"text", "json", "sarif", "junit"}) {
        const std::vector<std::string> arguments = {"--path",   Own().Path(), "check",
                                                    "--format", format,       "--all"};
        const ToolRun first = Run(arguments, {"LC_ALL=C"});
        const ToolRun second = Run(arguments, {"LC_ALL=C.UTF-8", "TZ=Asia/Tokyo"});

        EXPECT_EQ(first.out, second.out) << format;
        EXPECT_EQ(first.status, 1);
        EXPECT_EQ(second.status, 1);
    }
}

TEST_F(ToolCheckTest, JsonTellsTheSame) {
    MakeFaulty();

    const nlohmann::json json = nlohmann::json::parse(OnOwn({"check", "--json"}).out);

    EXPECT_EQ(json["documents"].size(), 3U);
    EXPECT_EQ(json["errors"], 1);
    EXPECT_EQ(json["warnings"], 1);
    EXPECT_EQ(json["folded"], 2);
    ASSERT_EQ(json["findings"].size(), 2U);
    const nlohmann::json& finding = json["findings"][0];
    EXPECT_EQ(finding["file"], Own().Path("Broken.metadata"));
    EXPECT_EQ(finding["line"], 3);
    EXPECT_EQ(finding["column"], 1);
    EXPECT_EQ(finding["severity"], "error");
    EXPECT_EQ(finding["code"], "missing-attribute");
    EXPECT_EQ(finding["element"], "Broken::Lost");
    EXPECT_EQ(finding["consequences"], 2);
}

TEST_F(ToolCheckTest, SarifPointsAtTheRuleAndThePlace) {
    MakeFaulty();

    const nlohmann::json json = nlohmann::json::parse(OnOwn({"check", "--format", "sarif"}).out);

    const nlohmann::json& run = json["runs"][0];
    ASSERT_EQ(run["results"].size(), 2U);
    const nlohmann::json& result = run["results"][0];
    EXPECT_EQ(run["tool"]["driver"]["rules"][result["ruleIndex"].get<std::size_t>()]["id"],
              "missing-attribute");
    const nlohmann::json& place = result["locations"][0]["physicalLocation"];
    EXPECT_EQ(place["artifactLocation"]["uri"], "file://" + Own().Path("Broken.metadata"));
    EXPECT_EQ(place["region"]["startLine"], 3);
}

TEST_F(ToolCheckTest, JunitKeepsToItsSchema) {
    MakeFaulty();
    const std::string schema = ZANDIC_TEST_DATA "/../../docs/schemas/junit.xsd";
    const std::string check = "\"$TOOL\" check --path " + Own().Path() + " --format junit ";
    const std::string validate = " | xmllint --noout --schema " + schema + " - 2> /dev/null";

    EXPECT_EQ(Shell(check + validate), 0);
    EXPECT_EQ(Shell(check + "--strict --all-faults" + validate), 0);
    EXPECT_EQ(Shell("\"$TOOL\" check --path \"$SAMPLES\" --format junit --all" + validate), 0);
    const std::string junit = OnOwn({"check", "--format", "junit"}).out;
    EXPECT_NE(junit.find("<testsuites name=\"zandic check\" tests=\"3\" failures=\"1\" errors=\"0\">"),
              junit.npos)
        << junit;
}

// The baseline.

TEST_F(ToolCheckTest, ABaselineHidesOldFaultsAndShowsNewOnes) {
    MakeFaulty();
    const std::string file = Own().Path("accepted.json");

    const ToolRun recorded = OnOwn({"check", "--write-baseline", file});
    EXPECT_EQ(recorded.status, 0);
    EXPECT_EQ(WithoutPlaces(recorded.out), "own/accepted.json: 2 faults recorded\n");
    const ToolRun accepted = OnOwn({"check", "--strict", "--baseline", file});
    EXPECT_EQ(accepted.status, 0);
    EXPECT_EQ(accepted.out, "3 documents: nothing to report; 2 accepted by the baseline\n");

    MakePackage("Broken", "Uuid=\"" + U(1) + "\"",
                "\n\n<Class Name=\"Item\" Uuid=\"" + U(2) +
                    "\" Persistent=\"Yes\"/>\n<Class Name=\"Lost\"/>\n<Enum "
                    "Name=\"New\"/>");
    const ToolRun fresh = OnOwn({"check", "--baseline", file});

    EXPECT_EQ(fresh.status, 1);
    EXPECT_EQ(WithoutPlaces(fresh.out),
              "own/Broken.metadata:6:1: error[missing-attribute]: attribute Uuid of Enum \"New\" is missing\n"
              "3 documents: 1 error; 2 accepted by the baseline\n");
}

TEST_F(ToolCheckTest, ABaselineOfTheSameFaultsIsTheSameFile) {
    MakeFaulty();
    OnOwn({"check", "--write-baseline", Own().Path("one.json")});
    OnOwn({"check", "--write-baseline", Own().Path("two.json")});

    EXPECT_EQ(ContentOf("one.json"), ContentOf("two.json"));
    EXPECT_NE(ContentOf("one.json").find("\"code\": \"missing-attribute\""), std::string::npos);
}

TEST_F(ToolCheckTest, WhatIsMendedIsGoneFromTheBaseline) {
    MakeFaulty();
    const std::string file = Own().Path("accepted.json");
    OnOwn({"check", "--write-baseline", file});
    MakePackage("Broken", "Uuid=\"" + U(1) + "\"",
                "<Class Name=\"Item\" Uuid=\"" + U(2) + "\" Persistent=\"Yes\"/>\n");

    EXPECT_EQ(
        OnOwn({"check", "--baseline", file}).out,
        "3 documents: nothing to report; 1 accepted by the baseline; 1 of the baseline gone, so write it "
        "again\n");
}

TEST_F(ToolCheckTest, AFileThatIsNoBaselineIsRefused) {
    MakeFaulty();
    Own().MakeFile("accepted.json", "{\"findings\": [{\"file\": \"Broken.metadata\"}]}");

    const ToolRun wrong = OnOwn({"check", "--baseline", Own().Path("accepted.json")});
    const ToolRun missing = OnOwn({"check", "--baseline", Own().Path("gone.json")});

    EXPECT_EQ(wrong.status, 1);
    EXPECT_EQ(wrong.out, "");
    EXPECT_EQ(WithoutPlaces(wrong.err),
              "zandic: own/accepted.json: error: this is no baseline: make it with --write-baseline\n");
    EXPECT_EQ(missing.status, 1);
    EXPECT_NE(missing.err.find("it cannot be read"), std::string::npos);
}

TEST_F(ToolCheckTest, ABaselineThatCannotBeWrittenIsAFault) {
    const ToolRun run = OnSample({"check", "--write-baseline", Own().Path("gone/accepted.json")});

    EXPECT_EQ(run.status, 1);
    EXPECT_NE(run.err.find("it could not be written"), std::string::npos);
}

// Wrong use.

TEST_F(ToolCheckTest, OptionsThatExcludeEachOtherAreRefused) {
    ExpectWrongUse({"check", "--all", "BomItems"}, "--all is without a name");
    ExpectWrongUse({"check", "--json", "--format", "sarif"}, "--json is --format json");
    ExpectWrongUse({"check", "--baseline", "a", "--write-baseline", "b"},
                   "--baseline and --write-baseline exclude each other");
    ExpectWrongUse({"check", "--format", "xml"},
                   "--format cannot be 'xml': it is one of text|json|sarif|junit");
}

TEST_F(ToolCheckTest, AClassIsNoDocument) {
    const ToolRun run = OnSample({"check", "BomItems::BomPart"});

    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.err,
              "zandic: BomItems::BomPart: error: only packages can be loaded: give the name before '::'\n");
}

TEST_F(ToolCheckTest, WithoutAPathThereIsNothingToCheck) {
    const ToolRun run = Run({"check"});

    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out, "");
    EXPECT_NE(run.err.find("there is no path to search"), std::string::npos);
}

TEST_F(ToolCheckTest, AReaderThatStopsEndsTheToolQuietly) {
    EXPECT_EQ(Shell("\"$TOOL\" check --path \"$SAMPLES\" --all --format sarif 2>err | head -1 > /dev/null; "
                    "status=${PIPESTATUS:-0}; test ! -s err; rm -f err"),
              0);
}

TEST_F(ToolCheckTest, LinesOfTheDictionaryComeOnlyWhenTheyAreAskedFor) {
    MakeFaulty();

    EXPECT_EQ(OnOwn({"check"}).err, "");
    EXPECT_NE(OnOwn({"check", "--trace-level", "0"}).err, "");
}

// explain

TEST_F(ToolCheckTest, ExplainTellsARuleWithItsExamples) {
    const ToolRun run = Run({"explain", "unknown-attribute"});

    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, ExpectedOutput("explain-unknown-attribute.txt"));
}

TEST_F(ToolCheckTest, ExplainWithoutACodeListsAll) {
    const ToolRun run = Run({"explain"});
    const nlohmann::json json = nlohmann::json::parse(Run({"explain", "--json"}).out);

    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(static_cast<std::size_t>(LinesIn(run.out)), json["rules"].size());
}

TEST_F(ToolCheckTest, EveryCodeThatIsExplainedCanBeAskedFor) {
    const nlohmann::json json = nlohmann::json::parse(Run({"explain", "--json"}).out);
    for (const nlohmann::json& rule : json["rules"]) {
        EXPECT_EQ(Run({"explain", rule["code"]}).status, 0) << rule["code"];
    }
}

TEST_F(ToolCheckTest, ACodeThatIsNoneIsRefused) {
    const ToolRun run = Run({"explain", "duplicate-uid"});

    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.err,
              "zandic: duplicate-uid: error: there is no such code; did you mean duplicate-uuid or "
              "duplicate-name?\n");
}

}  // namespace
