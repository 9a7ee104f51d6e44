#include <string>
#include <utility>
#include <vector>

#include "DictionaryFixture.h"
#include "OXMIDicClass.h"
#include "OXMIDicPackage.h"
#include "OXMIDicPrimitive.h"
#include "OXMIDicSimple.h"
#include "ZELTestDirectory.h"

namespace {

constexpr auto kInvalidMode = static_cast<OXMDicPERSISTENT>(-1);

/// Notes what it is told.
class NotingProfiler final : public ZanDicProfiler {
public:
    void StepIn(std::string_view operation, std::string_view subject) override {
        told.push_back("in " + ZanDicProfiling::PhaseName(operation, subject));
    }
    void StepOut(std::string_view operation, std::string_view subject) override {
        told.push_back("out " + ZanDicProfiling::PhaseName(operation, subject));
    }
    void ResetAll() override { told.emplace_back("reset"); }

    std::vector<std::string> told;
};

class ZanDictionaryStorageTest : public DictionaryFixture {
protected:
    ~ZanDictionaryStorageTest() override { ::unsetenv("ZELDictionaryPath"); }

    /// Writes a package with one class into the test's directory, which becomes the search path.
    void MakeDocument(const std::string& name = "Items") {
        _Directory.MakeFile(
            name + ".metadata",
            "<Package Name=\"" + name +
                "\" Uuid=\"00000000-0000-0000-00000000000000A1\" Domain=\"VALKOR\">"
                "<Class Name=\"Part\" Uuid=\"00000000-0000-0000-00000000000000A2\" Persistent=\"Yes\">"
                "<Simple Name=\"Weight\" Uuid=\"00000000-0000-0000-00000000000000A3\" Type=\"Double\"/>"
                "</Class></Package>");
        UseDirectory();
    }

    void UseDirectory() { ::setenv("ZELDictionaryPath", _Directory.Path().c_str(), 1); }
    const char* Directory() const { return _Directory.Path().c_str(); }

    HRESULT Load(const char* name, OXMDicPERSISTENT mode = OXMDicPERSISTENT_Xml) {
        const ZELString text = name;
        return Manager().LoadPackage(&text, mode);
    }

    HRESULT LoadFromDir(const char* directory, const char* name,
                        OXMDicPERSISTENT mode = OXMDicPERSISTENT_Xml) {
        const ZELString text = name;
        return Manager().LoadPackageFromDir(directory, &text, mode);
    }

    HRESULT LoadXml(const char* directory, const char* name) {
        const ZELString text = name;
        return Manager().LoadXml(directory, &text, OXMDicCONTENT_metadata);
    }

    HRESULT Save(const char* directory, const char* name, OXMDicPERSISTENT mode) {
        const ZELString text = name;
        return Manager().SavePackageToDir(directory, &text, mode);
    }

    bool IsLoaded(const char* name) {
        const ZELString text = name;
        Held<OXMIDicPackage> package;
        return Succeeded(Manager().GetPackage(&text, package.Out()));
    }

    void List(const std::string& operations) {
        ZanDicSetTraceMethodsFile(_Methods.MakeFile("methods.txt", operations).c_str());
        ClearWritten();
    }

private:
    TestDirectory _Directory;
    TestDirectory _Methods;
};

}  // namespace

// LoadPackage

TEST_F(ZanDictionaryStorageTest, LoadPackageReadsADocumentOfTheSearchPath) {
    MakeDocument();

    EXPECT_EQ(Load("Items"), S_OK);
    EXPECT_TRUE(IsLoaded("Items"));
    EXPECT_EQ(Written(), "");
}

TEST_F(ZanDictionaryStorageTest, LoadPackageTakesTheContentWordOfTheName) {
    MakeDocument();
    const ZELString name = "Items.metadata";

    EXPECT_EQ(Manager().LoadPackage(&name, OXMDicPERSISTENT_Xml, OXMDicCONTENT_rbodef), S_OK);
    EXPECT_TRUE(IsLoaded("Items"));
}

TEST_F(ZanDictionaryStorageTest, LoadPackageReadsNothingWhenTheManagersModeIsNone) {
    MakeDocument();
    Manager().SetLoadingMode(OXMDicPERSISTENT_None);
    List("ZanDictionary::LoadPackage\nZanDictionary::LoadPackageFromDir\n");

    EXPECT_EQ(Load("Items"), E_FAIL);
    EXPECT_FALSE(IsLoaded("Items"));
    EXPECT_EQ(Written(),
              "ZanDictionary::LoadPackage- === start ===.\n"
              "ZanDictionary::LoadPackage- iPackName=Items, iMode=2.\n"
              "ZanDictionary::LoadPackage- 707- _PriorMode=0, iMode=2.\n"
              "ZanDictionary::LoadPackage- === exit === RC=KO.\n");
}

TEST_F(ZanDictionaryStorageTest, LoadPackageTracesWithItsNumbers) {
    MakeDocument();
    List("ZanDictionary::LoadPackage");

    EXPECT_EQ(Load("Items"), S_OK);
    EXPECT_EQ(Written(),
              "ZanDictionary::LoadPackage- === start ===.\n"
              "ZanDictionary::LoadPackage- iPackName=Items, iMode=2.\n"
              "ZanDictionary::LoadPackage- 707- _PriorMode=2, iMode=2.\n"
              "ZanDictionary::LoadPackage- 711- rc[LoadPackageFromDir]=OK.\n"
              "ZanDictionary::LoadPackage- === exit === RC=OK.\n");
}

TEST_F(ZanDictionaryStorageTest, LoadPackageTriesTheSameModeOnce) {
    UseDirectory();
    List("ZanDictionary::LoadPackage");

    EXPECT_EQ(Load("Missing"), E_FAIL);
    EXPECT_NE(Written().find(" 711- rc[LoadPackageFromDir]=KO."), std::string::npos);
    EXPECT_EQ(Written().find("724"), std::string::npos);
}

TEST_F(ZanDictionaryStorageTest, LoadPackageFallsBackOnTheRequestedMode) {
    MakeDocument();
    Manager().SetLoadingMode(OXMDicPERSISTENT_Express);
    List("ZanDictionary::LoadPackage");

    EXPECT_EQ(Load("Items"), S_OK);
    EXPECT_EQ(Written(),
              "ZanDictionary::LoadPackage- === start ===.\n"
              "ZanDictionary::LoadPackage- iPackName=Items, iMode=2.\n"
              "ZanDictionary::LoadPackage- 707- _PriorMode=4, iMode=2.\n"
              "ZanDictionary::LoadPackage- 711- rc[LoadPackageFromDir]=KO.\n"
              "ZanDictionary::LoadPackage- 724- rc[LoadPackageFromDir]=OK.\n"
              "ZanDictionary::LoadPackage- === exit === RC=OK.\n");
}

TEST_F(ZanDictionaryStorageTest, LoadPackageComplainsOfANegativeModeAndLoadsAnyway) {
    MakeDocument();
    testing::internal::CaptureStderr();

    EXPECT_EQ(Load("Items", kInvalidMode), S_OK);
    EXPECT_NE(testing::internal::GetCapturedStderr(), "") << "the call stack";
    EXPECT_TRUE(IsLoaded("Items"));
    EXPECT_EQ(Written(),
              "ZanDictionary::LoadPackage- *** ERROR *** Should not be called with iMode=-1 to load package "
              "Items.\n"
              "ZanDictionary::LoadPackage- *** ERROR *** Printing call stack:.\n"
              "ZanDictionary::LoadPackage- *** ERROR *** Trying to load package Items anyway....\n");
}

TEST_F(ZanDictionaryStorageTest, LoadPackageRefusesNull) {
    UseDirectory();

    EXPECT_EQ(Manager().LoadPackage(nullptr, OXMDicPERSISTENT_Xml), E_FAIL);
}

TEST_F(ZanDictionaryStorageTest, NamesThatLeadElsewhereAreRefusedWithOneLine) {
    UseDirectory();

    for (const char* const name : {"../Items", "sub/Items", "sub\\Items", ".."}) {
        ClearWritten();
        EXPECT_EQ(Load(name), E_FAIL);
        ASSERT_EQ(Lines().size(), 1U) << Written();
        EXPECT_EQ(Lines()[0].severity, ZELLineSeverity::Error);
        EXPECT_NE(Lines()[0].text.find(name), std::string::npos);
    }
}

// LoadPackageFromDir

TEST_F(ZanDictionaryStorageTest, LoadPackageFromDirReadsADocumentThere) {
    MakeDocument();
    ::setenv("ZELDictionaryPath", "/nowhere", 1);

    EXPECT_EQ(LoadFromDir(Directory(), "Items"), S_OK);
    EXPECT_TRUE(IsLoaded("Items"));
}

TEST_F(ZanDictionaryStorageTest, LoadPackageFromDirReadsALoadedPackageNoSecondTime) {
    MakeDocument();
    ASSERT_EQ(Load("Items"), S_OK);
    List("ZanDictionary::LoadXml");
    const ZELString name = "Items";

    EXPECT_EQ(LoadFromDir("/nowhere", "Items"), S_OK);
    EXPECT_EQ(Manager().LoadPackage(&name, OXMDicPERSISTENT_Xml, OXMDicCONTENT_rbodef), S_OK)
        << "whatever the content";
    EXPECT_EQ(LoadFromDir(nullptr, "Items", OXMDicPERSISTENT_Express), S_OK) << "whatever the mode";
    EXPECT_EQ(Written(), "");
}

TEST_F(ZanDictionaryStorageTest, LoadPackageFromDirReadsInXmlModeOnly) {
    MakeDocument();

    for (const int mode : {-1, 0, 1, 3, 4}) {
        EXPECT_EQ(LoadFromDir(nullptr, "Items", static_cast<OXMDicPERSISTENT>(mode)), E_FAIL) << mode;
    }
    EXPECT_FALSE(IsLoaded("Items"));
    EXPECT_EQ(Written(), "");
}

TEST_F(ZanDictionaryStorageTest, LoadPackageFromDirTraces) {
    MakeDocument();
    List("ZanDictionary::LoadPackageFromDir");
    LoadFromDir(nullptr, "Items");
    LoadFromDir("/d", "Items", kInvalidMode);

    EXPECT_EQ(Written(),
              "ZanDictionary::LoadPackageFromDir- === start ===.\n"
              "ZanDictionary::LoadPackageFromDir- iPackName=Items.\n"
              "ZanDictionary::LoadPackageFromDir- rc[LoadXml]=OK.\n"
              "ZanDictionary::LoadPackageFromDir- === exit === RC=OK.\n"
              "ZanDictionary::LoadPackageFromDir- === start ===.\n"
              "ZanDictionary::LoadPackageFromDir- iPackName=Items.\n"
              "ZanDictionary::LoadPackageFromDir- iDirName=/d.\n"
              "ZanDictionary::LoadPackageFromDir- === exit === RC=KO.\n");
}

// LoadXml

TEST_F(ZanDictionaryStorageTest, LoadXmlTraces) {
    MakeDocument();
    List("ZanDictionary::LoadXml");

    EXPECT_EQ(LoadXml(Directory(), "Items"), S_OK);
    EXPECT_EQ(Written(),
              "ZanDictionary::LoadXml- === start ===.\n"
              "ZanDictionary::LoadXml- iPackName=Items.\n"
              "ZanDictionary::LoadXml- iDirName=" +
                  std::string(Directory()) +
                  ".\n"
                  "ZanDictionary::LoadXml- rc[OxmDicFromXML]=OK.\n"
                  "ZanDictionary::LoadXml- === exit === RC=OK.\n");
}

TEST_F(ZanDictionaryStorageTest, LoadXmlNeedsAPath) {
    EXPECT_EQ(LoadXml(nullptr, "Items"), E_FAIL);
    EXPECT_EQ(Written(), "ZanDictionary::LoadXml- *** ERROR *** Could not get file path.\n");
}

TEST_F(ZanDictionaryStorageTest, LoadXmlNeedsTheManagersInterface) {
    MakeDocument();
    const OXMIDicMgrProvider provider = OXMIDicSetMgrProvider(nullptr);
    const HRESULT rc = LoadXml(nullptr, "Items");
    OXMIDicSetMgrProvider(provider);

    EXPECT_EQ(rc, E_FAIL);
    EXPECT_EQ(Written(), "ZanDictionary::LoadXml- *** ERROR *** Could not get pointer to OXMIDicMgr.\n");
}

TEST_F(ZanDictionaryStorageTest, LoadXmlReadsWhateverTheLoadingMode) {
    MakeDocument();
    Manager().SetLoadingMode(OXMDicPERSISTENT_None);

    EXPECT_EQ(LoadXml(nullptr, "Items"), S_OK);
}

TEST_F(ZanDictionaryStorageTest, LoadXmlMakesThePrimitivesForACallerWhoForgotInit) {
    MakeDocument();
    Manager().End();
    ASSERT_EQ(LoadXml(nullptr, "Items"), S_OK);
    const ZELDbBinary uuid = TestUuid(0xA3);
    Held<OXMIDicElementH> found;
    ASSERT_EQ(Manager().Search(&uuid, found.Out()), S_OK);
    Held<OXMIDicSimple> weight;
    ASSERT_EQ(found->QueryInterface(IID_OXMIDicSimple, weight.OutVoid()), S_OK);
    Held<OXMIDicPrimitive> primitive;

    EXPECT_EQ(weight->GetPrimitive(primitive.Out()), S_OK);
    EXPECT_EQ(primitive->Primitive(), OXMDicPRIMITIVEType_Double);
}

TEST_F(ZanDictionaryStorageTest, LoadXmlTellsTheProfilerItsPhase) {
    MakeDocument();
    NotingProfiler profiler;
    ZanDicSetProfiler(&profiler);
    LoadXml(nullptr, "Items");

    ASSERT_GE(profiler.told.size(), 3U);
    EXPECT_EQ(profiler.told.front(), "in ZanDictionary::LoadXml [Items]");
    EXPECT_EQ(profiler.told[profiler.told.size() - 2], "out ZanDictionary::LoadXml [Items]");
    EXPECT_EQ(profiler.told.back(), "reset");
}

TEST_F(ZanDictionaryStorageTest, AFailedLoadLeavesNothingAndALaterOneWorks) {
    UseDirectory();
    EXPECT_EQ(Load("Items"), E_FAIL);
    EXPECT_FALSE(IsLoaded("Items"));

    MakeDocument();
    EXPECT_EQ(Load("Items"), S_OK);
}

TEST_F(ZanDictionaryStorageTest, APackageUnloadsAndLoadsAgain) {
    MakeDocument();
    const ZELString name = "Items";
    ASSERT_EQ(Load("Items"), S_OK);

    EXPECT_EQ(Manager().RemovePackage(&name), S_OK);
    EXPECT_EQ(Load("Items"), S_OK);
}

// Saving

TEST_F(ZanDictionaryStorageTest, SavingNeedsALoadedPackage) {
    const ZELString name = "Items";

    EXPECT_EQ(Save(Directory(), "Items", OXMDicPERSISTENT_Xml), E_FAIL);
    EXPECT_EQ(Manager().SavePackage(&name, OXMDicPERSISTENT_Xml), E_FAIL);
    EXPECT_EQ(Written(),
              "ZanDictionary::SavePackageToDir- *** ERROR *** "
              "Could not get pointer to OXMIDicPackage named Items.\n"
              "ZanDictionary::SavePackageToDir- *** ERROR *** "
              "Could not get pointer to OXMIDicPackage named Items.\n");
}

TEST_F(ZanDictionaryStorageTest, SavingInAModeWithoutWriterDoesNothingAndSucceeds) {
    MakeDocument();
    Load("Items");

    for (const int mode : {-1, 0, 1, 3, 5}) {
        EXPECT_EQ(Save(Directory(), "Items", static_cast<OXMDicPERSISTENT>(mode)), S_OK) << mode;
    }
    EXPECT_EQ(Written(), "");
}

TEST_F(ZanDictionaryStorageTest, SavingTraces) {
    MakeDocument();
    Load("Items");
    List("ZanDictionary::SavePackageToDir");
    Save("/d", "Items", OXMDicPERSISTENT_None);

    EXPECT_EQ(Written(),
              "ZanDictionary::SavePackageToDir- === start ===.\n"
              "ZanDictionary::SavePackageToDir- iDirName=/d.\n"
              "ZanDictionary::SavePackageToDir- iPackName=Items.\n"
              "ZanDictionary::SavePackageToDir- iMode=0.\n"
              "ZanDictionary::SavePackageToDir- === exit === RC=OK.\n");
}

TEST_F(ZanDictionaryStorageTest, SavingADocumentTracesItsSteps) {
    MakeDocument();
    const ZELString name("Items");
    const TestDirectory target;
    ASSERT_EQ(Manager().LoadPackage(&name, OXMDicPERSISTENT_Xml), S_OK);
    TraceFromNow(5);

    EXPECT_EQ(Manager().SavePackageToDir(target.Path().c_str(), &name, OXMDicPERSISTENT_Xml), S_OK);

    EXPECT_NE(Written().find("ZanDictionary::SaveXml- iPackName=Items, iDirName=" + target.Path() + ".\n"),
              std::string::npos);
    EXPECT_NE(Written().find("ZanDictionary::SavePackageToDir- rc[this->SaveXml()]=OK.\n"),
              std::string::npos);
}

TEST_F(ZanDictionaryStorageTest, SaveXmlNeedsAPath) {
    const ZELString name = "Items";

    EXPECT_EQ(Manager().SaveXml(nullptr, &name), E_FAIL);
    EXPECT_EQ(Written(), "ZanDictionary::SaveXml- *** ERROR *** Could not get file path.\n");
}
