#include "OxmDicFromXMLTuning.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "HexToBinary.h"
#include "ModelFixture.h"
#include "OXMIDicAttributeBlock.h"
#include "ReaderFixture.h"
#include "ZanDicAttribute.h"

namespace {

const std::string kData = ZANDIC_TEST_DATA;

std::string TextOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

/// The package Tuned in a directory of its own, with one tuning document or none.
class TuningFixture : public ReaderFixture {
protected:
    static constexpr unsigned kPart = 0x01;
    static constexpr unsigned kScrew = 0x02;
    static constexpr unsigned kWeight = 0x11;
    static constexpr unsigned kHead = 0x21;
    static constexpr unsigned kGeometry = 0xB1;
    static constexpr unsigned kScrewGeometry = 0xB2;
    static constexpr unsigned kLinks = 0xB3;

    TuningFixture() { Directory().MakeFile("Tuned.metadata", TextOf(kData + "/good/Tuned.metadata")); }

    void UseTuning(const std::string& document) { Directory().MakeFile("Tuned.tuning", document); }

    /// A tuning document with \p body.
    void UseBody(const std::string& body) {
        UseTuning("<Package Name=\"Tuned\" Uuid=\"" + Text(0) + "\">" + body + "</Package>");
    }

    HRESULT LoadTuned() { return Load("Tuned"); }

    /// Reads the tuning document of the package that is loaded already.
    HRESULT Tune() {
        const ZELString name("Tuned");
        return OxmDicFromXML_Tuning(&Manager(), &name, Directory().Path().c_str(), Package("Tuned").Get());
    }

    static ZELDbBinary Uuid(unsigned number) {
        ZELString text(Text(number));
        ZELDbBinary uuid;
        UuidHexToBinary(&text, &uuid);
        return uuid;
    }

    static std::string Text(unsigned number) {
        char text[36];
        std::snprintf(text, sizeof text, "70000000-0000-0000-%016X", number);
        return text;
    }

    template <class Face>
    Held<Face> Get(unsigned number) {
        const ZELDbBinary uuid = Uuid(number);
        Held<OXMIDicElementH> object;
        Held<Face> face;
        if (Succeeded(Manager().Search(&uuid, object.Out()))) {
            object->QueryInterface(Face::ClassId(), face.OutVoid());
        }
        return face;
    }

    std::string AttributesOf(unsigned block) {
        HeldList attributes;
        const auto face = Get<OXMIDicAttributeBlock>(block);
        return face && face->GetAttributes(&attributes) == S_OK ? NamesOf(attributes) : "none";
    }

    std::string BlocksOf(unsigned owner) {
        HeldList blocks;
        EXPECT_EQ(Get<OXMIDicClass>(owner)->GetAttBlocks(&blocks), S_OK);
        return NamesOf(blocks);
    }

    static std::string Class(const std::string& body, unsigned number = kPart, const char* name = "Part") {
        return "<Class Name=\"" + std::string(name) + "\" Uuid=\"" + Text(number) + "\">" + body + "</Class>";
    }

    static constexpr const char* kFailed =
        "OxmDicFromXML:OxmDicFromXML- *** WARNING *** OxmDicFromXML_Tuning(Tuned) failed.\n";
};

// Faulty documents: each has its lines beside it.

std::vector<std::string> NamesOfBadTunings() {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(kData + "/bad")) {
        if (entry.path().extension() == ".tuning") names.push_back(entry.path().stem().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

class BadTuningTest : public TuningFixture, public ::testing::WithParamInterface<std::string> {
protected:
    BadTuningTest() { UseTuning(TextOf(kData + "/bad/" + GetParam() + ".tuning")); }

    static std::string ExpectedErrors() { return TextOf(kData + "/bad/" + GetParam() + ".errors"); }
};

TEST_P(BadTuningTest, WritesItsLinesAndThePackageStays) {
    EXPECT_EQ(LoadTuned(), S_OK);

    EXPECT_NE(ExpectedErrors(), "");
    EXPECT_EQ(WrittenErrors(), ExpectedErrors());
    EXPECT_EQ(Written(), kFailed);
    EXPECT_TRUE(IsLoaded("Tuned"));
}

TEST_P(BadTuningTest, WritesItsLinesWhateverTheTraceLevel) {
    TraceFromNow(-1);

    EXPECT_EQ(LoadTuned(), S_OK);

    EXPECT_EQ(WrittenErrors(), ExpectedErrors());
    EXPECT_EQ(Written(), "");
}

TEST_P(BadTuningTest, AnObserverIsToldTheFaultOnceAsAWarningWithItsPlace) {
    FaultCollector faults;

    EXPECT_EQ(LoadTuned(), S_OK);

    ASSERT_EQ(faults.rows.size(), 2U) << faults.Summary();
    const FaultCollector::Row& row = faults.rows[0];
    EXPECT_EQ(row.severity, ZanDicSeverity::Warning);
    EXPECT_EQ(row.file, Directory().Path("Tuned.tuning"));
    EXPECT_EQ(row.package, "Tuned");
    EXPECT_GT(row.place.line, 0) << row.reason;
    EXPECT_NE(row.reason, "");
    EXPECT_EQ(row.traceText + "\n", ExpectedErrors());
    EXPECT_TRUE(row.traced);
    EXPECT_EQ(faults.rows[1].code, ZanDicDiagnosticCode::TuningFailed);
    EXPECT_EQ(faults.rows[1].severity, ZanDicSeverity::Warning);
    EXPECT_EQ(faults.rows[1].file, Directory().Path("Tuned.tuning"));
}

TEST_P(BadTuningTest, ThePackageUnloadsAndLoadsAgainWithAGoodTuning) {
    EXPECT_EQ(LoadTuned(), S_OK);
    const ZELString name("Tuned");
    UseTuning(TextOf(kData + "/good/Tuned.tuning"));
    ClearWritten();

    EXPECT_EQ(Manager().RemovePackage(&name), S_OK);
    ClearWritten();
    EXPECT_EQ(LoadTuned(), S_OK);

    EXPECT_EQ(WrittenErrors(), "");
    EXPECT_EQ(BlocksOf(kPart), "Links Geometry ");
}

INSTANTIATE_TEST_SUITE_P(Documents, BadTuningTest, ::testing::ValuesIn(NamesOfBadTunings()),
                         [](const auto& name) { return name.param; });

// The good document.

class OxmDicFromXMLTuningTest : public TuningFixture {
protected:
    void LoadGood() {
        UseTuning(TextOf(kData + "/good/Tuned.tuning"));
        ASSERT_EQ(LoadTuned(), S_OK);
    }

    void Unload() {
        const ZELString name("Tuned");
        EXPECT_EQ(Manager().RemovePackage(&name), S_OK);
    }
};

TEST_F(OxmDicFromXMLTuningTest, BlocksGetTheirNamesAttributesAndFathers) {
    LoadGood();

    EXPECT_EQ(WrittenErrors(), "");
    EXPECT_EQ(Written(), "");
    EXPECT_EQ(AttributesOf(kGeometry), "weight length ");
    EXPECT_EQ(AttributesOf(kLinks), "uses usedBy ");
    EXPECT_EQ(AttributesOf(kScrewGeometry), "head weight length ");
    EXPECT_EQ(NameOf(*Get<OXMIDicAttributeBlock>(kScrewGeometry)), "Geometry");
    EXPECT_EQ(BlocksOf(kPart), "Links Geometry ");
    EXPECT_EQ(BlocksOf(kScrew), "Geometry Links ");
}

TEST_F(OxmDicFromXMLTuningTest, ThePackageMayBeAChildOfTheRoot) {
    UseTuning("<Doc><Other/><Package Name=\"Tuned\" Uuid=\"" + Text(0) + "\">" +
              Class("<AttributeBlock Name=\"G\" Uuid=\"" + Text(kGeometry) + "\" AttributeUuids=\"\"/>") +
              "</Package></Doc>");

    EXPECT_EQ(LoadTuned(), S_OK);

    EXPECT_EQ(WrittenErrors(), "");
    EXPECT_EQ(BlocksOf(kPart), "G ");
}

TEST_F(OxmDicFromXMLTuningTest, WithoutADocumentTheResultIsOneAndNothingIsWritten) {
    EXPECT_EQ(LoadTuned(), S_OK);

    EXPECT_EQ(Tune(), S_FALSE);

    EXPECT_EQ(Written(), "");
    EXPECT_EQ(WrittenErrors(), "");
}

TEST_F(OxmDicFromXMLTuningTest, GivesTheResultOfTheTuning) {
    EXPECT_EQ(LoadTuned(), S_OK);
    UseTuning(TextOf(kData + "/good/Tuned.tuning"));
    EXPECT_EQ(Tune(), S_OK);
    EXPECT_EQ(BlocksOf(kPart), "Links Geometry ");

    EXPECT_EQ(Tune(), E_FAIL);

    EXPECT_EQ(WrittenErrors(), "ERROR : second valuation of the same AttributeBlock\n");
    EXPECT_EQ(BlocksOf(kPart), "Links Geometry ");
}

TEST_F(OxmDicFromXMLTuningTest, TheDriverTracesTheTuningAsOkWithAndWithoutADocument) {
    TraceFromNow(2);
    EXPECT_EQ(LoadTuned(), S_OK);
    const std::string lines =
        "OxmDicFromXML:OxmDicFromXML- calling OxmDicFromXML_Tuning(Tuned)....\n"
        "OxmDicFromXML:OxmDicFromXML- rc[OxmDicFromXML_Tuning(Tuned)]=OK.\n";
    EXPECT_NE(LinesOf("OxmDicFromXML:OxmDicFromXML- ").find(lines), std::string::npos);
    Unload();
    UseTuning(TextOf(kData + "/good/Tuned.tuning"));
    ClearWritten();

    EXPECT_EQ(LoadTuned(), S_OK);

    EXPECT_NE(LinesOf("OxmDicFromXML:OxmDicFromXML- ").find(lines), std::string::npos);
}

TEST_F(OxmDicFromXMLTuningTest, TheDriverTracesAFailureAsKo) {
    UseTuning("<Package/>");
    TraceFromNow(2);

    EXPECT_EQ(LoadTuned(), S_OK);

    EXPECT_NE(Written().find("OxmDicFromXML:OxmDicFromXML- rc[OxmDicFromXML_Tuning(Tuned)]=KO.\n"),
              std::string::npos);
}

TEST_F(OxmDicFromXMLTuningTest, ErrorLinesCountAsCausedByTheDocument) {
    UseTuning("<Package/>");
    EXPECT_EQ(LoadTuned(), S_OK);

    EXPECT_EQ(DocumentLines(), "ERROR no Uuid Attribute in Package Tag Tuned\n" + std::string(kFailed));
}

TEST_F(OxmDicFromXMLTuningTest, UuidIsTestedBeforeName) {
    UseTuning("<Package/>");

    EXPECT_EQ(LoadTuned(), S_OK);

    EXPECT_EQ(WrittenErrors(), "ERROR no Uuid Attribute in Package Tag Tuned\n");
}

TEST_F(OxmDicFromXMLTuningTest, StopsAtTheFirstFault) {
    UseBody(Class("<AttributeBlock/>") + "<Wrong/>" + Class("<Wrong/>"));

    EXPECT_EQ(LoadTuned(), S_OK);

    EXPECT_EQ(WrittenErrors(), "ERROR no Uuid Attribute in AttributeBlock Tag Part\n");
}

TEST_F(OxmDicFromXMLTuningTest, AnObserverThatGoesOnIsToldAllFaultsAndNothingIsComputed) {
    UseBody(Class("<AttributeBlock/>") + "<Wrong/>" +
            Class("<AttributeBlock Name=\"G\" Uuid=\"" + Text(kGeometry) + "\" AttributeUuids=\"" +
                  Text(kWeight) + " " + Text(kHead) + "\"/>"));
    FaultCollector faults;

    EXPECT_EQ(LoadTuned(), S_OK);

    EXPECT_EQ(faults.Summary(),
              "missing-attribute 1:128 Part @Uuid\n"
              "missing-attribute 1:128 Part @Name\n"
              "missing-attribute 1:128 Part @AttributeUuids\n"
              "unsupported-tag 1:153 \n"
              "invalid-block 1:248 Part::G @Uuid\n"
              "tuning-failed 0:0 Tuned <- 1\n");
    EXPECT_EQ(BlocksOf(kPart), "");
}

TEST_F(OxmDicFromXMLTuningTest, ATuningFaultDoesNotStopTheLoadOfOthers) {
    UseTuning("<Package/>");
    MakePackage("P", ClassTag("C", 0x77), "UseNames=\"Tuned\"");
    FaultCollector faults(false);

    EXPECT_EQ(Load("P"), S_OK);

    EXPECT_TRUE(IsLoaded("P"));
    EXPECT_TRUE(IsLoaded("Tuned"));
}

TEST_F(OxmDicFromXMLTuningTest, AForeignAttributeIsAdded) {
    UseBody(Class("<AttributeBlock Name=\"G\" Uuid=\"" + Text(kGeometry) + "\" AttributeUuids=\"" +
                  Text(kHead) + " " + Text(kWeight) + "\"/>"));

    EXPECT_EQ(LoadTuned(), S_OK);

    EXPECT_EQ(WrittenErrors(),
              "ERROR : Attribute " + Text(kHead) + " is not an attribute declared on Class Part\n");
    EXPECT_EQ(AttributesOf(kGeometry), "head weight ");
    EXPECT_EQ(NameOf(*Get<OXMIDicAttributeBlock>(kGeometry)), "G");
}

TEST_F(OxmDicFromXMLTuningTest, AnAttributeWithoutClassEndsItsBlock) {
    const Held<ZanDicAttribute> stray(new ZanDicAttribute("stray", Uuid(0xAA)));
    const ZELDbBinary uuid = Uuid(0xAA);
    stray->SetUuid(&uuid);
    UseBody(Class("<AttributeBlock Name=\"G\" Uuid=\"" + Text(kGeometry) + "\" AttributeUuids=\"" +
                  Text(0xAA) + " " + Text(kWeight) + "\"/>"));

    EXPECT_EQ(LoadTuned(), S_OK);

    EXPECT_EQ(WrittenErrors(), "ERROR : Attribute without Class !!!\n");
    EXPECT_EQ(AttributesOf(kGeometry), "");
    stray->AddRef();  // the registry gives back the creator's reference of what it still holds
}

TEST_F(OxmDicFromXMLTuningTest, BlocksMadeBeforeAnErrorStayUntilThePackageGoes) {
    UseBody(Class("<AttributeBlock Name=\"G\" Uuid=\"" + Text(kGeometry) + "\" AttributeUuids=\"\"/>") +
            "<Wrong/>");

    EXPECT_EQ(LoadTuned(), S_OK);

    EXPECT_TRUE(Get<OXMIDicAttributeBlock>(kGeometry));
    EXPECT_EQ(BlocksOf(kPart), "");
    Unload();
    EXPECT_FALSE(Get<OXMIDicAttributeBlock>(kGeometry));
}

TEST_F(OxmDicFromXMLTuningTest, ABlockNamedByACallerIsDescribedAlready) {
    EXPECT_EQ(LoadTuned(), S_OK);
    const ZELDbBinary uuid = Uuid(kGeometry);
    const ZELString name("Mine");
    Held<OXMIDicAttributeBlock> block;
    EXPECT_EQ(Package("Tuned")->CreateAttributeBlock(&uuid, block.Out()), S_OK);
    EXPECT_EQ(block->SetName(&name), S_OK);
    UseBody(Class("<AttributeBlock Name=\"G\" Uuid=\"" + Text(kGeometry) + "\" AttributeUuids=\"\"/>"));

    EXPECT_EQ(Tune(), E_FAIL);

    EXPECT_EQ(WrittenErrors(), "ERROR : second valuation of the same AttributeBlock\n");
    EXPECT_EQ(NameOf(*block), "Mine");
}

TEST_F(OxmDicFromXMLTuningTest, BlocksForAClassOfAnotherPackageBelongToTheOneThatDescribesThem) {
    LoadGood();
    MakePackage("P", "<Class" + Id("Rivet", 0x77) + " Persistent=\"Yes\" SuperRef=\"" + Text(kPart) + "\"/>",
                "UseNames=\"Tuned\"");
    Directory().MakeFile("P.tuning", "<Package" + Id("P", 0xF0000) + ">" +
                                         Class("<AttributeBlock Name=\"Extra\" Uuid=\"" + Text(0xB9) +
                                               "\" AttributeUuids=\"\"/>") +
                                         "</Package>");

    EXPECT_EQ(Load("P"), S_OK);
    EXPECT_EQ(BlocksOf(kPart), "Extra Links Geometry ");
    const ZELString name("P");
    EXPECT_EQ(Manager().RemovePackage(&name), S_OK);

    EXPECT_EQ(BlocksOf(kPart), "Links Geometry ");
}

TEST_F(OxmDicFromXMLTuningTest, LoadsTunesAndUnloadsWithoutGrowth) {
    LoadGood();
    const int objects = ZanDicObj::live_Objects();
    const std::string attributes = AttributesOf(kScrewGeometry);

    for (int round = 0; round < 200; ++round) {
        Unload();
        ASSERT_EQ(LoadTuned(), S_OK);
    }

    EXPECT_EQ(WrittenErrors(), "");
    EXPECT_EQ(ZanDicObj::live_Objects(), objects);
    EXPECT_EQ(AttributesOf(kScrewGeometry), attributes);
}

/// 100,000 classes one below the other, each with a block that extends the one above, the lowest first.
TEST_F(OxmDicFromXMLTuningTest, ADeepChainOfFathersLoadsAndUnloads) {
    constexpr unsigned kLevels = 100'000;
    std::string body;
    std::string tuning;
    for (unsigned level = 0; level < kLevels; ++level) {
        const std::string name = "C" + std::to_string(level);
        const std::string attribute = "<Simple" + Id("a" + std::to_string(level), 0x200000 + level) + "/>";
        body +=
            ClassTag(name, 0x100000 + level,
                     level == 0 ? std::string() : "SuperRef=\"" + U(0x100000 + level - 1) + "\"", attribute);
    }
    for (unsigned level = kLevels; level-- > 0;) {
        const std::string extents = "\" Extents=\"" + U(0x300000 + level - 1);
        tuning += "<Class" + Id("C" + std::to_string(level), 0x100000 + level) + "><AttributeBlock" +
                  (level == 0 ? " Name=\"Top\"" : "Extension") + " Uuid=\"" + U(0x300000 + level) +
                  "\" AttributeUuids=\"" + U(0x200000 + level) + (level == 0 ? "" : extents) +
                  "\"/></Class>\n";
    }
    MakePackage("P", body);
    Directory().MakeFile("P.tuning", "<Package" + Id("P", 0xF0000) + ">" + tuning + "</Package>");

    EXPECT_EQ(Load("P"), S_OK);

    EXPECT_EQ(WrittenErrors(), "");
    HeldList attributes;
    EXPECT_EQ(Find<OXMIDicAttributeBlock>(0x300000 + kLevels - 1)->GetAttributes(&attributes), S_OK);
    EXPECT_EQ(attributes.Size(), static_cast<int>(kLevels));
    const ZELString name("P");
    EXPECT_EQ(Manager().RemovePackage(&name), S_OK);
}

using OxmDicFromXMLTuningDeathTest = OxmDicFromXMLTuningTest;

TEST_F(OxmDicFromXMLTuningDeathTest, NullArgumentsEndTheProcess) {
    EXPECT_EQ(LoadTuned(), S_OK);
    const ZELString name("Tuned");
    const auto package = Package("Tuned");
    const char* const message = "AssertionFailed:DicMgr && PackName && Package";

    EXPECT_DEATH(OxmDicFromXML_Tuning(nullptr, &name, "", package.Get()), message);
    EXPECT_DEATH(OxmDicFromXML_Tuning(&Manager(), nullptr, "", package.Get()), message);
    EXPECT_DEATH(OxmDicFromXML_Tuning(&Manager(), &name, "", nullptr), message);
}

}  // namespace
