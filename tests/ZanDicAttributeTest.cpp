#include "ZanDicAttribute.h"

#include "ModelFixture.h"

namespace {

class ZanDicAttributeTest : public ModelFixture {
protected:
    Held<OXMIDicPackage> items = Package("Items");
    Held<OXMIDicClass> part = Class(*items, "Part");
    Held<OXMIDicSimple> number = Simple(*part, "Number");
    Held<OXMIDicRelationship> maker = Relationship(*part, "Maker");
    Held<OXMIDicInverse> madeBy = Inverse(*part, "MadeBy");
};

using ZanDicAttributeDeathTest = ZanDicAttributeTest;

TEST_F(ZanDicAttributeTest, IsARelationshipUntilItsClassSaysOtherwise) {
    const ZanDicAttribute attribute("Number", TestUuid(1));

    EXPECT_EQ(attribute.Type(), OXMDicTYPE_Relationship);
    EXPECT_EQ(attribute.get_type(), ZanDicObj::_type_Attribute);
    EXPECT_STREQ(attribute.IsA(), "ZanDicAttribute");
}

TEST_F(ZanDicAttributeTest, TakesAboutAHundredBytes) { EXPECT_LE(sizeof(ZanDicAttribute), 104U); }

TEST_F(ZanDicAttributeTest, StartsWithItsInitialValues) {
    OXMDicAGGREGATION aggregation{};
    OXMDicACCESSMODE access{};
    OXMDicCASEMODE caseMode{};
    OXMDicSCOPE scope{};
    OXMDicUPDATEFACET facet{};
    OXMDicCOLLECTION collection{};
    int value = 7;

    EXPECT_EQ(maker->GetAggregationMode(&aggregation), S_OK);
    EXPECT_EQ(aggregation, OXMDicAGGREGATION_Shared);
    EXPECT_EQ(number->GetAccessMode(&access), S_OK);
    EXPECT_EQ(access, OXMDicACCESSMODE_Read);
    EXPECT_EQ(number->GetCaseMode(&caseMode), S_OK);
    EXPECT_EQ(caseMode, OXMDicCASEMODE_Mixed);
    EXPECT_EQ(maker->GetScope(&scope), S_OK);
    EXPECT_EQ(scope, OXMDicSCOPE_None);
    EXPECT_EQ(number->GetUpdateFacet(&facet), S_OK);
    EXPECT_EQ(facet, OXMDicUPDATEFACET_NEUTRAL);
    EXPECT_EQ(number->GetCollectionType(&collection), S_OK);
    EXPECT_EQ(collection, OXMDicCOLLECTION_List);
    EXPECT_EQ(number->GetMaxLength(&value), S_OK);
    EXPECT_EQ(value, -1);
    EXPECT_EQ(number->GetLower(&value), S_OK);
    EXPECT_EQ(value, 0);
    value = 7;
    EXPECT_EQ(number->GetUpper(&value), S_OK);
    EXPECT_EQ(value, 0);
}

TEST_F(ZanDicAttributeTest, StartsWithoutFlagsAndWithEmptyTexts) {
    unsigned char flag = 7;
    ZELUnicodeString text;

    EXPECT_EQ(number->GetMandatory(&flag), S_OK);
    EXPECT_EQ(flag, 0);
    EXPECT_EQ(number->GetSensitive(&flag), S_OK);
    EXPECT_EQ(flag, 0);
    EXPECT_EQ(number->GetMultiValuated(&flag), S_OK);
    EXPECT_EQ(flag, 0);
    EXPECT_EQ(maker->GetInjective(&flag), S_OK);
    EXPECT_EQ(flag, 0);
    EXPECT_EQ(number->GetDefault(&text), S_OK);
    EXPECT_EQ(text, ZELUnicodeString(""));
    EXPECT_EQ(number->GetMagnitude(&text), S_OK);
    EXPECT_EQ(text, ZELUnicodeString(""));
    EXPECT_EQ(number->GetDBFormat(&text), S_OK);
    EXPECT_EQ(text, ZELUnicodeString(""));
}

TEST_F(ZanDicAttributeTest, KeepsFlagsNumbersAndTexts) {
    const ZELUnicodeString one("1");
    const ZELUnicodeString two("2");
    const ZELUnicodeString three("3");
    unsigned char flag = 0;
    int value = 0;
    ZELUnicodeString text;

    EXPECT_EQ(number->SetMandatory(1), S_OK);
    EXPECT_EQ(number->SetSensitive(2), S_OK);
    EXPECT_EQ(number->SetMultiValuated(255), S_OK);
    EXPECT_EQ(maker->SetInjective(1), S_OK);
    EXPECT_EQ(number->SetMaxLength(80), S_OK);
    EXPECT_EQ(number->SetLower(-2), S_OK);
    EXPECT_EQ(number->SetUpper(2147483647), S_OK);
    EXPECT_EQ(number->SetDefault(&one), S_OK);
    EXPECT_EQ(number->SetMagnitude(&two), S_OK);
    EXPECT_EQ(number->SetDBFormat(&three), S_OK);

    EXPECT_EQ(number->GetMandatory(&flag), S_OK);
    EXPECT_EQ(flag, 1);
    EXPECT_EQ(number->GetSensitive(&flag), S_OK);
    EXPECT_EQ(flag, 2);
    EXPECT_EQ(number->GetMultiValuated(&flag), S_OK);
    EXPECT_EQ(flag, 255);
    EXPECT_EQ(maker->GetInjective(&flag), S_OK);
    EXPECT_EQ(flag, 1);
    EXPECT_EQ(number->GetMaxLength(&value), S_OK);
    EXPECT_EQ(value, 80);
    EXPECT_EQ(number->GetLower(&value), S_OK);
    EXPECT_EQ(value, -2);
    EXPECT_EQ(number->GetUpper(&value), S_OK);
    EXPECT_EQ(value, 2147483647);
    EXPECT_EQ(number->GetDefault(&text), S_OK);
    EXPECT_EQ(text, one);
    EXPECT_EQ(number->GetMagnitude(&text), S_OK);
    EXPECT_EQ(text, two);
    EXPECT_EQ(number->GetDBFormat(&text), S_OK);
    EXPECT_EQ(text, three);
}

TEST_F(ZanDicAttributeTest, KeepsEachEnumeratedPropertyApart) {
    ZanDicAttribute attribute("Number", TestUuid(1));

    attribute.SetAggregationMode(OXMDicAGGREGATION_Composition);
    attribute.SetAccessMode(OXMDicACCESSMODE_ReadWrite);
    attribute.SetCaseMode(OXMDicCASEMODE_Upper);
    attribute.SetScope(OXMDicSCOPE_Vault);
    attribute.SetUpdateFacet(OXMDicUPDATEFACET_OUT);
    attribute.SetCollectionType(OXMDicCOLLECTION_Set);

    EXPECT_EQ(attribute.stored_Mode(ZanDicAttribute::kAggregation), 3);
    EXPECT_EQ(attribute.stored_Mode(ZanDicAttribute::kAccess), 4);
    EXPECT_EQ(attribute.stored_Mode(ZanDicAttribute::kCase), 1);
    EXPECT_EQ(attribute.stored_Mode(ZanDicAttribute::kScope), 3);
    EXPECT_EQ(attribute.stored_Mode(ZanDicAttribute::kFacet), 2);
    EXPECT_EQ(attribute.stored_Mode(ZanDicAttribute::kCollection), 4);
}

TEST_F(ZanDicAttributeTest, KeepsTheLowBitsOfAnEnumeratedPropertyAsASignedNumber) {
    ZanDicAttribute attribute("Number", TestUuid(1));
    OXMDicACCESSMODE access{};

    attribute.SetAccessMode(static_cast<OXMDicACCESSMODE>(17));
    attribute.SetCaseMode(static_cast<OXMDicCASEMODE>(4));
    attribute.SetCollectionType(static_cast<OXMDicCOLLECTION>(8));
    attribute.SetAggregationMode(static_cast<OXMDicAGGREGATION>(-1));
    attribute.SetScope(static_cast<OXMDicSCOPE>(0));

    EXPECT_EQ(attribute.GetAccessMode(&access), S_OK);
    EXPECT_EQ(access, OXMDicACCESSMODE_None);
    EXPECT_EQ(attribute.stored_Mode(ZanDicAttribute::kCase), -4);
    EXPECT_EQ(attribute.stored_Mode(ZanDicAttribute::kCollection), -8);
    EXPECT_EQ(attribute.stored_Mode(ZanDicAttribute::kAggregation), -1);
    EXPECT_EQ(attribute.stored_Mode(ZanDicAttribute::kScope), 0);
    EXPECT_EQ(attribute.stored_Mode(ZanDicAttribute::kFacet), 3);
}

TEST_F(ZanDicAttributeTest, TakesFourAsAnAggregation) {
    OXMDicAGGREGATION aggregation{};

    EXPECT_EQ(maker->SetAggregationMode(static_cast<OXMDicAGGREGATION>(4)), S_OK);
    EXPECT_EQ(maker->GetAggregationMode(&aggregation), S_OK);

    EXPECT_EQ(aggregation, 4);
}

TEST_F(ZanDicAttributeDeathTest, AnAggregationOutsideItsWordsEndsTheProcess) {
    OXMDicAGGREGATION aggregation{};
    maker->SetAggregationMode(static_cast<OXMDicAGGREGATION>(5));
    EXPECT_DEATH(maker->GetAggregationMode(&aggregation), "AssertionFailed:0.*ZanDicAttribute.*41");
}

TEST_F(ZanDicAttributeDeathTest, ACollectionOutsideItsWordsEndsTheProcess) {
    OXMDicCOLLECTION collection{};
    number->SetCollectionType(static_cast<OXMDicCOLLECTION>(0));
    EXPECT_DEATH(number->GetCollectionType(&collection), "AssertionFailed:0.*ZanDicAttribute.*52");
}

TEST_F(ZanDicAttributeDeathTest, AnAccessModeOutsideItsWordsEndsTheProcess) {
    OXMDicACCESSMODE access{};
    number->SetAccessMode(static_cast<OXMDicACCESSMODE>(9));
    EXPECT_DEATH(number->GetAccessMode(&access), "AssertionFailed:0.*ZanDicAttribute.*63");
}

TEST_F(ZanDicAttributeDeathTest, ACaseModeOutsideItsWordsEndsTheProcess) {
    OXMDicCASEMODE caseMode{};
    number->SetCaseMode(static_cast<OXMDicCASEMODE>(4));
    EXPECT_DEATH(number->GetCaseMode(&caseMode), "AssertionFailed:0.*ZanDicAttribute.*73");
}

TEST_F(ZanDicAttributeDeathTest, AScopeOutsideItsWordsEndsTheProcess) {
    OXMDicSCOPE scope{};
    maker->SetScope(static_cast<OXMDicSCOPE>(0));
    EXPECT_DEATH(maker->GetScope(&scope), "AssertionFailed:0.*ZanDicAttribute.*83");
}

TEST_F(ZanDicAttributeDeathTest, AnUpdateFacetOutsideItsWordsEndsTheProcess) {
    OXMDicUPDATEFACET facet{};
    number->SetUpdateFacet(static_cast<OXMDicUPDATEFACET>(-1));
    EXPECT_DEATH(number->GetUpdateFacet(&facet), "AssertionFailed:0.*ZanDicAttribute.*93");
}

TEST_F(ZanDicAttributeTest, IsNotProxyable) {
    unsigned char proxyable = 7;
    ClearWritten();

    EXPECT_EQ(number->SetProxyable(1), E_FAIL);
    EXPECT_EQ(number->GetProxyable(&proxyable), E_FAIL);

    EXPECT_EQ(proxyable, 7);
    EXPECT_EQ(Written(), "");
}

TEST_F(ZanDicAttributeTest, RefusesNullArguments) {
    EXPECT_EQ(number->GetMandatory(nullptr), E_FAIL);
    EXPECT_EQ(number->GetMaxLength(nullptr), E_FAIL);
    EXPECT_EQ(number->SetDefault(nullptr), E_FAIL);
    EXPECT_EQ(number->GetDefault(nullptr), E_FAIL);
    EXPECT_EQ(number->SetMagnitude(nullptr), E_FAIL);
    EXPECT_EQ(number->SetDBFormat(nullptr), E_FAIL);
    EXPECT_EQ(number->GetAccessMode(nullptr), E_FAIL);
    EXPECT_EQ(number->GetOrigin(nullptr), E_FAIL);
    EXPECT_EQ(number->SetType(nullptr), E_FAIL);
    EXPECT_EQ(number->GetType(static_cast<OXMIDicElement**>(nullptr)), E_FAIL);
    EXPECT_EQ(number->SetPrimitive(nullptr), E_FAIL);
    EXPECT_EQ(number->GetPrimitive(nullptr), E_FAIL);
    EXPECT_EQ(maker->SetTarget(nullptr), E_FAIL);
    EXPECT_EQ(maker->GetTarget(nullptr), E_FAIL);
    EXPECT_EQ(madeBy->GetInverse(nullptr), E_FAIL);
    EXPECT_EQ(number->GetSpecializedAttribute(nullptr), E_FAIL);
}

TEST_F(ZanDicAttributeTest, HasNoLinksAtFirst) {
    ZanDicAttribute attribute("Number", TestUuid(1));
    OXMIDicClass* origin = nullptr;
    OXMIDicElement* type = nullptr;
    OXMIDicPrimitive* primitive = nullptr;
    OXMIDicRelationship* relationship = nullptr;
    HeldList inverses;

    EXPECT_EQ(attribute.GetOrigin(&origin), S_FALSE);
    EXPECT_EQ(attribute.GetType(&type), S_FALSE);
    EXPECT_EQ(attribute.GetPrimitive(&primitive), S_FALSE);
    EXPECT_EQ(attribute.GetTarget(&origin), S_FALSE);
    EXPECT_EQ(attribute.GetSpecializedAttribute(&type), S_FALSE);
    EXPECT_EQ(attribute.GetInverse(&relationship), S_FALSE);
    EXPECT_EQ(attribute.GetInvertedAttributes(&inverses), S_OK);

    EXPECT_EQ(inverses.Size(), 0);
}

TEST_F(ZanDicAttributeTest, IsTypedByAPrimitive) {
    const auto integer = Primitive(OXMDicPRIMITIVEType_Integer);
    Held<OXMIDicPrimitive> primitive;
    Held<OXMIDicElement> type;

    EXPECT_EQ(number->SetPrimitive(integer.Get()), S_OK);

    EXPECT_EQ(number->GetPrimitive(primitive.Out()), S_OK);
    EXPECT_EQ(primitive.Get(), integer.Get());
    EXPECT_EQ(number->GetType(type.Out()), S_OK);
    EXPECT_TRUE(SameObject(*type, *integer));
}

TEST_F(ZanDicAttributeTest, HasNoTargetWhenItIsTypedByAPrimitiveOrAnEnumeration) {
    const auto any = Primitive(OXMDicPRIMITIVEType_AnyObject);
    const auto colour = Enum(*items, "Colour");
    OXMIDicClass* target = nullptr;
    EXPECT_EQ(maker->SetType(any.Get()), S_OK);
    EXPECT_EQ(maker->GetTarget(&target), E_FAIL);

    EXPECT_EQ(maker->SetType(colour.Get()), S_OK);
    EXPECT_EQ(maker->GetTarget(&target), E_FAIL);

    EXPECT_EQ(target, nullptr);
}

TEST_F(ZanDicAttributeTest, HasNoPrimitiveWhenItIsTypedByAnEnumerationOrAClass) {
    const auto colour = Enum(*items, "Colour");
    OXMIDicPrimitive* primitive = nullptr;
    Held<OXMIDicElement> type;
    EXPECT_EQ(number->SetType(colour.Get()), S_OK);
    EXPECT_EQ(number->GetPrimitive(&primitive), E_FAIL);
    EXPECT_EQ(number->GetType(type.Out()), S_OK);
    EXPECT_EQ(static_cast<void*>(type.Get()), colour.Get());

    EXPECT_EQ(number->SetType(part.Get()), S_OK);
    EXPECT_EQ(number->GetPrimitive(&primitive), E_FAIL);

    EXPECT_EQ(primitive, nullptr);
}

TEST_F(ZanDicAttributeTest, PointsAtATargetUntilThatIsGone) {
    const auto person = Class(*items, "Person");
    Held<OXMIDicClass> target;
    OXMIDicClass* none = nullptr;
    OXMIDicElement* type = nullptr;

    EXPECT_EQ(maker->SetTarget(person.Get()), S_OK);
    EXPECT_EQ(madeBy->SetTarget(person.Get()), S_OK);
    EXPECT_EQ(maker->GetTarget(target.Out()), S_OK);
    EXPECT_EQ(target.Get(), person.Get());
    EXPECT_EQ(items->RemoveElement(Named("Person")), S_OK);

    EXPECT_EQ(maker->GetTarget(&none), S_FALSE);
    EXPECT_EQ(maker->GetType(&type), S_FALSE);
    EXPECT_EQ(madeBy->GetTarget(&none), S_FALSE);
    EXPECT_EQ(maker->SetTarget(person.Get()), E_FAIL);
    EXPECT_EQ(maker->SetType(person.Get()), E_FAIL);
}

TEST_F(ZanDicAttributeTest, IsNotedAtItsTargetOnlyWhenItWasInjectiveBefore) {
    const auto person = Class(*items, "Person");
    HeldList injectives;
    EXPECT_EQ(maker->SetTarget(person.Get()), S_OK);
    EXPECT_EQ(maker->SetInjective(1), S_OK);
    EXPECT_EQ(person->GetInjectivesPointingOnMe(injectives), S_OK);
    EXPECT_EQ(injectives.Size(), 0);

    EXPECT_EQ(maker->SetTarget(person.Get()), S_OK);

    EXPECT_EQ(person->GetInjectivesPointingOnMe(injectives), S_OK);
    EXPECT_EQ(NamesOf(injectives), "Maker ");
}

TEST_F(ZanDicAttributeTest, AnswersEachAttributeInterfaceWhateverItsTypeCode) {
    EXPECT_TRUE(QueryFor<OXMIDicRelationship>(*number));
    EXPECT_TRUE(QueryFor<OXMIDicInverse>(*number));
    EXPECT_TRUE(QueryFor<OXMIDicAttribute>(*number));
    EXPECT_TRUE(QueryFor<OXMIDicSimple>(*maker));
    EXPECT_TRUE(QueryFor<OXMIDicSimple>(*madeBy));
    EXPECT_FALSE(QueryFor<OXMIDicClass>(*number));
}

TEST_F(ZanDicAttributeTest, TheTwoDirectionsOfAnInversionAreSetApart) {
    Held<OXMIDicRelationship> relationship;
    HeldList inverses;

    EXPECT_EQ(madeBy->SetInverse(maker.Get()), S_OK);
    EXPECT_EQ(maker->GetInvertedAttributes(&inverses), S_OK);
    EXPECT_EQ(inverses.Size(), 0);
    EXPECT_EQ(maker->SetInvertedAttribute(madeBy.Get()), S_OK);

    EXPECT_EQ(madeBy->GetInverse(relationship.Out()), S_OK);
    EXPECT_EQ(relationship.Get(), maker.Get());
    EXPECT_EQ(maker->GetInvertedAttributes(&inverses), S_OK);
    EXPECT_EQ(NamesOf(inverses), "MadeBy ");
}

TEST_F(ZanDicAttributeTest, SetInverseReplacesWithAWarning) {
    const auto seller = Relationship(*part, "Seller");
    Held<OXMIDicRelationship> relationship;
    EXPECT_EQ(madeBy->SetInverse(maker.Get()), S_OK);
    ClearWritten();

    EXPECT_EQ(madeBy->SetInverse(seller.Get()), S_OK);

    EXPECT_EQ(madeBy->GetInverse(relationship.Out()), S_OK);
    EXPECT_EQ(relationship.Get(), seller.Get());
    EXPECT_EQ(Written(),
              "ZanDicAttribute::SetInverse- *** WARNING *** _InverseOf was already assigned... Overriding "
              "assignement....\n");
}

TEST_F(ZanDicAttributeTest, SetInverseTracesBothObjects) {
    TraceOnly("ZanDicAttribute::SetInverse\n");

    EXPECT_EQ(madeBy->SetInverse(maker.Get()), S_OK);

    EXPECT_EQ(Written(),
              "ZanDicAttribute::SetInverse- current object=MadeBy, type=7 (Inverse).\n"
              "ZanDicAttribute::SetInverse- iRelationship object=Maker, type=6 (Relationship).\n");
}

TEST_F(ZanDicAttributeTest, SetInverseSaysWhyItRefuses) {
    const auto simpleAsInverse = QueryFor<OXMIDicInverse>(*number);
    const auto relationshipAsInverse = QueryFor<OXMIDicInverse>(*maker);
    const auto gone = Class(*items, "Gone");
    const auto goneRelationship = Relationship(*gone, "Old");
    OXMIDicRelationship* none = nullptr;
    EXPECT_EQ(items->RemoveElement(Named("Gone")), S_OK);
    ClearWritten();

    EXPECT_EQ(madeBy->SetInverse(nullptr), E_FAIL);
    EXPECT_EQ(simpleAsInverse->SetInverse(maker.Get()), E_FAIL);
    EXPECT_EQ(relationshipAsInverse->SetInverse(maker.Get()), E_FAIL);
    EXPECT_EQ(madeBy->SetInverse(goneRelationship.Get()), E_FAIL);

    EXPECT_EQ(simpleAsInverse->GetInverse(&none), S_FALSE);
    EXPECT_EQ(madeBy->GetInverse(&none), S_FALSE);
    EXPECT_EQ(Written(),
              "ZanDicAttribute::SetInverse- *** ERROR *** Input argument is NULL..\n"
              "ZanDicAttribute::SetInverse- *** ERROR *** Method can be used only for Inverse element.\n"
              "ZanDicAttribute::SetInverse- *** ERROR *** Method can be used only for Inverse element.\n"
              "ZanDicAttribute::SetInverse- *** ERROR *** Could not get implementation from "
              "OXMIDicRelationship.\n");
}

TEST_F(ZanDicAttributeTest, SetInvertedAttributeSaysWhyItRefuses) {
    const auto simpleAsRelationship = QueryFor<OXMIDicRelationship>(*number);
    const auto gone = Class(*items, "Gone");
    const auto goneInverse = Inverse(*gone, "Old");
    HeldList inverses;
    EXPECT_EQ(items->RemoveElement(Named("Gone")), S_OK);
    ClearWritten();

    EXPECT_EQ(maker->SetInvertedAttribute(nullptr), E_FAIL);
    EXPECT_EQ(simpleAsRelationship->SetInvertedAttribute(madeBy.Get()), E_FAIL);
    EXPECT_EQ(maker->SetInvertedAttribute(goneInverse.Get()), E_FAIL);

    EXPECT_EQ(maker->GetInvertedAttributes(&inverses), S_OK);
    EXPECT_EQ(inverses.Size(), 0);
    EXPECT_EQ(Written(),
              "ZanDicAttribute::SetInvertedAttribute- *** ERROR *** Input argument is NULL..\n"
              "ZanDicAttribute::SetInvertedAttribute- *** ERROR *** Method can be used only for Relationship "
              "element.\n"
              "ZanDicAttribute::SetInvertedAttribute- *** ERROR *** Could not get implementation from "
              "OXMIDicInverse.\n");
}

TEST_F(ZanDicAttributeTest, SetInvertedAttributeListsTheSameTwice) {
    HeldList inverses;
    EXPECT_EQ(maker->SetInvertedAttribute(madeBy.Get()), S_OK);
    TraceOnly("ZanDicAttribute::SetInvertedAttribute\n");

    EXPECT_EQ(maker->SetInvertedAttribute(madeBy.Get()), S_OK);

    EXPECT_EQ(Written(),
              "ZanDicAttribute::SetInvertedAttribute- current object=Maker, type=6 (Relationship).\n"
              "ZanDicAttribute::SetInvertedAttribute- iInverse object=MadeBy, type=7 (Inverse).\n"
              "ZanDicAttribute::SetInvertedAttribute- _InversedBy.Size()=2.\n");
    EXPECT_EQ(maker->GetInvertedAttributes(&inverses), S_OK);
    EXPECT_EQ(NamesOf(inverses), "MadeBy MadeBy ");
}

TEST_F(ZanDicAttributeTest, GetInvertedAttributesTracesWhatItHandsOut) {
    HeldList inverses;
    EXPECT_EQ(maker->SetInvertedAttribute(madeBy.Get()), S_OK);
    TraceOnly("ZanDicAttribute::GetInvertedAttributes\n");

    EXPECT_EQ(maker->GetInvertedAttributes(&inverses), S_OK);

    EXPECT_EQ(
        Written(),
        "ZanDicAttribute::GetInvertedAttributes- Proceeding with object, Name=MadeBy, Type=7 (Inverse).\n"
        "ZanDicAttribute::GetInvertedAttributes- ioAttributes->Size()=1.\n");
}

TEST_F(ZanDicAttributeTest, GetInvertedAttributesSaysWhyItFails) {
    ZanDicAttribute odd("Odd", TestUuid(1));
    odd.set_TYPE(OXMDicTYPE_Implement);
    HeldList inverses;
    {
        Held<OXMIDicInverse> face;
        odd.QueryInterface(IID_OXMIDicInverse, face.OutVoid());
        EXPECT_EQ(maker->SetInvertedAttribute(face.Get()), S_OK);
    }
    ClearWritten();

    EXPECT_EQ(maker->GetInvertedAttributes(nullptr), E_FAIL);
    EXPECT_EQ(maker->GetInvertedAttributes(&inverses), E_FAIL);

    EXPECT_EQ(inverses.Size(), 0);
    EXPECT_EQ(Written(),
              "ZanDicAttribute::GetInvertedAttributes- *** ERROR *** Input argument is NULL.\n"
              "ZanDicObj::bind_Interface -*** WARNING *** Unkown object type=17.\n"
              "ZanDicAttribute::GetInvertedAttributes- *** ERROR *** Could not bind Interface for object, "
              "Name=Odd, "
              "Type=17 (Implement).\n");
}

TEST_F(ZanDicAttributeTest, GetInvertedAttributeIsObsolete) {
    OXMIDicInverse* inverse = nullptr;
    EXPECT_EQ(maker->SetInvertedAttribute(madeBy.Get()), S_OK);
    ClearWritten();

    EXPECT_EQ(maker->GetInvertedAttribute(&inverse), E_FAIL);

    EXPECT_EQ(inverse, nullptr);
    EXPECT_EQ(
        Written(),
        "ZanDicAttribute::GetInvertedAttribute- *** ERROR *** This method is now obsolete..\n"
        "ZanDicAttribute::GetInvertedAttribute- Please use ZanDicAttribute::GetInvertedAttributes to get a "
        "list of objects rather than a single object..\n");
}

TEST_F(ZanDicAttributeTest, LosesInversesThatAreGone) {
    const auto other = Class(*items, "Other");
    const auto otherInverse = Inverse(*other, "Old");
    const auto otherRelationship = Relationship(*other, "Older");
    OXMIDicRelationship* relationship = nullptr;
    HeldList inverses;
    EXPECT_EQ(maker->SetInvertedAttribute(otherInverse.Get()), S_OK);
    EXPECT_EQ(maker->SetInvertedAttribute(madeBy.Get()), S_OK);
    EXPECT_EQ(madeBy->SetInverse(otherRelationship.Get()), S_OK);

    EXPECT_EQ(items->RemoveElement(Named("Other")), S_OK);

    EXPECT_EQ(maker->GetInvertedAttributes(&inverses), S_OK);
    EXPECT_EQ(NamesOf(inverses), "MadeBy ");
    EXPECT_EQ(madeBy->GetInverse(&relationship), S_FALSE);
}

TEST_F(ZanDicAttributeTest, HasNoScopes) {
    HeldList scopes;
    ZELDbBinary uuid = TestUuid(1);
    unsigned char inScope = 7;
    ClearWritten();

    EXPECT_EQ(maker->AddScope(part.Get()), E_FAIL);
    EXPECT_EQ(maker->RemoveScope(part.Get()), E_FAIL);
    EXPECT_EQ(maker->GetScopes(&scopes), E_FAIL);
    EXPECT_EQ(maker->IsClassInScope(&uuid, &inScope), E_FAIL);

    EXPECT_EQ(Written(), "");
}

TEST_F(ZanDicAttributeTest, OnceGoneItAnswersForItselfAndLinksNothing) {
    const auto other = Class(*items, "Other");
    const auto old = Relationship(*other, "Old");
    const auto oldInverse = Inverse(*other, "OldInverse");
    old->SetMaxLength(12);
    old->SetTarget(part.Get());
    EXPECT_EQ(items->RemoveElement(Named("Other")), S_OK);
    OXMIDicClass* none = nullptr;
    OXMIDicElement* type = nullptr;
    int maxLength = 0;

    EXPECT_EQ(old->SetTarget(part.Get()), E_FAIL);
    EXPECT_EQ(old->SetType(part.Get()), E_FAIL);
    EXPECT_EQ(old->SetInvertedAttribute(madeBy.Get()), E_FAIL);
    EXPECT_EQ(oldInverse->SetInverse(maker.Get()), E_FAIL);

    EXPECT_EQ(old->GetMaxLength(&maxLength), S_OK);
    EXPECT_EQ(maxLength, 12);
    EXPECT_EQ(old->GetOrigin(&none), S_FALSE);
    EXPECT_EQ(old->GetTarget(&none), S_FALSE);
    EXPECT_EQ(old->GetType(&type), S_FALSE);
}

}  // namespace
