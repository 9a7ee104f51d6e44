#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

#include "OXMIDicCategory.h"
#include "OXMIDicEnum.h"
#include "OXMIDicEnumerator.h"
#include "OXMIDicInverse.h"
#include "OXMIDicPrimitive.h"
#include "OXMIDicRelationship.h"
#include "OXMIDicSimple.h"
#include "OXMIDicUnique.h"
#include "ReaderFixture.h"
#include "ZANDicTags.h"

using ::testing::HasSubstr;
using ::testing::Not;

namespace {

/// \returns what a getter of a value fills in.
template <class Value, class Object, class Owner, class Argument>
Value Get(Object& object, HRESULT (Owner::*getter)(Argument*)) {
    Value value{};
    (object.*getter)(&value);
    return value;
}

template <class Object, class Owner>
std::string TextOf(Object& object, HRESULT (Owner::*getter)(ZELUnicodeString*)) {
    return std::string(Get<ZELUnicodeString>(object, getter).View());
}

class OxmDicFromXMLFillTest : public ReaderFixture {
protected:
    /// Loads P with the class C (1) that holds the one member M (2).
    HRESULT LoadMember(std::string_view tag, std::string_view attributes) {
        std::string member = "<";
        member.append(tag).append(Id("M", 2)).append(" ").append(attributes).append("/>");
        return LoadBody(ClassTag("C", 1, "", member));
    }

    /// The simple attribute M loaded with these attributes.
    Held<OXMIDicSimple> Simple(std::string_view attributes) {
        EXPECT_EQ(LoadMember("Simple", attributes), S_OK);
        return Find<OXMIDicSimple>(2);
    }

    Held<OXMIDicRelationship> Relationship(std::string_view attributes) {
        EXPECT_EQ(LoadMember("Relationship", attributes), S_OK);
        return Find<OXMIDicRelationship>(2);
    }

    /// The class C loaded with these attributes beside `Persistent`.
    Held<OXMIDicClass> Class(std::string_view attributes) {
        EXPECT_EQ(LoadBody(ClassTag("C", 1, attributes)), S_OK);
        return Find<OXMIDicClass>(1);
    }

    /// The kind of primitive that types an attribute; 0 for none.
    static int PrimitiveOf(OXMIDicAttribute& attribute) {
        Held<OXMIDicElement> type;
        if (attribute.GetType(type.Out()) != S_OK) return 0;
        Held<OXMIDicPrimitive> primitive;
        if (Failed(type->QueryInterface(IID_OXMIDicPrimitive, primitive.OutVoid()))) return 0;
        return primitive->Primitive();
    }
};

// Classes.

TEST_F(OxmDicFromXMLFillTest, AClassTakesItsAttributes) {
    const auto element = Class(
        "Alias=\"A\" ExpositionLevel=\"E\" Visibility=\"Private\" KVA_Derivable=\"Multiple\" "
        "Abstract=\"Yes\" "
        "Extensible=\"Yes\" LateType=\"L\" ApplicationName=\"N\"");

    EXPECT_EQ(TextOf(*element, &OXMIDicClass::GetAlias), "A");
    EXPECT_EQ(TextOf(*element, &OXMIDicClass::GetExpositionLevel), "E");
    EXPECT_EQ(Get<OXMDicVISIBILITY>(*element, &OXMIDicClass::GetVisibility), OXMDicVISIBILITY_Private);
    EXPECT_EQ(Get<int>(*element, &OXMIDicClass::GetKVADerivable), OXMDicKVADERIVABLE_Multiple);
    EXPECT_EQ(Get<unsigned char>(*element, &OXMIDicClass::GetAbstract), 1);
    EXPECT_EQ(Get<unsigned char>(*element, &OXMIDicClass::GetExtensible), 1);
    EXPECT_EQ(Get<unsigned char>(*element, &OXMIDicClass::GetPersistent), 1);
    EXPECT_EQ(Get<ZELString>(*element, &OXMIDicClass::GetLateType), ZELString("L"));
    EXPECT_EQ(TextOf(*element, &OXMIDicClass::GetApplicationName), "N");
    EXPECT_EQ(Written(), "");
}

TEST_F(OxmDicFromXMLFillTest, NoMakesAClassNotPersistent) {
    ASSERT_EQ(LoadBody("<Class" + Id("C", 1) + " Persistent=\"No\"/>"), S_OK);

    EXPECT_EQ(Get<unsigned char>(*Find<OXMIDicClass>(1), &OXMIDicClass::GetPersistent), 0);
}

TEST_F(OxmDicFromXMLFillTest, OnlyTheExactWordYesIsTrue) {
    ASSERT_EQ(LoadBody(ClassTag("A", 1, "Abstract=\"yes\"") + ClassTag("B", 2, "Abstract=\"true\"") +
                       ClassTag("C", 3, "Abstract=\"1\"") + ClassTag("D", 4, "Abstract=\"Yes\"")),
              S_OK);

    EXPECT_EQ(Get<unsigned char>(*Find<OXMIDicClass>(1), &OXMIDicClass::GetAbstract), 0);
    EXPECT_EQ(Get<unsigned char>(*Find<OXMIDicClass>(2), &OXMIDicClass::GetAbstract), 0);
    EXPECT_EQ(Get<unsigned char>(*Find<OXMIDicClass>(3), &OXMIDicClass::GetAbstract), 0);
    EXPECT_EQ(Get<unsigned char>(*Find<OXMIDicClass>(4), &OXMIDicClass::GetAbstract), 1);
}

TEST_F(OxmDicFromXMLFillTest, AnAbsentExtensibleIsLeftUnset) {
    const auto element = Class("");

    unsigned char extensible = 9;
    EXPECT_EQ(element->GetExtensible(&extensible), S_FALSE);
}

TEST_F(OxmDicFromXMLFillTest, AnExtensibleOfNoCountsAsSet) {
    const auto element = Class("Extensible=\"No\"");

    unsigned char extensible = 9;
    EXPECT_EQ(element->GetExtensible(&extensible), S_OK);
    EXPECT_EQ(extensible, 0);
}

struct CodeOfWord {
    const char* word;
    int code;
};

class KVADerivableTest : public OxmDicFromXMLFillTest, public ::testing::WithParamInterface<CodeOfWord> {};

TEST_P(KVADerivableTest, HasItsCode) {
    const auto element = Class(std::string("KVA_Derivable=\"").append(GetParam().word).append("\""));

    EXPECT_EQ(Get<int>(*element, &OXMIDicClass::GetClassKVADerivable), GetParam().code);
}

INSTANTIATE_TEST_SUITE_P(Words, KVADerivableTest,
                         ::testing::Values(CodeOfWord{"No", 2}, CodeOfWord{"Yes", 3},
                                           CodeOfWord{"Multiple", 4}, CodeOfWord{"multiple", 1}));

TEST_F(OxmDicFromXMLFillTest, AnUnknownVisibilityIsPublic) {
    const auto element = Class("Visibility=\"private\"");

    EXPECT_EQ(Get<OXMDicVISIBILITY>(*element, &OXMIDicClass::GetVisibility), OXMDicVISIBILITY_Public);
    EXPECT_EQ(Written(), "");
}

TEST_F(OxmDicFromXMLFillTest, NamesThatRepeatReferencesAreKnownWithoutEffect) {
    ZanDicSetTraceLevel(1);

    const auto element = Class("SuperName=\"S\" ScopeNames=\"S\" InterfaceRefs=\"I\" ScopeRefs=\"X\"");

    EXPECT_EQ(OtherAttributes(*element), "");
    EXPECT_THAT(Written(), Not(HasSubstr("Unknown attribute")));
}

TEST_F(OxmDicFromXMLFillTest, AnUnknownAttributeIsKeptAtEveryLevelAndReportedFromLevelOne) {
    const auto element = Class("Owner=\" team \"");

    EXPECT_EQ(OtherAttributes(*element), "Owner=team;");
    EXPECT_EQ(Written(), "");
}

TEST_F(OxmDicFromXMLFillTest, TheWarningOfAnUnknownAttributeIsALineOfLevelOne) {
    ZanDicSetTraceLevel(1);

    Class("Owner=\"team\"");

    EXPECT_THAT(Written(),
                HasSubstr("OxmDicFromXML:FillClass- *** WARNING *** Unknown attribute:Owner=team.\n"));
}

TEST_F(OxmDicFromXMLFillTest, OfAnAttributeGivenTwiceTheLastCountsInALoop) {
    const auto element =
        Class("Alias=\"first\" Alias=\"second\" Owner=\"one\" Owner=\"two\" Persistent=\"No\"");

    EXPECT_EQ(TextOf(*element, &OXMIDicClass::GetAlias), "second");
    EXPECT_EQ(OtherAttributes(*element), "Owner=two;");
    EXPECT_EQ(Get<unsigned char>(*element, &OXMIDicClass::GetPersistent), 0);
}

TEST_F(OxmDicFromXMLFillTest, OfNamesAndUuidsGivenTwiceTheFirstCount) {
    ASSERT_EQ(LoadBody("<Class" + Id("First", 1) + Id("Second", 2) + " Persistent=\"Yes\"/>"), S_OK);

    EXPECT_EQ(NameOf(*Find<OXMIDicClass>(1)), "First");
    EXPECT_FALSE(Find<OXMIDicClass>(2));
}

TEST_F(OxmDicFromXMLFillTest, HandlersTraceTheirStartTheirAttributesAndTheirExit) {
    MakePackage("P", ClassTag("C", 1));
    TraceFromNow(5);

    ASSERT_EQ(Load("P"), S_OK);

    EXPECT_EQ(LinesOf("OxmDicFromXML:FillClass"),
              "OxmDicFromXML:FillClass- === start ===.\n"
              "OxmDicFromXML:FillClass- Processing attribute [1]:Name=C.\n"
              "OxmDicFromXML:FillClass- Processing attribute [2]:Uuid=" +
                  U(1) +
                  ".\n"
                  "OxmDicFromXML:FillClass- Processing attribute [3]:Persistent=Yes.\n"
                  "OxmDicFromXML:FillClass- === exit === RC=OK.\n");
}

// Members of a class.

TEST_F(OxmDicFromXMLFillTest, AMemberWithoutNameIsPassedOverInSilence) {
    EXPECT_EQ(LoadBody(ClassTag("C", 1, "", "<Simple Uuid=\"1\"/><Simple Name=\"\"/><Gadget/>")), S_OK);

    HeldList members;
    Find<OXMIDicClass>(1)->GetClassElements(&members);
    EXPECT_EQ(members.Size(), 0);
    EXPECT_EQ(Written(), "");
}

TEST_F(OxmDicFromXMLFillTest, AnUnknownMemberIsReportedAndSkipped) {
    EXPECT_EQ(LoadMember("Gadget", ""), S_OK);

    EXPECT_EQ(Written(),
              "OxmDicFromXML:FillClass- *** ERROR *** Unkown tag:Gadget[M]; skipping to next tag....\n");
}

TEST_F(OxmDicFromXMLFillTest, AnUnknownMemberNeedsAUuidToo) {
    EXPECT_EQ(LoadBody(ClassTag("C", 1, "", "<Gadget Name=\"M\"/>")), E_FAIL);

    EXPECT_THAT(
        Written(),
        HasSubstr("OxmDicFromXML:FillClass- *** ERROR *** Could not find attribute Uuid for Gadget M.\n"));
}

TEST_F(OxmDicFromXMLFillTest, TheFirstFailingMemberEndsTheClass) {
    EXPECT_EQ(LoadBody(ClassTag("C", 1, "", "<Simple Name=\"A\"/><Simple Name=\"B\"/>")), E_FAIL);

    EXPECT_THAT(Written(), Not(HasSubstr("Simple B")));
}

// Simple attributes.

TEST_F(OxmDicFromXMLFillTest, ASimpleTakesItsAttributes) {
    const auto simple = Simple(
        "Type=\"Double\" Alias=\"A\" ExpositionLevel=\"E\" Visibility=\"Protected\" AccessMode=\"Write\" "
        "Mandatory=\"Yes\" CaseMode=\"Upper\" MaxLength=\"12\" Sensitive=\"Yes\" UpdateFacet=\"OUT\" "
        "Default=\"D\" Magnitude=\"M\" MultiValuated=\"Yes\" DBFormat=\"F\" Lower=\"1\" Upper=\"9\" "
        "CollectionType=\"Set\"");

    EXPECT_EQ(PrimitiveOf(*simple), OXMDicPRIMITIVEType_Double);
    EXPECT_EQ(TextOf(*simple, &OXMIDicSimple::GetAlias), "A");
    EXPECT_EQ(TextOf(*simple, &OXMIDicSimple::GetExpositionLevel), "E");
    EXPECT_EQ(Get<OXMDicVISIBILITY>(*simple, &OXMIDicSimple::GetVisibility), OXMDicVISIBILITY_Protected);
    EXPECT_EQ(Get<OXMDicACCESSMODE>(*simple, &OXMIDicSimple::GetAccessMode), OXMDicACCESSMODE_Write);
    EXPECT_EQ(Get<unsigned char>(*simple, &OXMIDicSimple::GetMandatory), 1);
    EXPECT_EQ(Get<OXMDicCASEMODE>(*simple, &OXMIDicSimple::GetCaseMode), OXMDicCASEMODE_Upper);
    EXPECT_EQ(Get<int>(*simple, &OXMIDicSimple::GetMaxLength), 12);
    EXPECT_EQ(Get<unsigned char>(*simple, &OXMIDicSimple::GetSensitive), 1);
    EXPECT_EQ(Get<OXMDicUPDATEFACET>(*simple, &OXMIDicSimple::GetUpdateFacet), OXMDicUPDATEFACET_OUT);
    EXPECT_EQ(TextOf(*simple, &OXMIDicSimple::GetDefault), "D");
    EXPECT_EQ(TextOf(*simple, &OXMIDicSimple::GetMagnitude), "M");
    EXPECT_EQ(Get<unsigned char>(*simple, &OXMIDicSimple::GetMultiValuated), 1);
    EXPECT_EQ(TextOf(*simple, &OXMIDicSimple::GetDBFormat), "F");
    EXPECT_EQ(Get<int>(*simple, &OXMIDicSimple::GetLower), 1);
    EXPECT_EQ(Get<int>(*simple, &OXMIDicSimple::GetUpper), 9);
    EXPECT_EQ(Get<OXMDicCOLLECTION>(*simple, &OXMIDicSimple::GetCollectionType), OXMDicCOLLECTION_Set);
    EXPECT_EQ(OtherAttributes(*simple), "");
    EXPECT_EQ(Written(), "");
}

TEST_F(OxmDicFromXMLFillTest, ASimpleWithoutAttributesHasTheModelsDefaults) {
    const auto simple = Simple("");

    EXPECT_EQ(PrimitiveOf(*simple), 0);
    EXPECT_EQ(Get<OXMDicACCESSMODE>(*simple, &OXMIDicSimple::GetAccessMode), OXMDicACCESSMODE_Read);
    EXPECT_EQ(Get<OXMDicCASEMODE>(*simple, &OXMIDicSimple::GetCaseMode), OXMDicCASEMODE_Mixed);
    EXPECT_EQ(Get<int>(*simple, &OXMIDicSimple::GetMaxLength), -1);
}

class SimpleTypeTest : public OxmDicFromXMLFillTest, public ::testing::WithParamInterface<CodeOfWord> {};

TEST_P(SimpleTypeTest, IsThePrimitiveOfTheWord) {
    const auto simple = Simple(std::string("Type=\"").append(GetParam().word).append("\""));

    EXPECT_EQ(PrimitiveOf(*simple), GetParam().code);
}

INSTANTIATE_TEST_SUITE_P(Words, SimpleTypeTest,
                         ::testing::Values(CodeOfWord{"Boolean", 1}, CodeOfWord{"Integer", 2},
                                           CodeOfWord{"Double", 3}, CodeOfWord{"String", 4},
                                           CodeOfWord{"Binary", 5}, CodeOfWord{"Date", 6},
                                           CodeOfWord{"Logical", 7}, CodeOfWord{"URL", 0},
                                           CodeOfWord{"AnyObject", 0}, CodeOfWord{"string", 0}));

TEST_F(OxmDicFromXMLFillTest, ATypeThatASimpleDoesNotKnowIsKeptAsFreeAttribute) {
    const auto simple = Simple("Type=\"URL\"");

    EXPECT_EQ(OtherAttributes(*simple), "Type=URL;");
    EXPECT_EQ(Written(), "");
}

class SimpleAccessModeTest : public OxmDicFromXMLFillTest,
                             public ::testing::WithParamInterface<CodeOfWord> {};

TEST_P(SimpleAccessModeTest, HasItsCode) {
    const auto simple = Simple(std::string("AccessMode=\"").append(GetParam().word).append("\""));

    EXPECT_EQ(Get<OXMDicACCESSMODE>(*simple, &OXMIDicSimple::GetAccessMode), GetParam().code);
}

INSTANTIATE_TEST_SUITE_P(Words, SimpleAccessModeTest,
                         ::testing::Values(CodeOfWord{"None", 1}, CodeOfWord{"Read", 2},
                                           CodeOfWord{"Write", 3}, CodeOfWord{"ReadWrite", 4},
                                           CodeOfWord{"anything", 4}));

TEST_F(OxmDicFromXMLFillTest, WordsThatASimpleDoesNotKnowLeaveTheDefaultsWithAWarning) {
    const auto simple = Simple("CaseMode=\"upper\" UpdateFacet=\"In\" CollectionType=\"Heap\"");

    EXPECT_EQ(Get<OXMDicCASEMODE>(*simple, &OXMIDicSimple::GetCaseMode), OXMDicCASEMODE_Mixed);
    EXPECT_EQ(Get<OXMDicUPDATEFACET>(*simple, &OXMIDicSimple::GetUpdateFacet), OXMDicUPDATEFACET_NEUTRAL);
    EXPECT_EQ(Get<OXMDicCOLLECTION>(*simple, &OXMIDicSimple::GetCollectionType), OXMDicCOLLECTION_List);
    EXPECT_EQ(Written(),
              "OxmDicFromXML:FillSimple- *** WARNING *** Unknown value: CaseMode=upper.\n"
              "OxmDicFromXML:FillSimple- *** WARNING *** Unknown value: UpdateFacet=In.\n"
              "OxmDicFromXML:FillSimple- *** WARNING *** Unknown value: CollectionType=Heap.\n");
}

// Numbers.

struct NumberCase {
    const char* name;
    const char* text;
    int value;
    bool warns;
};

class NumberTest : public OxmDicFromXMLFillTest, public ::testing::WithParamInterface<NumberCase> {};

TEST_P(NumberTest, IsReadFromItsDigits) {
    const auto simple = Simple(std::string("MaxLength=\"").append(GetParam().text).append("\""));

    EXPECT_EQ(Get<int>(*simple, &OXMIDicSimple::GetMaxLength), GetParam().value);
    const std::string warning =
        std::string("OxmDicFromXML:FillSimple- *** WARNING *** Invalid number: MaxLength=")
            .append(GetParam().text);
    EXPECT_EQ(Written(), GetParam().warns ? warning + ".\n" : "");
}

constexpr NumberCase kNumbers[] = {
    {"Plain", "42", 42, false},
    {"Zeros", "0007", 7, false},
    {"Negative", "-5", -5, false},
    {"Plus", "+5", 5, false},
    {"LeadingBlanks", "  8", 8, false},
    {"TextBehind", "12x", 12, true},
    {"BlankBehind", "12 ", 12, true},
    {"NoDigits", "many", -1, true},
    {"Empty", "", -1, true},
    {"SignOnly", "-", -1, true},
    {"TwoSigns", "+-5", -1, true},
    {"BlankBehindSign", "- 5", -1, true},
    {"Largest", "2147483647", std::numeric_limits<int>::max(), false},
    {"TooLarge", "2147483648", std::numeric_limits<int>::max(), true},
    {"TooSmall", "-99999999999999999999", std::numeric_limits<int>::min(), true},
};

INSTANTIATE_TEST_SUITE_P(Texts, NumberTest, ::testing::ValuesIn(kNumbers),
                         [](const auto& number) { return std::string(number.param.name); });

// Relationships and inverses.

TEST_F(OxmDicFromXMLFillTest, ARelationshipTakesItsAttributes) {
    const auto relation = Relationship(
        "Mandatory=\"Yes\" MultiValuated=\"Yes\" Alias=\"A\" ExpositionLevel=\"E\" Visibility=\"Private\" "
        "AccessMode=\"Write\" Aggregation=\"Composition\" UpdateFacet=\"IN\" Sensitive=\"Yes\" Default=\"D\" "
        "Scope=\"Vault\" Type=\"URL\" MaxLength=\"3\" Lower=\"1\" Upper=\"2\" CollectionType=\"Bag\" "
        "Injective=\"Yes\"");

    EXPECT_EQ(Get<unsigned char>(*relation, &OXMIDicRelationship::GetMandatory), 1);
    EXPECT_EQ(Get<unsigned char>(*relation, &OXMIDicRelationship::GetMultiValuated), 1);
    EXPECT_EQ(TextOf(*relation, &OXMIDicRelationship::GetAlias), "A");
    EXPECT_EQ(TextOf(*relation, &OXMIDicRelationship::GetExpositionLevel), "E");
    EXPECT_EQ(Get<OXMDicVISIBILITY>(*relation, &OXMIDicRelationship::GetVisibility),
              OXMDicVISIBILITY_Private);
    EXPECT_EQ(Get<OXMDicACCESSMODE>(*relation, &OXMIDicRelationship::GetAccessMode), OXMDicACCESSMODE_Write);
    EXPECT_EQ(Get<OXMDicAGGREGATION>(*relation, &OXMIDicRelationship::GetAggregationMode),
              OXMDicAGGREGATION_Composition);
    EXPECT_EQ(Get<OXMDicUPDATEFACET>(*relation, &OXMIDicRelationship::GetUpdateFacet), OXMDicUPDATEFACET_IN);
    EXPECT_EQ(Get<unsigned char>(*relation, &OXMIDicRelationship::GetSensitive), 1);
    EXPECT_EQ(TextOf(*relation, &OXMIDicRelationship::GetDefault), "D");
    EXPECT_EQ(Get<OXMDicSCOPE>(*relation, &OXMIDicRelationship::GetScope), OXMDicSCOPE_Vault);
    EXPECT_EQ(PrimitiveOf(*relation), OXMDicPRIMITIVEType_URL);
    EXPECT_EQ(Get<int>(*relation, &OXMIDicRelationship::GetMaxLength), 3);
    EXPECT_EQ(Get<int>(*relation, &OXMIDicRelationship::GetLower), 1);
    EXPECT_EQ(Get<int>(*relation, &OXMIDicRelationship::GetUpper), 2);
    EXPECT_EQ(Get<OXMDicCOLLECTION>(*relation, &OXMIDicRelationship::GetCollectionType),
              OXMDicCOLLECTION_Bag);
    EXPECT_EQ(Get<unsigned char>(*relation, &OXMIDicRelationship::GetInjective), 1);
}

TEST_F(OxmDicFromXMLFillTest, AnInverseIsReadByTheTableOfRelationships) {
    ASSERT_EQ(
        LoadMember("Inverse", "Aggregation=\"None\" Injective=\"Yes\" Scope=\"External\" Type=\"String\""),
        S_OK);

    const auto inverse = Find<OXMIDicInverse>(2);
    const auto relation = Find<OXMIDicRelationship>(2);
    EXPECT_EQ(Get<OXMDicTYPE>(*inverse, static_cast<HRESULT (OXMIDicElementH::*)(OXMDicTYPE*)>(
                                            &OXMIDicElementH::GetType)),
              OXMDicTYPE_Inverse);
    EXPECT_EQ(Get<OXMDicAGGREGATION>(*relation, &OXMIDicRelationship::GetAggregationMode),
              OXMDicAGGREGATION_None);
    EXPECT_EQ(Get<OXMDicSCOPE>(*relation, &OXMIDicRelationship::GetScope), OXMDicSCOPE_External);
    EXPECT_EQ(PrimitiveOf(*relation), OXMDicPRIMITIVEType_String);
}

TEST_F(OxmDicFromXMLFillTest, OtherWordsOfARelationshipHaveTheirCodes) {
    const auto relation =
        Relationship("Visibility=\"x\" AccessMode=\"None\" Aggregation=\"x\" Scope=\"x\" Type=\"Integer\"");

    EXPECT_EQ(Get<OXMDicVISIBILITY>(*relation, &OXMIDicRelationship::GetVisibility), OXMDicVISIBILITY_Public);
    EXPECT_EQ(Get<OXMDicACCESSMODE>(*relation, &OXMIDicRelationship::GetAccessMode),
              OXMDicACCESSMODE_ReadWrite);
    EXPECT_EQ(Get<OXMDicAGGREGATION>(*relation, &OXMIDicRelationship::GetAggregationMode),
              OXMDicAGGREGATION_None);
    EXPECT_EQ(Get<OXMDicSCOPE>(*relation, &OXMIDicRelationship::GetScope), OXMDicSCOPE_None);
    EXPECT_EQ(PrimitiveOf(*relation), OXMDicPRIMITIVEType_Binary);
}

TEST_F(OxmDicFromXMLFillTest, ARelationshipWithoutTypeHasNone) {
    EXPECT_EQ(PrimitiveOf(*Relationship("")), 0);
}

TEST_F(OxmDicFromXMLFillTest, AnyObjectTypesARelationshipAtOnce) {
    EXPECT_EQ(PrimitiveOf(*Relationship("TargetRef=\"AnyObject\"")), OXMDicPRIMITIVEType_AnyObject);
}

TEST_F(OxmDicFromXMLFillTest, TypeIsReadBehindTargetRefWhateverTheOrderOfTheDocument) {
    EXPECT_EQ(PrimitiveOf(*Relationship("Type=\"String\" TargetRef=\"AnyObject\"")),
              OXMDicPRIMITIVEType_String);
}

TEST_F(OxmDicFromXMLFillTest, OfAnAttributeOfARelationshipGivenTwiceTheFirstCounts) {
    EXPECT_EQ(TextOf(*Relationship("Alias=\"first\" Alias=\"second\""), &OXMIDicRelationship::GetAlias),
              "first");
}

TEST_F(OxmDicFromXMLFillTest, OtherAttributesOfARelationshipAreNeverLookedAt) {
    ZanDicSetTraceLevel(1);

    const auto relation = Relationship("Owner=\"team\" TargetName=\"T\" InverseOfRef=\"X\"");

    EXPECT_EQ(OtherAttributes(*relation), "");
    EXPECT_THAT(Written(), Not(HasSubstr("Unknown attribute")));
}

TEST_F(OxmDicFromXMLFillTest, TheLabelOfARelationshipsHandlerEndsInADash) {
    ZanDicSetTraceLevel(1);

    Relationship("");

    EXPECT_THAT(Written(), HasSubstr("OxmDicFromXML:FillRelation -- === start ===.\n"));
    EXPECT_THAT(Written(), HasSubstr("OxmDicFromXML:FillRelation -- === exit === RC=OK.\n"));
}

// The vocabulary.

/// A tag with every attribute that the vocabulary gives it but the references, whose targets do not exist.
std::string TagWithAllAttributes(std::string_view tagName, const std::string& identity) {
    std::string text("<");
    text.append(tagName).append(identity);
    for (const ZANDicFormat::AttributeRow& row :
         ZANDicFormat::FindTag(ZANDicFormat::kTags, tagName)->attributes) {
        using enum ZANDicFormat::AttributeForm;
        if (row.name == ZANDicFormat::word::kName || row.form == Uuid || row.form == Reference) continue;
        std::string_view value = "";
        if (row.form == Flag) value = ZANDicFormat::value::kYes;
        if (row.form == Integer) value = "1";
        if (row.form == Word) value = row.words.front().word;
        text.append(" ").append(row.name).append("=\"").append(value).append("\"");
    }
    return text.append(">");
}

TEST_F(OxmDicFromXMLFillTest, EveryWordOfTheVocabularyIsKnown) {
    FaultCollector faults;
    std::string members;
    for (const char* const tagName : {"Simple", "Relationship", "Inverse", "Unique"}) {
        const auto number = static_cast<unsigned>(members.size()) + 100;
        members.append(TagWithAllAttributes(tagName, Id(tagName, number)))
            .append("</")
            .append(tagName)
            .append(">");
    }
    std::string body = TagWithAllAttributes("Class", Id("C", 1));
    body.append(members).append("</Class>");
    body.append(TagWithAllAttributes("Instance", Id("I", 2))).append("</Instance>");
    body.append(TagWithAllAttributes("Enum", Id("E", 3)));
    body.append(TagWithAllAttributes("Enumerator", Id("V", 4))).append("</Enumerator></Enum>");
    body.append(TagWithAllAttributes("Category", Id("K", 5))).append("</Category>");

    EXPECT_EQ(LoadBody(body), S_OK);

    EXPECT_EQ(faults.Summary(), "");
}

// Uniques, enumerations and categories.

TEST_F(OxmDicFromXMLFillTest, AUniqueTakesItsAliasAndKeepsWhatItDoesNotKnow) {
    ZanDicSetTraceLevel(1);
    ASSERT_EQ(LoadMember("Unique", "Alias=\"A\" Owner=\"team\""), S_OK);

    const auto unique = Find<OXMIDicUnique>(2);
    EXPECT_EQ(TextOf(*unique, &OXMIDicUnique::GetAlias), "A");
    EXPECT_EQ(OtherAttributes(*unique), "Owner=team;");
    EXPECT_THAT(Written(), HasSubstr("- *** WARNING *** Unknown attribute:Owner=team.\n"));
}

TEST_F(OxmDicFromXMLFillTest, AnEnumerationTakesItsEnumeratorsInOrder) {
    ASSERT_EQ(LoadBody("<Enum" + Id("E", 1) + " Alias=\"A\" Unit=\"u\"><Enumerator" + Id("One", 2) +
                       " Value=\"1\" Alias=\"B\" Note=\"n\"/><Enumerator" + Id("None", 3) + "/></Enum>"),
              S_OK);

    const auto element = Find<OXMIDicEnum>(1);
    HeldList enumerators;
    element->GetEnumerators(&enumerators);
    ASSERT_EQ(enumerators.Size(), 2);
    EXPECT_EQ(TextOf(*element, &OXMIDicEnum::GetAlias), "A");
    EXPECT_EQ(OtherAttributes(*element), "Unit=u;");
    const auto one = Find<OXMIDicEnumerator>(2);
    EXPECT_EQ(Get<int>(*one, &OXMIDicEnumerator::GetValue), 1);
    EXPECT_EQ(TextOf(*one, &OXMIDicEnumerator::GetAlias), "B");
    EXPECT_EQ(OtherAttributes(*one), "Note=n;");
    EXPECT_EQ(Get<int>(*Find<OXMIDicEnumerator>(3), &OXMIDicEnumerator::GetValue), 0);
}

TEST_F(OxmDicFromXMLFillTest, AnEnumeratorWithoutDigitsKeepsZero) {
    ASSERT_EQ(LoadBody("<Enum" + Id("E", 1) + "><Enumerator" + Id("One", 2) + " Value=\"one\"/></Enum>"),
              S_OK);

    EXPECT_EQ(Get<int>(*Find<OXMIDicEnumerator>(2), &OXMIDicEnumerator::GetValue), 0);
    EXPECT_EQ(Written(), "OxmDicFromXML:FillEnumerator- *** WARNING *** Invalid number: Value=one.\n");
}

TEST_F(OxmDicFromXMLFillTest, TheValueOfAnEnumeratorIsTraced) {
    ZanDicSetTraceLevel(5);

    ASSERT_EQ(LoadBody("<Enum" + Id("E", 1) + "><Enumerator" + Id("One", 2) + " Value=\"7\"/></Enum>"), S_OK);

    EXPECT_THAT(Written(), HasSubstr("OxmDicFromXML:FillEnumerator- myint=7.\n"));
}

TEST_F(OxmDicFromXMLFillTest, WhatIsNoEnumeratorIsSkippedWithoutNameOrUuid) {
    EXPECT_EQ(LoadBody("<Enum" + Id("E", 1) + "><Comment/></Enum>"), S_OK);

    EXPECT_EQ(Written(),
              "OxmDicFromXML:FillEnum- *** ERROR *** Unkown tag:Comment[]; skipping to next tag....\n");
}

TEST_F(OxmDicFromXMLFillTest, ACategoryTakesAliasAndGroup) {
    ASSERT_EQ(LoadBody("<Category" + Id("K", 1) + " Alias=\"A\" Group=\"G\"/>"), S_OK);

    const auto category = Find<OXMIDicCategory>(1);
    EXPECT_EQ(TextOf(*category, &OXMIDicCategory::GetAlias), "A");
    EXPECT_EQ(Get<ZELString>(*category, &OXMIDicCategory::GetGroup), ZELString("G"));
}

TEST_F(OxmDicFromXMLFillTest, ValuesAreDecodedAndTextsShareNothingWithTheDocument) {
    const auto simple = Simple("Default=\"a &lt;&amp;&#x20AC;\" Alias=\"a &lt;&amp;&#x20AC;\"");

    EXPECT_EQ(TextOf(*simple, &OXMIDicSimple::GetDefault), "a <&\u20AC");
    EXPECT_EQ(TextOf(*simple, &OXMIDicSimple::GetAlias), "a <&\u20AC");
}

}  // namespace
