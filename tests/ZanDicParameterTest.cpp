#include "ZanDicParameter.h"

#include "KindsFixture.h"

namespace {

class ZanDicParameterTest : public KindsFixture {
protected:
    Held<OXMIDicPackage> items = Package("Items");
    Held<OXMIDicInterface> shape = Interface(*items, "Shape");
    Held<OXMIDicMethod> area = Method(*shape, "Area");
    Held<OXMIDicParameter> unit = Parameter(*area, "Unit");
    Held<OXMIDicClass> part = Class(*items, "Part");
};

TEST_F(ZanDicParameterTest, StartsWithoutTypeAndKind) {
    OXMIDicElement* type = nullptr;
    OXMDicKIND kind = OXMDicKIND_Return;
    ZELUnicodeString value("before");

    EXPECT_EQ(unit->GetType(&type), S_FALSE);
    EXPECT_EQ(unit->GetKind(&kind), S_OK);
    EXPECT_EQ(unit->GetDefault(&value), S_OK);

    EXPECT_EQ(type, nullptr);
    EXPECT_EQ(kind, OXMDicKIND_None);
    EXPECT_EQ(value, ZELUnicodeString(""));
}

TEST_F(ZanDicParameterTest, IsAParameter) {
    const ZanDicParameter parameter("Unit", TestUuid(1));

    EXPECT_EQ(parameter.Type(), OXMDicTYPE_Parameter);
    EXPECT_EQ(parameter.get_type(), ZanDicObj::_type_Parameter);
    EXPECT_STREQ(parameter.IsA(), "ZanDicParameter");
}

TEST_F(ZanDicParameterTest, SetTypeStoresAndReportsFailure) {
    Held<OXMIDicElement> type;

    EXPECT_EQ(unit->SetType(part.Get()), E_FAIL);

    EXPECT_EQ(unit->GetType(type.Out()), S_OK);
    EXPECT_TRUE(SameObject(*type, *part));
}

TEST_F(ZanDicParameterTest, SetTypeWithNullChangesNothing) {
    Held<OXMIDicElement> type;
    unit->SetType(part.Get());

    EXPECT_EQ(unit->SetType(nullptr), E_FAIL);

    EXPECT_EQ(unit->GetType(type.Out()), S_OK);
}

TEST_F(ZanDicParameterTest, TakesAPrimitiveAsType) {
    Held<OXMIDicElement> type;

    unit->SetType(Primitive(OXMDicPRIMITIVEType_Integer).Get());

    EXPECT_EQ(unit->GetType(type.Out()), S_OK);
    EXPECT_TRUE(QueryFor<OXMIDicPrimitive>(*type));
}

TEST_F(ZanDicParameterTest, KeepsKindAndDefault) {
    const ZELUnicodeString text("mm");
    OXMDicKIND kind = OXMDicKIND_None;
    ZELUnicodeString value;

    EXPECT_EQ(unit->SetKind(OXMDicKIND_IO), S_OK);
    EXPECT_EQ(unit->SetDefault(&text), S_OK);

    EXPECT_EQ(unit->GetKind(&kind), S_OK);
    EXPECT_EQ(unit->GetDefault(&value), S_OK);
    EXPECT_EQ(kind, OXMDicKIND_IO);
    EXPECT_EQ(value, text);
}

TEST_F(ZanDicParameterTest, ATypeThatIsGoneReadsAsNeverSetAndIsCounted) {
    OXMIDicElement* type = nullptr;
    unit->SetType(part.Get());
    EXPECT_EQ(LostLinks(*unit), 0);

    EXPECT_EQ(items->RemoveElement(Named("Part")), S_OK);

    EXPECT_EQ(unit->GetType(&type), S_FALSE);
    EXPECT_EQ(type, nullptr);
    EXPECT_EQ(LostLinks(*unit), 1);
}

TEST_F(ZanDicParameterTest, TakesNoTypeOnceEitherIsGone) {
    OXMIDicElement* type = nullptr;
    EXPECT_EQ(items->RemoveElement(Named("Part")), S_OK);
    EXPECT_EQ(unit->SetType(part.Get()), E_FAIL);
    EXPECT_EQ(unit->GetType(&type), S_FALSE);

    EXPECT_EQ(shape->RemoveMethod(Named("Area")), S_OK);
    EXPECT_EQ(unit->SetType(shape.Get()), E_FAIL);
    EXPECT_EQ(unit->GetType(&type), S_FALSE);
    EXPECT_EQ(LostLinks(*unit), 0);
}

TEST_F(ZanDicParameterTest, ACopyHasTypeKindAndDefault) {
    ZanDicParameter first("Unit", TestUuid(1));
    const ZELUnicodeString text("mm");
    first.SetType(part.Get());
    first.SetKind(OXMDicKIND_Out);
    first.SetDefault(&text);

    const ZanDicParameter copy(first);
    ZanDicParameter assigned("Other", TestUuid(2));
    assigned = first;

    for (const ZanDicParameter* parameter : {&copy, static_cast<const ZanDicParameter*>(&assigned)}) {
        Held<OXMIDicElement> type;
        OXMDicKIND kind = OXMDicKIND_None;
        ZELUnicodeString value;
        EXPECT_EQ(parameter->GetType(type.Out()), S_OK);
        EXPECT_EQ(parameter->GetKind(&kind), S_OK);
        EXPECT_EQ(parameter->GetDefault(&value), S_OK);
        EXPECT_TRUE(SameObject(*type, *part));
        EXPECT_EQ(kind, OXMDicKIND_Out);
        EXPECT_EQ(value, text);
        EXPECT_EQ(parameter->Name(), ZELString("Unit"));
    }
}

}  // namespace
