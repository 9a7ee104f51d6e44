#include "ZanDicCategory.h"

#include "ModelFixture.h"

namespace {

class ZanDicCategoryTest : public ModelFixture {};

TEST_F(ZanDicCategoryTest, IsACategoryOfNoSpecialClassKind) {
    const ZanDicCategory category("Weight", TestUuid(1));

    EXPECT_EQ(category.Type(), OXMDicTYPE_Category);
    EXPECT_EQ(category.get_type(), ZanDicObj::_type_Element);
    EXPECT_STREQ(category.IsA(), "ZanDicCategory");
}

TEST_F(ZanDicCategoryTest, HasAnEmptyGroupAtFirst) {
    const auto package = Package("Items");
    const auto category = Category(*package, "Weight");
    ZELString group("before");

    EXPECT_EQ(category->GetGroup(&group), S_OK);

    EXPECT_TRUE(group.IsEmpty());
}

TEST_F(ZanDicCategoryTest, KeepsItsGroup) {
    const auto package = Package("Items");
    const auto category = Category(*package, "Weight");
    const ZELString physics("Physics");
    ZELString group;

    EXPECT_EQ(category->SetGroup(&physics), S_OK);
    EXPECT_EQ(category->GetGroup(&group), S_OK);

    EXPECT_EQ(group, physics);
}

TEST_F(ZanDicCategoryTest, RefusesNull) {
    ZanDicCategory category("Weight", TestUuid(1));

    EXPECT_EQ(category.SetGroup(nullptr), E_FAIL);
    EXPECT_EQ(category.GetGroup(nullptr), E_FAIL);
}

TEST_F(ZanDicCategoryTest, IsCopiedWithAllItsFields) {
    ZanDicCategory weight("Weight", TestUuid(1));
    const ZELString physics("Physics");
    const ZELUnicodeString alias("Masse");
    weight.SetGroup(&physics);
    weight.SetAlias(&alias);
    ZanDicCategory assigned("Other", TestUuid(2));

    assigned = weight;
    const ZanDicCategory copy(weight);

    ZELString group;
    ZELUnicodeString copiedAlias;
    EXPECT_EQ(assigned.GetGroup(&group), S_OK);
    EXPECT_EQ(group, physics);
    EXPECT_EQ(copy.GetAlias(&copiedAlias), S_OK);
    EXPECT_EQ(copiedAlias, alias);
    EXPECT_EQ(copy.RefCount(), 1U);
}

TEST_F(ZanDicCategoryTest, IsDetachedFromObjectsOnceItIsGone) {
    const auto package = Package("Items");
    const auto part = Class(*package, "Part");
    const auto category = Category(*package, "Weight");
    unsigned char isCategory = 2;
    EXPECT_EQ(part->AddCategory(category.Get()), S_OK);

    EXPECT_EQ(package->RemoveElement(Named("Weight")), S_OK);

    EXPECT_EQ(part->IsCategory(Named("Weight"), &isCategory), S_OK);
    EXPECT_EQ(isCategory, 0);
    EXPECT_EQ(part->AddCategory(category.Get()), E_FAIL);
}

TEST_F(ZanDicCategoryTest, AnObjectThatIsGoneHasNoCategories) {
    const auto package = Package("Items");
    const auto part = Class(*package, "Part");
    const auto category = Category(*package, "Weight");
    unsigned char isCategory = 2;
    EXPECT_EQ(part->AddCategory(category.Get()), S_OK);

    EXPECT_EQ(package->RemoveElement(Named("Part")), S_OK);

    EXPECT_EQ(part->IsCategory(Named("Weight"), &isCategory), E_FAIL);
    EXPECT_EQ(isCategory, 2);
}

}  // namespace
