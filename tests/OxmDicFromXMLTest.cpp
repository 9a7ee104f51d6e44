#include "OxmDicFromXML.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>

#include "OXMIDicCategory.h"
#include "OXMIDicEnum.h"
#include "ReaderFixture.h"

using ::testing::ElementsAre;
using ::testing::HasSubstr;

namespace {

const std::string kData = ZANDIC_TEST_DATA;

/// The name of the package of that number in a chain.
std::string ChainName(int number) { return std::string("P").append(std::to_string(number)); }

/// The attribute by which a package of a chain uses the one before it.
std::string UsesOneBefore(int number) {
    return std::string("UseNames=\"").append(ChainName(number - 1)).append("\"");
}

class OxmDicFromXMLTest : public ReaderFixture {
protected:
    HRESULT Read(std::string_view name, OXMDicCONTENT content = OXMDicCONTENT_metadata) {
        const ZELString packageName(name);
        return OxmDicFromXML(&Manager(), &packageName, Directory().Path().c_str(), content);
    }
};

// The faulty documents of tests/data/bad, each with its lines beside it and its corrected form.

std::vector<std::string> NamesOfBadDocuments() {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(kData + "/bad")) {
        if (entry.path().extension() == ".metadata") names.push_back(entry.path().stem().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

class BadDocumentTest : public ReaderFixture, public ::testing::WithParamInterface<std::string> {
protected:
    BadDocumentTest() {
        LoadFrom(kData + "/good", "Base");
        ClearWritten();
    }

    HRESULT LoadBad() { return LoadFrom(kDirectories, GetParam()); }

    /// The lines beside the document; "{dirs}" stands for the directories.
    std::string ExpectedLines() const {
        std::ifstream file(kData + "/bad/" + GetParam() + ".trace");
        std::string lines{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
        const std::string placeholder = "{dirs}";
        if (const auto start = lines.find(placeholder); start != std::string::npos) {
            lines.replace(start, placeholder.size(), kDirectories);
        }
        return lines;
    }

    const std::string kDirectories = kData + "/bad:" + kData + "/good";
};

TEST_P(BadDocumentTest, FailsWithItsLinesAndLeavesNothing) {
    const int objectsBefore = ZanDicObj::live_Objects();

    EXPECT_EQ(LoadBad(), E_FAIL);

    EXPECT_EQ(DocumentLines(), ExpectedLines());
    EXPECT_NE(DocumentLines(), "");
    EXPECT_FALSE(IsLoaded(GetParam()));
    EXPECT_EQ(ZanDicObj::live_Objects(), objectsBefore);
}

TEST_P(BadDocumentTest, TheCorrectedDocumentLoadsInTheSameProcess) {
    EXPECT_EQ(LoadBad(), E_FAIL);

    EXPECT_EQ(LoadFrom(kData + "/corrected:" + kData + "/good", GetParam()), S_OK);

    EXPECT_TRUE(IsLoaded(GetParam()));
}

TEST_P(BadDocumentTest, AnObserverThatGoesOnIsToldEachFaultOnceAndNothingIsLeft) {
    const int objectsBefore = ZanDicObj::live_Objects();
    FaultCollector faults;

    EXPECT_EQ(LoadBad(), E_FAIL);

    std::set<std::string> summaries;
    for (const FaultCollector::Row& row : faults.rows) {
        EXPECT_EQ(row.severity, ZanDicSeverity::Error) << row.reason;
        EXPECT_NE(row.reason, "");
        EXPECT_GT(row.place.line, 0) << row.reason;
        summaries.insert(row.file + row.reason + std::to_string(row.place.line));
    }
    EXPECT_EQ(faults.rows.size(), 1U) << faults.Summary();
    EXPECT_EQ(summaries.size(), faults.rows.size());
    EXPECT_FALSE(IsLoaded(GetParam()));
    EXPECT_EQ(ZanDicObj::live_Objects(), objectsBefore);
}

INSTANTIATE_TEST_SUITE_P(Documents, BadDocumentTest, ::testing::ValuesIn(NamesOfBadDocuments()),
                         [](const auto& name) { return name.param; });

// Arguments and names.

TEST_F(OxmDicFromXMLTest, NullArgumentsFailAtOnceWithTheCallStack) {
    const ZELString name("P");

    EXPECT_EQ(OxmDicFromXML(nullptr, &name, "", OXMDicCONTENT_metadata), E_FAIL);
    EXPECT_EQ(OxmDicFromXML(&Manager(), nullptr, "", OXMDicCONTENT_metadata), E_FAIL);

    const std::string lines =
        "OxmDicFromXML:OxmDicFromXML-*** ERROR *** Invalid input parameters..\n"
        "OxmDicFromXML:OxmDicFromXML- *** ERROR *** Printing call stack:.\n";
    EXPECT_EQ(Written(), lines + lines);
}

TEST_F(OxmDicFromXMLTest, ANullDirectoryListFindsNothing) {
    const ZELString name("P");

    EXPECT_EQ(OxmDicFromXML(&Manager(), &name, nullptr, OXMDicCONTENT_metadata), E_FAIL);

    EXPECT_EQ(Written(),
              "OxmDicFromXML:OxmDicFromXML-*** ERROR *** Could not find document P.metadata in .\n");
}

TEST_F(OxmDicFromXMLTest, AMissingFileIsNamedWithTheDirectories) {
    EXPECT_EQ(Read("Missing"), E_FAIL);

    EXPECT_EQ(Written(),
              "OxmDicFromXML:OxmDicFromXML-*** ERROR *** Could not find document Missing.metadata in " +
                  Directory().Path() + ".\n");
}

TEST_F(OxmDicFromXMLTest, ANameWithContentWordReadsTheSameFile) {
    MakePackage("P", ClassTag("C", 1));

    EXPECT_EQ(Read("P.metadata", OXMDicCONTENT_rbodef), S_OK);

    EXPECT_TRUE(IsLoaded("P"));
}

TEST_F(OxmDicFromXMLTest, TheContentKindNamesTheFile) {
    Directory().MakeFile("P.rbodef", "<Package" + Id("P", 9) + "/>");

    EXPECT_EQ(Read("P", OXMDicCONTENT_rbodef), S_OK);

    EXPECT_TRUE(IsLoaded("P"));
}

TEST_F(OxmDicFromXMLTest, AnUnknownExtensionFailsBeforeAFileIsOpened) {
    Directory().MakeFile("P.xml", "<Package" + Id("P", 9) + "/>");

    EXPECT_EQ(Read("P.xml"), E_FAIL);

    EXPECT_EQ(Written(), "OxmDicFromXML:OxmDicFromXML-*** ERROR *** Invalid file extension: xml.\n");
}

TEST_F(OxmDicFromXMLTest, TheNameEndsAtTheFirstDot) {
    EXPECT_EQ(Read("P.metadata.metadata"), E_FAIL);

    EXPECT_EQ(Written(),
              "OxmDicFromXML:OxmDicFromXML-*** ERROR *** Invalid file extension: metadata.metadata.\n");
}

TEST_F(OxmDicFromXMLTest, NamesThatCouldLeaveTheDirectoriesAreRefused) {
    EXPECT_EQ(Read("a/b"), E_FAIL);
    EXPECT_EQ(Read("a\\b"), E_FAIL);
    EXPECT_EQ(Read("..metadata"), E_FAIL);
    EXPECT_EQ(Read(""), E_FAIL);

    EXPECT_EQ(Written(),
              "OxmDicFromXML:OxmDicFromXML-*** ERROR *** Invalid Package name: a/b.\n"
              "OxmDicFromXML:OxmDicFromXML-*** ERROR *** Invalid Package name: a\\b.\n"
              "OxmDicFromXML:OxmDicFromXML-*** ERROR *** Invalid Package name: ..metadata.\n"
              "OxmDicFromXML:OxmDicFromXML-*** ERROR *** Invalid Package name: .\n");
}

TEST_F(OxmDicFromXMLTest, ALoadedPackageIsNotReadAgain) {
    ASSERT_EQ(LoadBody(ClassTag("C", 1)), S_OK);
    Directory().MakeFile("P.metadata", "no document any more");
    Directory().MakeFile("P.rbodef", "nor this");
    TraceFromNow(2);

    EXPECT_EQ(Read("P"), S_OK);
    EXPECT_EQ(Read("P.rbodef"), S_OK);

    EXPECT_THAT(LinesOf("OxmDicFromXML"), HasSubstr("-*** INFO *** Package is already loaded.\n"));
}

// The package.

TEST_F(OxmDicFromXMLTest, APackageWithoutNameTakesTheOneAskedFor) {
    Directory().MakeFile("P.metadata", "<Package Uuid=\"" + U(9) + "\"/>");

    EXPECT_EQ(Read("P"), S_OK);

    EXPECT_TRUE(IsLoaded("P"));
    EXPECT_EQ(Written(),
              "OxmDicFromXML:OxmDicFromXML-*** WARNING *** Missing mandatory attribute Name for Package P.\n"
              "OxmDicFromXML:OxmDicFromXML-*** WARNING *** Input argument P is assumed.\n");
}

TEST_F(OxmDicFromXMLTest, AnEmptyNameOfAPackageCountsAsMissing) {
    Directory().MakeFile("P.metadata", "<Package Name=\"\" Uuid=\"" + U(9) + "\"/>");

    EXPECT_EQ(Read("P"), S_OK);

    EXPECT_THAT(Written(), HasSubstr("Missing mandatory attribute Name for Package P.\n"));
}

TEST_F(OxmDicFromXMLTest, TheDocumentsOwnNameCounts) {
    Directory().MakeFile("Asked.metadata", "<Package" + Id("Own", 9) + "/>");

    EXPECT_EQ(Read("Asked"), S_OK);

    EXPECT_TRUE(IsLoaded("Own"));
    EXPECT_FALSE(IsLoaded("Asked"));
    EXPECT_EQ(Written(),
              "OxmDicFromXML:OxmDicFromXML-*** WARNING *** Package name Own differs from the name asked for: "
              "Asked.\n");
}

TEST_F(OxmDicFromXMLTest, ADocumentWhoseOwnNameIsLoadedIsNotRead) {
    ASSERT_EQ(LoadBody(ClassTag("C", 1)), S_OK);
    Directory().MakeFile("Asked.metadata", "<Package" + Id("P", 9) + ">" + ClassTag("D", 2) + "</Package>");

    EXPECT_EQ(Read("Asked"), S_OK);

    EXPECT_TRUE(Find<OXMIDicClass>(1));
    EXPECT_FALSE(Find<OXMIDicClass>(2));
}

TEST_F(OxmDicFromXMLTest, AFailedLoadDoesNotRemoveAPackageOfTheNameAskedFor) {
    ASSERT_EQ(LoadBody(ClassTag("C", 1)), S_OK);
    Directory().MakeFile("Asked.metadata", "<Package" + Id("Own", 9) + "><Class Name=\"D\"/></Package>");

    EXPECT_EQ(Read("Asked"), E_FAIL);

    EXPECT_TRUE(IsLoaded("P"));
    EXPECT_FALSE(IsLoaded("Own"));
}

TEST_F(OxmDicFromXMLTest, ThePackageTagMayBeAChildOfTheRoot) {
    Directory().MakeFile("P.metadata", "<Dictionary><Other/><Package" + Id("P", 9) + ">" + ClassTag("C", 1) +
                                           "</Package><Package" + Id("Q", 8) + "/></Dictionary>");

    EXPECT_EQ(Read("P"), S_OK);

    EXPECT_TRUE(Find<OXMIDicClass>(1));
    EXPECT_FALSE(IsLoaded("Q"));
}

TEST_F(OxmDicFromXMLTest, ThePackageKeepsItsAttributes) {
    ASSERT_EQ(LoadBody("", "Domain=\"DUVRA\" Alias=\"A\" ExpositionLevel=\"E\" Version=\"7x\" Extra=\"1\""),
              S_OK);

    const auto package = Package();
    ZELString domain;
    ZELUnicodeString alias;
    ZELUnicodeString level;
    package->GetDomain(&domain);
    package->GetAlias(&alias);
    package->GetExpositionLevel(&level);
    EXPECT_EQ(domain, ZELString("DUVRA"));
    EXPECT_EQ(alias.View(), "A");
    EXPECT_EQ(level.View(), "E");
    EXPECT_EQ(OtherAttributes(*package), "Version=7x;Extra=1;");
}

TEST_F(OxmDicFromXMLTest, TheDefaultDomainIsVALKOR) {
    ASSERT_EQ(LoadBody(""), S_OK);

    ZELString domain;
    Package()->GetDomain(&domain);
    EXPECT_EQ(domain, ZELString("VALKOR"));
}

TEST_F(OxmDicFromXMLTest, UnknownAttributesOfThePackageAreReportedFromLevelOne) {
    ZanDicSetTraceLevel(1);

    ASSERT_EQ(LoadBody("", "Extra=\"1\""), S_OK);

    EXPECT_THAT(Written(),
                HasSubstr("OxmDicFromXML:OxmDicFromXML-*** WARNING *** Unknown attribute:Extra=1.\n"));
}

TEST_F(OxmDicFromXMLTest, OfAnAttributeOfThePackageGivenTwiceTheFirstCounts) {
    ASSERT_EQ(LoadBody("", "Alias=\"first\" Alias=\"second\""), S_OK);

    ZELUnicodeString alias;
    Package()->GetAlias(&alias);
    EXPECT_EQ(alias.View(), "first");
}

// Other packages.

TEST_F(OxmDicFromXMLTest, UsedPackagesAreLoadedFirstAndNoted) {
    MakePackage("A", ClassTag("CA", 1));
    MakePackage("B", ClassTag("CB", 2));
    ASSERT_EQ(LoadBody("", "UseNames=\"  A   B A \""), S_OK);

    HeldList used;
    Package()->GetUsedPackages(&used);
    EXPECT_EQ(used.Size(), 2);
    EXPECT_TRUE(IsLoaded("A"));
    EXPECT_TRUE(IsLoaded("B"));
}

TEST_F(OxmDicFromXMLTest, AContentWordSaysWhatToLoad) {
    Directory().MakeFile("Map.rbodef", "<Package" + Id("Map", 9) + "/>");

    ASSERT_EQ(LoadBody("", "UseNames=\"Map.rbodef Map\""), S_OK);

    HeldList used;
    Package()->GetUsedPackages(&used);
    EXPECT_EQ(used.Size(), 1);
}

TEST_F(OxmDicFromXMLTest, APackageThatListsItselfLoadsOnceAndDoesNotUseItself) {
    ASSERT_EQ(LoadBody(ClassTag("C", 1), "UseNames=\"P\" UseScopes=\"P\""), S_OK);

    HeldList used;
    Package()->GetUsedPackages(&used);
    EXPECT_EQ(used.Size(), 0);
    EXPECT_EQ(Written(), "");
}

TEST_F(OxmDicFromXMLTest, PrerequisitesStayLoadedWhenTheirUserFails) {
    MakePackage("A", ClassTag("CA", 1));

    EXPECT_EQ(LoadBody("<Class Name=\"C\"/>", "UseNames=\"A\""), E_FAIL);

    EXPECT_TRUE(IsLoaded("A"));
    EXPECT_FALSE(IsLoaded("P"));
}

TEST_F(OxmDicFromXMLTest, TheFirstPrerequisiteThatFailsEndsTheLoad) {
    MakePackage("C", "");

    EXPECT_EQ(LoadBody("", "UseNames=\"Missing C\""), E_FAIL);

    EXPECT_FALSE(IsLoaded("C"));
}

TEST_F(OxmDicFromXMLTest, APrerequisiteOfAnotherNameIsNotRecovered) {
    Directory().MakeFile("A.metadata", "<Package" + Id("Other", 9) + "/>");

    EXPECT_EQ(LoadBody("", "UseNames=\"A\""), E_FAIL);

    EXPECT_THAT(Written(),
                HasSubstr("OxmDicFromXML:OxmDicFromXML-*** ERROR *** Could not recover A Package to "
                          "complete UseNames attribute process.\n"));
}

TEST_F(OxmDicFromXMLTest, AScopePackageOfAnotherNameIsNotRecovered) {
    Directory().MakeFile("A.metadata", "<Package" + Id("Other", 9) + "/>");

    EXPECT_EQ(LoadBody("", "UseScopes=\"A\""), E_FAIL);

    EXPECT_THAT(Written(),
                HasSubstr("-*** ERROR *** Could not recover A Package to complete UseScopes attribute "
                          "process.\n"));
}

TEST_F(OxmDicFromXMLTest, ScopePackagesAreLoadedBetweenTheFirstPassAndTheSecond) {
    // A refers to what the first pass of P made, P's second pass to what A made.
    MakePackage("A", ClassTag("CA", 2, "SuperRef=\"" + U(1) + "\""));

    ASSERT_EQ(LoadBody(ClassTag("C", 1, "ReferenceRef=\"" + U(2) + "\""), "UseScopes=\"A\""), S_OK);

    HeldList scopes;
    Package()->GetScopePackages(&scopes);
    EXPECT_EQ(scopes.Size(), 1);
}

TEST_F(OxmDicFromXMLTest, PackagesThatUseEachOthersScopesLoad) {
    MakePackage("A", "", "UseScopes=\"P\"");

    EXPECT_EQ(LoadBody("", "UseScopes=\"A\""), S_OK);

    EXPECT_TRUE(IsLoaded("A"));
}

TEST_F(OxmDicFromXMLTest, AChainOf5000UsedPackagesLoads) {
    MakePackage(ChainName(0), "");
    for (int number = 1; number < 5000; ++number) MakePackage(ChainName(number), "", UsesOneBefore(number));

    EXPECT_EQ(Load("P4999"), S_OK);

    EXPECT_TRUE(IsLoaded("P0"));
}

TEST_F(OxmDicFromXMLTest, AChainOf5000PackagesFailsWithItsLast) {
    for (int number = 1; number < 5000; ++number) MakePackage(ChainName(number), "", UsesOneBefore(number));

    EXPECT_EQ(Load("P4999"), E_FAIL);

    EXPECT_FALSE(IsLoaded("P4999"));
    EXPECT_EQ(Lines().size(), 1U);
}

TEST_F(OxmDicFromXMLTest, ADocumentThatIsItsOwnPrerequisiteUnderAnotherNameEnds) {
    Directory().MakeFile("Asked.metadata", "<Package" + Id("Own", 9) + " UseNames=\"Other\"/>");
    Directory().MakeFile("Other.metadata", "<Package" + Id("Third", 8) + " UseNames=\"Asked\"/>");

    EXPECT_EQ(Load("Asked"), E_FAIL);

    EXPECT_THAT(Written(), HasSubstr("-*** ERROR *** Package Asked is used by a Package that it uses"));
}

// Children of the package.

TEST_F(OxmDicFromXMLTest, CommentsAreSkippedByEveryPass) {
    EXPECT_EQ(LoadBody("<Comment>one</Comment><KVAComment/>" + ClassTag("C", 1) + "<Comment Name=\"two\"/>"),
              S_OK);

    EXPECT_EQ(Written(), "");
}

TEST_F(OxmDicFromXMLTest, AnUnknownTagIsSkippedWithALineInEveryPass) {
    EXPECT_EQ(LoadBody("<Gadget" + Id("G", 5) + "/>" + ClassTag("C", 1)), S_OK);

    const std::string line =
        "OxmDicFromXML:OxmDicFromXML-*** ERROR *** Unkown tag:Gadget[G]; skipping to next tag....\n";
    EXPECT_EQ(Written(), line + line + line);
    EXPECT_TRUE(Find<OXMIDicClass>(1));
}

TEST_F(OxmDicFromXMLTest, AnObserverIsToldOfAnUnknownTagOnce) {
    FaultCollector faults;

    EXPECT_EQ(LoadBody("<Gadget" + Id("G", 5) + "/>" + ClassTag("C", 1)), S_OK);

    EXPECT_EQ(faults.Summary(), "unknown-tag 2:1 G\n");
}

TEST_F(OxmDicFromXMLTest, InstancesAreMarkedAndClassesAreNot) {
    ASSERT_EQ(LoadBody(ClassTag("C", 1) + "<Instance" + Id("I", 2) + " Persistent=\"No\"/>"), S_OK);

    unsigned char isInstance = 9;
    Find<OXMIDicClass>(1)->GetInstance(&isInstance);
    EXPECT_EQ(isInstance, 0);
    Find<OXMIDicClass>(2)->GetInstance(&isInstance);
    EXPECT_EQ(isInstance, 1);
}

// Tuning.

TEST_F(OxmDicFromXMLTest, ATuningDocumentGivesAWarningAndTheLoadStands) {
    Directory().MakeFile("P.tuning", "<Package/>");
    FaultCollector faults;

    EXPECT_EQ(LoadBody(ClassTag("C", 1)), S_OK);

    EXPECT_TRUE(IsLoaded("P"));
    EXPECT_EQ(Written(), "OxmDicFromXML:OxmDicFromXML- *** WARNING *** OxmDicFromXML_Tuning(P) failed.\n");
    ASSERT_EQ(faults.rows.size(), 1U);
    EXPECT_EQ(faults.rows[0].code, ZanDicDiagnosticCode::TuningFailed);
    EXPECT_EQ(faults.rows[0].severity, ZanDicSeverity::Warning);
    EXPECT_EQ(faults.rows[0].file, Directory().Path("P.tuning"));
}

// Trace and profiling.

TEST_F(OxmDicFromXMLTest, TellsItsStepsAtLevelTwo) {
    MakePackage("A", "");
    MakePackage("P", "", "UseNames=\"A\"");
    TraceFromNow(2);

    ASSERT_EQ(Read("P"), S_OK);

    const auto step = [](std::string_view text) {
        return "OxmDicFromXML:OxmDicFromXML" + std::string(text) + ".\n";
    };
    const auto body = [&](std::string name) {
        return step("- calling OxmDicFromXML_Tuning(" + name + ")...") +
               step("- rc[OxmDicFromXML_Tuning(" + name + ")]=OK") +
               step("-*** INFO *** Releasing Package handle") + step("- === exit (main) === RC=OK");
    };
    EXPECT_EQ(LinesOf("OxmDicFromXML:OxmDicFromXML"),
              step("- === start ===") + step("- rc(OxmBuildFileName)=OK, P") +
                  step("- metadata file name=" + Directory().Path("P.metadata")) +
                  step("- calling OxmDicFromXML(A)") + step("- === start ===") +
                  step("- rc(OxmBuildFileName)=OK, A") +
                  step("- metadata file name=" + Directory().Path("A.metadata")) + body("A") +
                  step("- rc(OxmDicFromXML(A))=OK") + body("P"));
}

TEST_F(OxmDicFromXMLTest, TellsItsArgumentsAtLevelFive) {
    MakePackage("P", "");
    TraceFromNow(5);

    ASSERT_EQ(Read("P.metadata", OXMDicCONTENT_rbomap), S_OK);

    EXPECT_THAT(LinesOf("OxmDicFromXML:OxmDicFromXML"),
                HasSubstr("- PackFileName=P.metadata.\n"
                          "OxmDicFromXML:OxmDicFromXML- DirNames=" +
                          Directory().Path() +
                          ".\n"
                          "OxmDicFromXML:OxmDicFromXML- iContent=3.\n"
                          "OxmDicFromXML:OxmDicFromXML- lenExtension=8.\n"
                          "OxmDicFromXML:OxmDicFromXML- PackName=P.\n"
                          "OxmDicFromXML:OxmDicFromXML- PackFileExtension=metadata.\n"));
}

TEST_F(OxmDicFromXMLTest, TellsThatItRemovesAFailedPackage) {
    MakePackage("P", "<Class Name=\"C\"/>");
    TraceFromNow(2);

    ASSERT_EQ(Read("P"), E_FAIL);

    EXPECT_THAT(Written(), HasSubstr("-*** INFO *** Removing Package P from dictionary.\n"));
    EXPECT_THAT(Written(), HasSubstr("=== exit (main) === RC=KO.\n"));
}

TEST_F(OxmDicFromXMLTest, LinesOfTheCleanUpAreNotTheDocuments) {
    EXPECT_EQ(LoadBody(ClassTag("C", 1) + "<Class Name=\"D\"/>"), E_FAIL);

    EXPECT_EQ(DocumentLines(),
              "OxmDicFromXML:OxmDicFromXML-*** ERROR *** Could not find mandatory attribute Uuid.\n");
    EXPECT_GT(Lines().size(), 1U);
}

/// Notes the phases told.
class PhaseNotes final : public ZanDicProfiler {
public:
    PhaseNotes() { ZanDicSetProfiler(this); }
    ~PhaseNotes() { ZanDicSetProfiler(nullptr); }
    PhaseNotes(const PhaseNotes&) = delete;
    PhaseNotes& operator=(const PhaseNotes&) = delete;
    void StepIn(std::string_view operation, std::string_view subject) override {
        Add("in", operation, subject);
    }
    void StepOut(std::string_view operation, std::string_view subject) override {
        Add("out", operation, subject);
    }
    void ResetAll() override {}

    std::vector<std::string> notes;

private:
    void Add(std::string_view what, std::string_view operation, std::string_view subject) {
        notes.push_back(std::string(what) + " " + std::string(operation) + " " + std::string(subject));
    }
};

TEST_F(OxmDicFromXMLTest, ThePhaseIsClosedWhileAPrerequisiteLoads) {
    MakePackage("A", "");
    MakePackage("P", "", "UseNames=\"A\"");
    const PhaseNotes phases;

    ASSERT_EQ(Read("P"), S_OK);

    EXPECT_THAT(phases.notes,
                ElementsAre("in OxmDicFromXML P", "out OxmDicFromXML P", "in OxmDicFromXML A",
                            "out OxmDicFromXML A", "in OxmDicFromXML P", "out OxmDicFromXML P"));
}

TEST_F(OxmDicFromXMLTest, AFailedLoadClosesItsPhase) {
    const PhaseNotes phases;

    EXPECT_EQ(Read("Missing"), E_FAIL);

    EXPECT_THAT(phases.notes, ElementsAre("in OxmDicFromXML Missing", "out OxmDicFromXML Missing"));
}

// Going on after faults.

TEST_F(OxmDicFromXMLTest, AllFaultsOfADocumentAreToldInOrder) {
    FaultCollector faults;

    EXPECT_EQ(LoadFrom(kData + "/faults:" + kData + "/good", "ManyFaults"), E_FAIL);

    std::ifstream file(kData + "/faults/ManyFaults.faults");
    EXPECT_EQ(faults.Summary(),
              std::string(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()));
    EXPECT_FALSE(IsLoaded("ManyFaults"));
}

TEST_F(OxmDicFromXMLTest, AnObserverThatStopsIsToldTheFirstErrorOnly) {
    FaultCollector faults(false);

    EXPECT_EQ(LoadFrom(kData + "/faults:" + kData + "/good", "ManyFaults"), E_FAIL);

    const auto isError = [](const auto& row) { return row.severity == ZanDicSeverity::Error; };
    EXPECT_EQ(std::count_if(faults.rows.begin(), faults.rows.end(), isError), 1);
}

TEST_F(OxmDicFromXMLTest, WhatAFailedPrerequisiteLeftOutIsNoFaultAgain) {
    MakePackage("A", ClassTag("CA", 1) + "<Class Name=\"D\"/>");
    MakePackage("P", ClassTag("C", 2, "SuperRef=\"" + U(1) + "\""), "UseNames=\"A\"");
    FaultCollector faults;

    EXPECT_EQ(Load("P"), E_FAIL);

    EXPECT_EQ(faults.Summary(), "missing-attribute 3:1 D @Uuid\n");
}

TEST_F(OxmDicFromXMLTest, WhatAMissingPrerequisiteMayHaveHadIsNoFaultAgain) {
    MakePackage("P", ClassTag("C", 2, "SuperRef=\"" + U(1) + "\""), "UseNames=\"A\"");
    FaultCollector faults;

    EXPECT_EQ(Load("P"), E_FAIL);

    EXPECT_EQ(faults.Summary(), "file-not-found 1:62 P @UseNames\n");
}

TEST_F(OxmDicFromXMLTest, FaultsAreToldWhateverTheTraceLevel) {
    ZanDicSetTraceLevel(-1);
    FaultCollector faults;

    EXPECT_EQ(LoadBody("<Class Name=\"C\"/>"), E_FAIL);

    ASSERT_EQ(faults.rows.size(), 1U);
    EXPECT_FALSE(faults.rows[0].traced);
    EXPECT_EQ(faults.rows[0].traceText,
              "OxmDicFromXML:OxmDicFromXML-*** ERROR *** Could not find mandatory attribute Uuid.");
    EXPECT_EQ(DocumentLines(), "");
}

}  // namespace
