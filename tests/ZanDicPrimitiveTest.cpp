#include "ZanDicPrimitive.h"

#include "ModelFixture.h"

namespace {

class ZanDicPrimitiveTest : public ModelFixture {};

TEST_F(ZanDicPrimitiveTest, HasNoKindWhenItWasBuiltWithoutOne) {
    const ZanDicPrimitive primitive;

    EXPECT_EQ(primitive.Primitive(), OXMDicPRIMITIVEType_UNDEFINED);
    EXPECT_EQ(primitive.Type(), OXMDicTYPE_Primitive);
    EXPECT_EQ(primitive.get_type(), ZanDicObj::_type_Primitive);
    EXPECT_STREQ(primitive.IsA(), "ZanDicPrimitive");
}

TEST_F(ZanDicPrimitiveTest, KeepsItsKind) {
    const ZanDicPrimitive primitive("Date", TestUuid(1), OXMDicPRIMITIVEType_Date);

    EXPECT_EQ(primitive.Primitive(), OXMDicPRIMITIVEType_Date);
    EXPECT_EQ(primitive.Name(), ZELString("Date"));
    EXPECT_EQ(primitive.Uuid(), TestUuid(1));
}

TEST_F(ZanDicPrimitiveTest, IsCopiedWithItsKind) {
    const ZanDicPrimitive date("Date", TestUuid(1), OXMDicPRIMITIVEType_Date);
    const ZanDicPrimitive copy(date);
    ZanDicPrimitive assigned;

    assigned = date;

    EXPECT_EQ(copy.Primitive(), OXMDicPRIMITIVEType_Date);
    EXPECT_EQ(assigned.Primitive(), OXMDicPRIMITIVEType_Date);
    EXPECT_EQ(assigned.Name(), ZELString("Date"));
}

TEST_F(ZanDicPrimitiveTest, IsReachedByItsInterface) {
    const auto primitive = Primitive(OXMDicPRIMITIVEType_URL);

    EXPECT_EQ(primitive->Primitive(), OXMDicPRIMITIVEType_URL);
}

}  // namespace
