#include "ZanDicEnumerator.h"

#include "ModelFixture.h"

namespace {

class ZanDicEnumeratorTest : public ModelFixture {};

TEST_F(ZanDicEnumeratorTest, IsAnEnumeratorOfValueZero) {
    const ZanDicEnumerator red("Red", TestUuid(1));
    int value = 7;

    EXPECT_EQ(red.GetValue(&value), S_OK);

    EXPECT_EQ(value, 0);
    EXPECT_EQ(red.Type(), OXMDicTYPE_Enumerator);
    EXPECT_EQ(red.get_type(), ZanDicObj::_type_Enumerator);
    EXPECT_STREQ(red.IsA(), "ZanDicEnumerator");
}

TEST_F(ZanDicEnumeratorTest, KeepsItsValue) {
    const auto package = Package("Items");
    const auto colour = Enum(*package, "Colour");
    const auto red = Enumerator(*colour, "Red");
    int value = 0;

    EXPECT_EQ(red->SetValue(-2147483647 - 1), S_OK);
    EXPECT_EQ(red->GetValue(&value), S_OK);

    EXPECT_EQ(value, -2147483647 - 1);
}

TEST_F(ZanDicEnumeratorTest, RefusesNull) {
    const ZanDicEnumerator red("Red", TestUuid(1));

    EXPECT_EQ(red.GetValue(nullptr), E_FAIL);
}

TEST_F(ZanDicEnumeratorTest, IsCopiedWithItsValue) {
    ZanDicEnumerator red("Red", TestUuid(1));
    red.SetValue(3);
    ZanDicEnumerator assigned("Green", TestUuid(2));
    int value = 0;

    assigned = red;
    const ZanDicEnumerator copy(red);

    EXPECT_EQ(assigned.GetValue(&value), S_OK);
    EXPECT_EQ(value, 3);
    value = 0;
    EXPECT_EQ(copy.GetValue(&value), S_OK);
    EXPECT_EQ(value, 3);
}

TEST_F(ZanDicEnumeratorTest, HasThePackageOfItsEnumeration) {
    const auto package = Package("Items");
    const auto colour = Enum(*package, "Colour");
    const auto red = Enumerator(*colour, "Red");
    ZELString name;

    EXPECT_EQ(red->GetPackageName(&name), S_OK);

    EXPECT_EQ(name, ZELString("Items"));
}

}  // namespace
