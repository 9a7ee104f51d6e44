#include "ZanDicRBOPathExpression.h"

#include "KindsFixture.h"

namespace {

class ZanDicRBOPathExpressionTest : public KindsFixture {
protected:
    Held<OXMIDicPackage> tables = Package("Tables");
    Held<OXMIDicClass> part = Class(*tables, "Part");
    Held<OXMIDicRBOMapping> mapping = Mapping(*tables, "Map");
    Held<OXMIDicRBORoot> root = Root(*mapping, "Line");
    Held<OXMIDicRBOComponent> cell = Component(*root, "Cell");
    Held<OXMIDicRBOPathExpression> way = Path(*cell, "Way");
    const ZELUnicodeString empty{""};
};

TEST_F(ZanDicRBOPathExpressionTest, HasItsTypePackageAndName) {
    const ZanDicRBOPathExpression object("Way", TestUuid(1));
    ZELString package;

    EXPECT_EQ(object.Type(), OXMDicTYPE_RBOPathExpression);
    EXPECT_STREQ(object.IsA(), "ZanDicRBOPathExpression");
    EXPECT_EQ(way->GetPackageName(&package), S_OK);
    EXPECT_TRUE(IsRegistered(*way));
}

TEST_F(ZanDicRBOPathExpressionTest, LeadsToAnElementOfAnyKind) {
    const auto number = Simple(*part, "Number");
    Held<OXMIDicElement> target;

    EXPECT_EQ(way->GetTarget(target.Out()), E_FAIL);
    EXPECT_EQ(way->SetTarget(nullptr), E_FAIL);
    EXPECT_EQ(way->SetTarget(number.Get()), S_OK);

    EXPECT_EQ(way->GetTarget(target.Out()), S_OK);
    EXPECT_TRUE(SameObject(*target, *number));
}

TEST_F(ZanDicRBOPathExpressionTest, ReferenceUuidAndNameAreStoredApart) {
    const ZELDbBinary stored = TestUuid(77);
    const ZELUnicodeString storedName("Number");
    ZELDbBinary uuid = TestUuid(1);
    ZELUnicodeString name("before");

    EXPECT_EQ(way->SetTarget(part.Get()), S_OK);
    EXPECT_EQ(way->GetTargetRef(&uuid), S_OK);
    EXPECT_EQ(way->GetTargetName(&name), S_OK);
    EXPECT_TRUE(uuid.IsEmpty());
    EXPECT_EQ(name, empty);

    EXPECT_EQ(way->SetTargetRef(&stored), S_OK);
    EXPECT_EQ(way->SetTargetName(&storedName), S_OK);
    EXPECT_EQ(way->GetTargetRef(&uuid), S_OK);
    EXPECT_EQ(way->GetTargetName(&name), S_OK);
    EXPECT_EQ(uuid, stored);
    EXPECT_EQ(name, storedName);
}

TEST_F(ZanDicRBOPathExpressionTest, SettersRefuseAnEmptyTextAndKeepThePreviousOne) {
    const ZELUnicodeString text("OXMTPRelation");
    ZELUnicodeString kept;

    EXPECT_EQ(way->SetTargetName(&text), S_OK);
    EXPECT_EQ(way->SetTargetName(&empty), E_FAIL);
    EXPECT_EQ(way->SetTargetName(nullptr), E_FAIL);
    EXPECT_EQ(way->GetTargetName(&kept), S_OK);
    EXPECT_EQ(kept, text);

    EXPECT_EQ(way->SetPathExprType(&text), S_OK);
    EXPECT_EQ(way->SetPathExprType(&empty), E_FAIL);
    EXPECT_EQ(way->GetPathExprType(&kept), S_OK);
    EXPECT_EQ(kept, text);

    EXPECT_EQ(way->SetPathExprSubType(&text), S_OK);
    EXPECT_EQ(way->SetPathExprSubType(&empty), E_FAIL);
    EXPECT_EQ(way->GetPathExprSubType(&kept), S_OK);
    EXPECT_EQ(kept, text);
}

TEST_F(ZanDicRBOPathExpressionTest, RefusesNull) {
    EXPECT_EQ(way->GetTarget(nullptr), E_FAIL);
    EXPECT_EQ(way->SetTargetRef(nullptr), E_FAIL);
    EXPECT_EQ(way->GetTargetRef(nullptr), E_FAIL);
    EXPECT_EQ(way->GetTargetName(nullptr), E_FAIL);
    EXPECT_EQ(way->SetPathExprType(nullptr), E_FAIL);
    EXPECT_EQ(way->GetPathExprType(nullptr), E_FAIL);
    EXPECT_EQ(way->SetPathExprSubType(nullptr), E_FAIL);
    EXPECT_EQ(way->GetPathExprSubType(nullptr), E_FAIL);
}

TEST_F(ZanDicRBOPathExpressionTest, AnEmptyTypeIsAFailureToGet) {
    ZELUnicodeString text("before");

    EXPECT_EQ(way->GetPathExprType(&text), E_FAIL);
    EXPECT_EQ(way->GetPathExprSubType(&text), E_FAIL);

    EXPECT_EQ(text, ZELUnicodeString("before"));
}

TEST_F(ZanDicRBOPathExpressionTest, ATargetThatIsGoneReadsAsNeverSet) {
    OXMIDicElement* target = nullptr;
    EXPECT_EQ(way->SetTarget(part.Get()), S_OK);

    EXPECT_EQ(tables->RemoveElement(Named("Part")), S_OK);

    EXPECT_EQ(way->GetTarget(&target), E_FAIL);
    EXPECT_EQ(LostLinks(*way), 1);
    EXPECT_EQ(way->SetTarget(part.Get()), E_FAIL);
    EXPECT_EQ(target, nullptr);
}

TEST_F(ZanDicRBOPathExpressionTest, GoesWithItsComponent) {
    EXPECT_EQ(way->SetTarget(part.Get()), S_OK);
    OXMIDicElement* target = nullptr;
    OXMIDicRBOPathExpression* path = nullptr;

    EXPECT_EQ(cell->FlushAll(), S_OK);

    EXPECT_FALSE(IsRegistered(*way));
    EXPECT_EQ(way->GetTarget(&target), E_FAIL);
    EXPECT_EQ(way->SetTarget(part.Get()), E_FAIL);
    EXPECT_EQ(cell->GetRBOPathExpression(&path), E_FAIL);
    EXPECT_TRUE(Path(*cell, "Way")) << "there is room for another";
}

TEST_F(ZanDicRBOPathExpressionTest, DumpBearsTheClassName) {
    ClearWritten();

    QueryFor<OXMIDicApp>(*way)->Dump("me");

    EXPECT_EQ(Written().find("ZanDicRBOPathExpression::Dump -  called by me ------\n"), 0U);
}

}  // namespace
