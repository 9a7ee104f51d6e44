// A load as a whole: the packages that a package needs, its tuning, its steps and its phases.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "OxmDicFromXML.h"
#include "ReaderFixture.h"

using ::testing::ElementsAre;
using ::testing::HasSubstr;

namespace {

/// The name of the package of that number in a chain.
std::string ChainName(int number) { return std::string("P").append(std::to_string(number)); }

/// The attribute by which a package of a chain uses the one before it.
std::string UsesOneBefore(int number) {
    return std::string("UseNames=\"").append(ChainName(number - 1)).append("\"");
}

class PackageLoadTest : public ReaderFixture {
protected:
    HRESULT Read(std::string_view name, OXMDicCONTENT content = OXMDicCONTENT_metadata) {
        const ZELString packageName(name);
        return OxmDicFromXML(&Manager(), &packageName, Directory().Path().c_str(), content);
    }
};

// Other packages.

TEST_F(PackageLoadTest, UsedPackagesAreLoadedFirstAndNoted) {
    MakePackage("A", ClassTag("CA", 1));
    MakePackage("B", ClassTag("CB", 2));
    ASSERT_EQ(LoadBody("", "UseNames=\"  A   B A \""), S_OK);

    HeldList used;
    Package()->GetUsedPackages(&used);
    EXPECT_EQ(used.Size(), 2);
    EXPECT_TRUE(IsLoaded("A"));
    EXPECT_TRUE(IsLoaded("B"));
}

TEST_F(PackageLoadTest, AContentWordSaysWhatToLoad) {
    Directory().MakeFile("Map.rbodef", "<Package" + Id("Map", 9) + "/>");

    ASSERT_EQ(LoadBody("", "UseNames=\"Map.rbodef Map\""), S_OK);

    HeldList used;
    Package()->GetUsedPackages(&used);
    EXPECT_EQ(used.Size(), 1);
}

TEST_F(PackageLoadTest, APackageThatListsItselfLoadsOnceAndDoesNotUseItself) {
    ASSERT_EQ(LoadBody(ClassTag("C", 1), "UseNames=\"P\" UseScopes=\"P\""), S_OK);

    HeldList used;
    Package()->GetUsedPackages(&used);
    EXPECT_EQ(used.Size(), 0);
    EXPECT_EQ(Written(), "");
}

TEST_F(PackageLoadTest, PrerequisitesStayLoadedWhenTheirUserFails) {
    MakePackage("A", ClassTag("CA", 1));

    EXPECT_EQ(LoadBody("<Class Name=\"C\"/>", "UseNames=\"A\""), E_FAIL);

    EXPECT_TRUE(IsLoaded("A"));
    EXPECT_FALSE(IsLoaded("P"));
}

TEST_F(PackageLoadTest, TheFirstPrerequisiteThatFailsEndsTheLoad) {
    MakePackage("C", "");

    EXPECT_EQ(LoadBody("", "UseNames=\"Missing C\""), E_FAIL);

    EXPECT_FALSE(IsLoaded("C"));
}

TEST_F(PackageLoadTest, APrerequisiteIsFoundByTheNameAskedForToo) {
    Directory().MakeFile("A.metadata", "<Package" + Id("Other", 9) + "/>");

    EXPECT_EQ(LoadBody("", "UseNames=\"A\" UseScopes=\"A\""), S_OK);

    HeldList used;
    HeldList scopes;
    Package()->GetUsedPackages(&used);
    Package()->GetScopePackages(&scopes);
    EXPECT_EQ(used.Size(), 1);
    EXPECT_EQ(scopes.Size(), 1);
    EXPECT_FALSE(IsLoaded("A"));
}

TEST_F(PackageLoadTest, APackageIsNotReadAgainUnderTheNameAskedFor) {
    Directory().MakeFile("A.metadata", "<Package" + Id("Other", 9) + "/>");
    ASSERT_EQ(Read("A"), S_OK);
    ClearWritten();

    EXPECT_EQ(Read("A"), S_OK);

    EXPECT_EQ(Written(), "");
}

TEST_F(PackageLoadTest, TheNameAskedForIsForgottenWithThePackage) {
    Directory().MakeFile("A.metadata", "<Package" + Id("Other", 9) + "/>");
    ASSERT_EQ(Read("A"), S_OK);
    const ZELString name("Other");
    ASSERT_EQ(Manager().RemovePackage(&name), S_OK);
    Directory().MakeFile("A.metadata", "<Package" + Id("A", 8) + "/>");

    EXPECT_EQ(Read("A"), S_OK);

    EXPECT_TRUE(IsLoaded("A"));
    EXPECT_FALSE(IsLoaded("Other"));
}

TEST_F(PackageLoadTest, ScopePackagesAreLoadedBetweenTheFirstPassAndTheSecond) {
    // A refers to what the first pass of P made, P's second pass to what A made.
    MakePackage("A", ClassTag("CA", 2, "SuperRef=\"" + U(1) + "\""));

    ASSERT_EQ(LoadBody(ClassTag("C", 1, "ReferenceRef=\"" + U(2) + "\""), "UseScopes=\"A\""), S_OK);

    HeldList scopes;
    Package()->GetScopePackages(&scopes);
    EXPECT_EQ(scopes.Size(), 1);
}

TEST_F(PackageLoadTest, PackagesThatUseEachOthersScopesLoad) {
    MakePackage("A", "", "UseScopes=\"P\"");

    EXPECT_EQ(LoadBody("", "UseScopes=\"A\""), S_OK);

    EXPECT_TRUE(IsLoaded("A"));
}

TEST_F(PackageLoadTest, AChainOf5000UsedPackagesLoads) {
    MakePackage(ChainName(0), "");
    for (int number = 1; number < 5000; ++number) MakePackage(ChainName(number), "", UsesOneBefore(number));

    EXPECT_EQ(Load("P4999"), S_OK);

    EXPECT_TRUE(IsLoaded("P0"));
}

TEST_F(PackageLoadTest, AChainOf5000PackagesFailsWithItsLast) {
    for (int number = 1; number < 5000; ++number) MakePackage(ChainName(number), "", UsesOneBefore(number));

    EXPECT_EQ(Load("P4999"), E_FAIL);

    EXPECT_FALSE(IsLoaded("P4999"));
    EXPECT_EQ(Lines().size(), 1U);
}

TEST_F(PackageLoadTest, LinksIntoAPackageThatIsLoadedAgainStayUnset) {
    const ZELString used("A");
    MakePackage("A", ClassTag("CA", 1));
    MakePackage("P", ClassTag("C", 2, "SuperRef=\"" + U(1) + "\""), "UseNames=\"A\"");
    ASSERT_EQ(Load("P"), S_OK);
    const auto user = Find<OXMIDicClass>(2);
    Held<OXMIDicClass> super;
    HeldList packages;
    int lost = 0;

    EXPECT_EQ(Manager().RemovePackage(&used), S_OK);
    ClearWritten();
    EXPECT_EQ(Load("A"), S_OK);

    EXPECT_EQ(Written(), "");
    EXPECT_TRUE(Find<OXMIDicClass>(1));
    EXPECT_EQ(user->GetSuperClass(super.Out()), S_FALSE);
    EXPECT_EQ(user->GetLostLinks(&lost), S_OK);
    EXPECT_EQ(lost, 1);
    EXPECT_EQ(Package()->GetUsedPackages(&packages), S_OK);
    EXPECT_EQ(packages.Size(), 0);
}

// Tuning.

TEST_F(PackageLoadTest, AFaultyTuningDocumentGivesAWarningAndTheLoadStands) {
    Directory().MakeFile("P.tuning", "<Package/>");
    FaultCollector faults(false);

    EXPECT_EQ(LoadBody(ClassTag("C", 1)), S_OK);

    EXPECT_TRUE(IsLoaded("P"));
    EXPECT_EQ(Written(), "OxmDicFromXML:OxmDicFromXML- *** WARNING *** OxmDicFromXML_Tuning(P) failed.\n");
    ASSERT_EQ(faults.rows.size(), 2U);
    EXPECT_EQ(faults.rows[1].code, ZanDicDiagnosticCode::TuningFailed);
    EXPECT_EQ(faults.rows[1].severity, ZanDicSeverity::Warning);
    EXPECT_EQ(faults.rows[1].file, Directory().Path("P.tuning"));
}

// Trace and profiling.

TEST_F(PackageLoadTest, TellsItsStepsAtLevelTwo) {
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

TEST_F(PackageLoadTest, TellsItsArgumentsAtLevelFive) {
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

TEST_F(PackageLoadTest, TellsThatItRemovesAFailedPackage) {
    MakePackage("P", "<Class Name=\"C\"/>");
    TraceFromNow(2);

    ASSERT_EQ(Read("P"), E_FAIL);

    EXPECT_THAT(Written(), HasSubstr("-*** INFO *** Removing Package P from dictionary.\n"));
    EXPECT_THAT(Written(), HasSubstr("=== exit (main) === RC=KO.\n"));
}

TEST_F(PackageLoadTest, LinesOfTheCleanUpAreNotTheDocuments) {
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

TEST_F(PackageLoadTest, ThePhaseIsClosedWhileAPrerequisiteLoads) {
    MakePackage("A", "");
    MakePackage("P", "", "UseNames=\"A\"");
    const PhaseNotes phases;

    ASSERT_EQ(Read("P"), S_OK);

    EXPECT_THAT(phases.notes,
                ElementsAre("in OxmDicFromXML P", "out OxmDicFromXML P", "in OxmDicFromXML A",
                            "out OxmDicFromXML A", "in OxmDicFromXML P", "out OxmDicFromXML P"));
}

TEST_F(PackageLoadTest, AFailedLoadClosesItsPhase) {
    const PhaseNotes phases;

    EXPECT_EQ(Read("Missing"), E_FAIL);

    EXPECT_THAT(phases.notes, ElementsAre("in OxmDicFromXML Missing", "out OxmDicFromXML Missing"));
}

}  // namespace
