// What a document says of other packages: links to what is gone, lists of packages, content kinds.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "FakeClass.h"
#include "FakeDictionary.h"
#include "HexToBinary.h"
#include "KindsFixture.h"
#include "OxmDicToXML.h"
#include "SaveFixture.h"

namespace {

using testing::HasSubstr;
using testing::Not;

/// The end of a warning about a link.
constexpr const char* kLeftOut = ": what it named is no longer loaded; left out.\n";
constexpr const char* kAsStored = ": what it named is no longer loaded; written as it was stored.\n";

class OxmDicToXMLLinksTest : public SavingFixture<KindsFixture> {
protected:
    /// The beginning of a warning, up to the attribute.
    static std::string Warning(const char* kind, const char* name, const char* attribute) {
        return std::string("OxmDicToXML:Display") + kind + " -- *** WARNING *** " + kind + " " + name +
               ", attribute " + attribute;
    }

    static std::string UuidOf(OXMIDicElementH& object) {
        ZELDbBinary uuid;
        object.GetUuid(&uuid);
        return UuidText(uuid);
    }

    /// Unloads "Other", to which the elements of a test are linked, and forgets what was written.
    void LoseOther() {
        RemovePackage("Other");
        ClearWritten();
    }

    /// The package of a test, and the one that goes.
    Held<OXMIDicPackage> package = Package("P");
    Held<OXMIDicPackage> other = Package("Other");
};

// links to what is gone

TEST_F(OxmDicToXMLLinksTest, ALostEnumerationOfASimpleLeavesItWithoutType) {
    const Held<OXMIDicClass> owner = Class(*package, "C");
    Simple(*owner, "S")->SetType(Enum(*other, "E").Get());
    other.Reset();
    LoseOther();

    const std::string text = SavedText("P");

    EXPECT_EQ(Written(), Warning("Simple", "S", "TargetRef") + kLeftOut);
    EXPECT_EQ(WrittenErrors(), "ERROR GetPrimitive failed\n");
    EXPECT_THAT(text, HasSubstr("AccessMode=\"Read\" Mandatory="));
}

TEST_F(OxmDicToXMLLinksTest, LostScopesOfARelationshipAreToldOneByOne) {
    const Held<OXMIDicClass> owner = Class(*package, "C");
    const Held<OXMIDicRelationship> relationship = Relationship(*owner, "R");
    relationship->AddScope(Class(*other, "First").Get());
    relationship->AddScope(owner.Get());
    relationship->AddScope(Class(*other, "Second").Get());
    other.Reset();
    LoseOther();

    const std::string text = SavedText("P");

    const std::string line = Warning("Relationship", "R", "ScopeRefs") + kLeftOut;
    EXPECT_EQ(Written(), line + line);
    EXPECT_THAT(text, HasSubstr("ScopeRefs=\"" + UuidOf(*owner) + "\""));
}

TEST_F(OxmDicToXMLLinksTest, LostScopesAndSuperClassOfAnExtensionAreToldOneByOne) {
    const Held<OXMIDicExtension> extension = Extension(*package, "X");
    const Held<OXMIDicExtension> superExtension = Extension(*other, "SX");
    superExtension->AddScope(Class(*package, "Inherited").Get());
    extension->SetSuperClass(superExtension.Get());
    extension->AddScope(Class(*other, "First").Get());
    const Held<OXMIDicClass> kept = Class(*package, "Kept");
    extension->AddScope(kept.Get());
    extension->AddScope(Class(*other, "Second").Get());
    other.Reset();
    LoseOther();

    const std::string text = SavedText("P");

    const std::string line = "OxmDicToXML:DisplayClass -- *** WARNING *** Extension X, attribute ScopeRefs";
    EXPECT_EQ(Written(), "OxmDicToXML:DisplayClass -- *** WARNING *** Extension X, attribute SuperRef" +
                             std::string(kLeftOut) + line + kLeftOut + line + kLeftOut);
    EXPECT_THAT(text, HasSubstr("ScopeRefs=\"" + UuidOf(*kept) + "\" ScopeNames=\"Kept\""));
    EXPECT_THAT(text, Not(HasSubstr("Super")));
}

TEST_F(OxmDicToXMLLinksTest, TheLostScopesOfASuperExtensionAreItsOwnLoss) {
    const Held<OXMIDicExtension> superExtension = Extension(*package, "SX");
    superExtension->AddScope(Class(*other, "Lost").Get());
    const Held<OXMIDicExtension> extension = Extension(*package, "X");
    extension->SetSuperClass(superExtension.Get());
    other.Reset();
    LoseOther();

    EXPECT_THAT(SavedText("P"), Not(HasSubstr("Scope")));

    EXPECT_EQ(Written(), "OxmDicToXML:DisplayClass -- *** WARNING *** Extension SX, attribute ScopeRefs" +
                             std::string(kLeftOut));
}

TEST_F(OxmDicToXMLLinksTest, LostMembersOfAUniqueAreToldOneByOne) {
    const Held<OXMIDicClass> owner = Class(*package, "C");
    const Held<OXMIDicUnique> unique = Unique(*owner, "U");
    const Held<OXMIDicClass> foreign = Class(*other, "F");
    unique->AddElement(Simple(*foreign, "First").Get());
    unique->AddElement(Simple(*foreign, "Second").Get());
    other.Reset();
    LoseOther();

    EXPECT_THAT(SavedText("P"), Not(HasSubstr("UniqueRefs")));

    const std::string line = Warning("Unique", "U", "UniqueRefs") + kLeftOut;
    EXPECT_EQ(Written(), line + line);
}

TEST_F(OxmDicToXMLLinksTest, ALostRelationshipOfAnInverseIsTold) {
    const Held<OXMIDicClass> owner = Class(*package, "C");
    const Held<OXMIDicClass> foreign = Class(*other, "F");
    const Held<OXMIDicInverse> inverse = Inverse(*owner, "I");
    inverse->SetTarget(foreign.Get());
    inverse->SetInverse(Relationship(*foreign, "R").Get());
    other.Reset();
    LoseOther();

    const std::string text = SavedText("P");

    EXPECT_EQ(Written(), Warning("Inverse", "I", "TargetRef") + kLeftOut +
                             Warning("Inverse", "I", "InverseOfRef") + kLeftOut);
    EXPECT_THAT(text, Not(HasSubstr("Ref=")));
}

TEST_F(OxmDicToXMLLinksTest, ALostSuperInterfaceAndALostTypeOfAParameterAreTold) {
    const Held<OXMIDicInterface> element = Interface(*package, "I");
    element->SetSuperInterface(Interface(*other, "SI").Get());
    const Held<OXMIDicMethod> method = Method(*element, "M");
    Parameter(*method, "A")->SetType(Class(*other, "C").Get());
    other.Reset();
    LoseOther();

    const std::string text = SavedText("P");

    EXPECT_EQ(Written(), Warning("Interface", "I", "SuperRef") + kLeftOut +
                             Warning("Parameter", "A", "TypeRef") + kLeftOut);
    EXPECT_EQ(WrittenErrors(), "");
    EXPECT_THAT(text, Not(HasSubstr("Ref=")));
}

TEST_F(OxmDicToXMLLinksTest, OfALostRBOLinkWhatIsStoredIsWritten) {
    const Held<OXMIDicRBOMapping> mapping = Mapping(*package, "Map");
    const Held<OXMIDicRBORoot> root = Root(*mapping, "R");
    const Held<OXMIDicRBOComponent> component = Component(*root, "C");
    const Held<OXMIDicRBOPathExpression> path = Path(*component, "T");
    const Held<OXMIDicClass> base = Class(*other, "Base");
    mapping->SetApplyToRBOClass(RBOClass(*other, "Table").Get());
    root->SetBaseClass(base.Get());
    component->SetBaseClass(base.Get());
    path->SetTarget(base.Get());
    const ZELDbBinary stored = TestUuid(7);
    const ZELUnicodeString name("stored");
    mapping->SetApplyToRBOClassRef(&stored);
    root->SetBaseClassRef(&stored);
    root->SetBaseClassName(&name);
    path->SetTargetRef(&stored);
    other.Reset();
    LoseOther();

    const std::string text = SavedText("P");

    EXPECT_EQ(Written(), Warning("RBOMapping", "Map", "ApplyToRBOClassRef") + kAsStored +
                             Warning("RBORoot", "R", "BaseClassRef") + kAsStored +
                             Warning("RBOComponent", "C", "BaseClassRef") + kLeftOut +
                             Warning("RBOPathExpression", "T", "TargetRef") + kAsStored);
    const std::string uuid = "\"00000000-0000-0000-0000000000000007\"";
    EXPECT_THAT(text, HasSubstr(" ApplyToRBOClassRef=" + uuid + ">"));
    EXPECT_THAT(text, HasSubstr(" BaseClass=\"stored\" BaseClassRef=" + uuid + ">"));
    EXPECT_THAT(text, HasSubstr("<RBOComponent Name=\"C\" Uuid=\"" + UuidOf(*component) + "\">"));
    EXPECT_THAT(text, HasSubstr(" TargetRef=" + uuid + "/>"));
}

TEST_F(OxmDicToXMLLinksTest, LinksThatWereNeverSetAreNoLoss) {
    const Held<OXMIDicClass> owner = Class(*package, "C");
    const Held<OXMIDicInverse> inverse = Inverse(*owner, "I");
    const Held<OXMIDicRBOMapping> mapping = Mapping(*package, "Map");
    const Held<OXMIDicClass> lost = Class(*other, "Lost");
    Relationship(*owner, "R")->SetTarget(lost.Get());
    other.Reset();
    LoseOther();

    SavedText("P");

    EXPECT_EQ(Written(), Warning("Relationship", "R", "TargetRef") + kLeftOut);
}

// packages of other content kinds

TEST_F(OxmDicToXMLLinksTest, AMappingIsSavedUnderItsOwnKindAndLeavesTheMetadataAlone) {
    directory.MakeFile("SaveTablesMap.metadata", "the metadata of that package");
    ASSERT_EQ(LoadGood("SaveTablesMap.rbomap"), S_OK);
    const ZELString name("SaveTablesMap");

    EXPECT_EQ(Manager().SaveXml(directory.Path().c_str(), &name), S_OK);

    EXPECT_EQ(FileText(directory.Path("SaveTablesMap.metadata")), "the metadata of that package");
    EXPECT_THAT(FileText(directory.Path("SaveTablesMap.rbomap")), HasSubstr("<RBOMapping "));
}

TEST_F(OxmDicToXMLLinksTest, WithoutDirectoryADocumentGoesWhereTheOneOfItsKindIs) {
    directory.MakeDirectory("one");
    directory.MakeDirectory("two");
    directory.MakeFile("one/SaveTables.metadata", "");
    directory.MakeFile("two/SaveTables.rbodef", "");
    ASSERT_EQ(LoadGood("SaveTables.rbodef"), S_OK);
    ::setenv("ZELDictionaryPath", (directory.Path("one") + ":" + directory.Path("two")).c_str(), 1);
    const ZELString name("SaveTables");

    EXPECT_EQ(Manager().SavePackage(&name, OXMDicPERSISTENT_Xml), S_OK);

    EXPECT_THAT(FileText(directory.Path("two/SaveTables.rbodef")), HasSubstr("<RBOClass "));
    EXPECT_EQ(FileText(directory.Path("one/SaveTables.metadata")), "");
}

TEST_F(OxmDicToXMLLinksTest, APackageThatACallerMadeIsMetadata) {
    const Held<OXMIDicRBOClass> table = RBOClass(*package, "Table");
    const ZELString name("P");

    EXPECT_EQ(Manager().SaveXml(directory.Path().c_str(), &name), S_OK);

    EXPECT_TRUE(std::filesystem::exists(directory.Path("P.metadata")));
    EXPECT_FALSE(std::filesystem::exists(directory.Path("P.rbodef")));
}

TEST_F(OxmDicToXMLLinksTest, ADocumentIsSavedUnderTheNameThatItGivesItsPackage) {
    directory.MakeFile("File.metadata",
                       "<Package Name=\"N\" Uuid=\"00000000-0000-0000-0000000000000009\"/>\n");
    ASSERT_EQ(LoadFrom(directory.Path(), "File"), S_OK);

    const std::string text = SavedText("N");

    StartAnew();
    EXPECT_EQ(LoadFrom(directory.Path(), "N"), S_OK);
    EXPECT_EQ(SavedText("N"), text);
}

// what only a caller makes

TEST_F(OxmDicToXMLLinksTest, OtherKindsAreToldAndNotWrittenAndInterfacesComeLast) {
    const Held<FakePlain> block(new FakePlain(OXMDicTYPE_AttributeBlock, "Block", 2));
    const Held<FakePlain> primitive(new FakePlain(OXMDicTYPE_Primitive, "Primitive", 3));
    const Held<FakePlain> command(new FakePlain(OXMDicTYPE_Command, "Command", 4));
    const Held<FakeInterface> element(new FakeInterface("I", 5));
    const Held<FakeClass> owner(new FakeClass(OXMDicTYPE_Class, "C", 6));
    FakeManager manager;
    manager.package.interfaces = {element.Get()};
    manager.package.elements = {block.Get(), primitive.Get(), command.Get(), owner.Get()};
    const ZELString name("P");
    ClearWritten();

    EXPECT_EQ(OxmDicToXML(&manager, &name, directory.Path().c_str()), S_OK);

    const std::string line = "OxmDicToXML:DisplayElement- *** WARNING *** unknown element: type=";
    EXPECT_EQ(Written(),
              line + "21, name=Block.\n" + line + "1, name=Primitive.\n" + line + "16, name=Command.\n");
    const std::string uuid = "\" Uuid=\"00000000-0000-0000-000000000000000";
    EXPECT_THAT(FileText(directory.Path("P.metadata")),
                HasSubstr("</Comment>\n"
                          "  <Class Name=\"C" +
                          uuid +
                          "6\" Persistent=\"Yes\" Abstract=\"No\" LateType=\"\"/>\n"
                          "  <Interface Name=\"I" +
                          uuid +
                          "5\"/>\n"
                          "</Package>\n"));
}

TEST_F(OxmDicToXMLLinksTest, APrimitiveThatAParameterCannotNameIsLeftOutAndTheDocumentLoads) {
    const Held<OXMIDicInterface> element = Interface(*package, "I");
    const Held<OXMIDicMethod> method = Method(*element, "M");
    Parameter(*method, "Url")->SetType(Primitive(OXMDicPRIMITIVEType_URL).Get());
    Parameter(*method, "Any")->SetType(Primitive(OXMDicPRIMITIVEType_AnyObject).Get());

    EXPECT_THAT(SavedText("P"), Not(HasSubstr("Type=")));

    StartAnew();
    EXPECT_EQ(LoadFrom(directory.Path(), "P"), S_OK);
}

TEST_F(OxmDicToXMLLinksTest, AParameterAsATypeGivesADocumentThatDoesNotLoad) {
    const Held<OXMIDicInterface> element = Interface(*package, "I");
    const Held<OXMIDicMethod> method = Method(*element, "M");
    const Held<OXMIDicParameter> parameter = Parameter(*method, "A");
    parameter->SetType(parameter.Get());
    SavedText("P");

    StartAnew();

    EXPECT_EQ(LoadFrom(directory.Path(), "P"), E_FAIL);
}

TEST_F(OxmDicToXMLLinksTest, AnInterfaceInThePlaceOfAClassGivesADocumentThatDoesNotLoad) {
    const Held<OXMIDicInterface> element = Interface(*package, "I");
    const Held<OXMIDicClass> face = QueryFor<OXMIDicClass>(*element);
    const Held<OXMIDicClass> owner = Class(*package, "C");
    ASSERT_EQ(owner->SetReference(face.Get()), S_OK);
    EXPECT_EQ(owner->SetSuperClass(face.Get()), S_OK);
    SavedText("P");

    StartAnew();

    EXPECT_EQ(LoadFrom(directory.Path(), "P"), E_FAIL);
}

TEST_F(OxmDicToXMLLinksTest, ARelationshipToAnInterfaceHasNoTargetInItsDocument) {
    const Held<OXMIDicInterface> element = Interface(*package, "I");
    const Held<OXMIDicClass> owner = Class(*package, "C");
    ASSERT_EQ(Relationship(*owner, "R")->SetTarget(QueryFor<OXMIDicClass>(*element).Get()), S_OK);

    EXPECT_THAT(SavedText("P"), Not(HasSubstr("Target")));

    StartAnew();
    EXPECT_EQ(LoadFrom(directory.Path(), "P"), S_OK);
}

TEST_F(OxmDicToXMLLinksTest, NumbersWithoutWordAreLeftOutOfEveryKind) {
    const Held<OXMIDicClass> owner = Class(*package, "C");
    owner->SetVisibility(static_cast<OXMDicVISIBILITY>(0));
    owner->SetKVADerivable(5);
    const Held<OXMIDicRelationship> relationship = Relationship(*owner, "R");
    relationship->SetVisibility(static_cast<OXMDicVISIBILITY>(-1));
    relationship->SetAggregationMode(static_cast<OXMDicAGGREGATION>(0));
    relationship->SetScope(static_cast<OXMDicSCOPE>(4));
    relationship->SetUpdateFacet(static_cast<OXMDicUPDATEFACET>(0));
    relationship->SetAccessMode(static_cast<OXMDicACCESSMODE>(5));
    const Held<OXMIDicInterface> element = Interface(*package, "I");
    const Held<OXMIDicMethod> method = Method(*element, "M");
    const Held<OXMIDicParameter> parameter = Parameter(*method, "A");
    parameter->SetKind(static_cast<OXMDicKIND>(5));

    const std::string text = SavedText("P");

    EXPECT_THAT(text, HasSubstr(UuidOf(*owner) + "\" Persistent="));
    EXPECT_THAT(text,
                HasSubstr(UuidOf(*relationship) + "\" Mandatory=\"No\" Injective=\"No\" MultiValuated=\"No\" "
                                                  "Sensitive=\"No\"/>"));
    EXPECT_THAT(text, HasSubstr(UuidOf(*parameter) + "\"/>"));
}

TEST_F(OxmDicToXMLLinksTest, AnAccessModeNoneIsWrittenOfASimpleOnlyAndAScopeNoneNever) {
    const Held<OXMIDicClass> owner = Class(*package, "C");
    const Held<OXMIDicSimple> simple = Simple(*owner, "S");
    simple->SetAccessMode(OXMDicACCESSMODE_None);
    const Held<OXMIDicRelationship> relationship = Relationship(*owner, "R");
    relationship->SetAccessMode(OXMDicACCESSMODE_None);
    relationship->SetScope(OXMDicSCOPE_None);
    const Held<OXMIDicInverse> inverse = Inverse(*owner, "I");
    inverse->SetAccessMode(OXMDicACCESSMODE_None);

    const std::string text = SavedText("P");

    EXPECT_THAT(text, HasSubstr(UuidOf(*simple) + "\" Visibility=\"Public\" AccessMode=\"None\""));
    EXPECT_THAT(text, HasSubstr(UuidOf(*relationship) + "\" Visibility=\"Public\" Mandatory="));
    EXPECT_THAT(text, HasSubstr(UuidOf(*inverse) + "\" Visibility=\"Public\" Mandatory="));
    EXPECT_THAT(text, Not(HasSubstr("Scope")));
}

TEST_F(OxmDicToXMLLinksTest, AnExtensionIsOneWhateverItsInstanceFlag) {
    Extension(*package, "X")->SetInstance(1);

    EXPECT_THAT(SavedText("P"), HasSubstr("<Extension Name=\"X\""));
}

TEST_F(OxmDicToXMLLinksTest, AWordThatNamesNoPrimitiveStaysWithAnEnumeratedSimple) {
    const Held<OXMIDicClass> owner = Class(*package, "C");
    const Held<OXMIDicSimple> simple = Simple(*owner, "S");
    simple->SetType(Enum(*package, "E").Get());
    simple->SetOtherAttribute("Type", "Money");
    const Held<OXMIDicSimple> second = Simple(*owner, "Second");
    second->SetOtherAttribute("Type", "Integer");
    ClearWritten();

    const std::string text = SavedText("P");

    EXPECT_EQ(Written(), Warning("Simple", "Second", "Type") +
                             ": it would not be read back as a free attribute; left out.\n");
    EXPECT_THAT(text, HasSubstr("UpdateFacet=\"NEUTRAL\" Type=\"Money\"/>"));
    EXPECT_THAT(text, Not(HasSubstr("Integer")));
}

TEST_F(OxmDicToXMLLinksTest, ValuesThatAClassInheritsAreNotWritten) {
    const Held<OXMIDicClass> superClass = Class(*package, "Super");
    superClass->SetExtensible(1);
    superClass->SetKVADerivable(OXMDicKVADERIVABLE_Multiple);
    const Held<OXMIDicClass> derived = SubClass(*package, "Derived", *superClass);
    derived->SetKVADerivable(OXMDicKVADERIVABLE_Inherited);

    EXPECT_THAT(SavedText("P"),
                HasSubstr(UuidOf(*derived) + "\" Visibility=\"Public\" Persistent=\"Yes\" Abstract=\"No\" "
                                             "LateType=\"\" SuperName=\"Super\""));
}

TEST_F(OxmDicToXMLLinksTest, TheMomentIsThatOfTheSaveInLocalTimeUnlessItIsGiven) {
    ::unsetenv("SOURCE_DATE_EPOCH");

    EXPECT_THAT(SavedText("P"),
                testing::ContainsRegex("<Comment>last update "
                                       "20[0-9]{2}-[01][0-9]-[0-3][0-9]-[0-2][0-9]\\.[0-5][0-9]\\.[0-6][0-9]"
                                       "</Comment>"));
}

}  // namespace
