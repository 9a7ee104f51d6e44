#include "ZanDicUnique.h"

#include "ModelFixture.h"

namespace {

class ZanDicUniqueTest : public ModelFixture {
protected:
    Held<OXMIDicPackage> package = Package("Items");
    Held<OXMIDicClass> part = Class(*package, "Part");
    Held<OXMIDicUnique> key = Unique(*part, "Key");
};

TEST_F(ZanDicUniqueTest, IsAUnique) {
    const ZanDicUnique unique("Key", TestUuid(1));

    EXPECT_EQ(unique.Type(), OXMDicTYPE_Unique);
    EXPECT_EQ(unique.get_type(), ZanDicObj::_type_Unique);
    EXPECT_STREQ(unique.IsA(), "ZanDicUnique");
}

TEST_F(ZanDicUniqueTest, ListsItsAttributesInTheOrderOfInsertion) {
    const auto number = Simple(*part, "Number");
    const auto version = Simple(*part, "Version");
    HeldList elements;

    EXPECT_EQ(key->AddElement(version.Get()), S_OK);
    EXPECT_EQ(key->AddElement(number.Get()), S_OK);

    EXPECT_EQ(key->GetElements(&elements), S_OK);
    EXPECT_EQ(NamesOf(elements), "Version Number ");
}

TEST_F(ZanDicUniqueTest, RefusesNullAndASecondOfOneName) {
    const auto number = Simple(*part, "Number");
    HeldList elements;
    EXPECT_EQ(key->AddElement(number.Get()), S_OK);

    EXPECT_EQ(key->AddElement(number.Get()), E_FAIL);
    EXPECT_EQ(key->AddElement(nullptr), E_FAIL);
    EXPECT_EQ(key->RemoveElement(nullptr), E_FAIL);

    EXPECT_EQ(key->GetElements(&elements), S_OK);
    EXPECT_EQ(elements.Size(), 1);
}

TEST_F(ZanDicUniqueTest, TakesAnAttributeOutByItsName) {
    const auto number = Simple(*part, "Number");
    HeldList elements;
    EXPECT_EQ(key->AddElement(number.Get()), S_OK);

    EXPECT_EQ(key->RemoveElement(number.Get()), S_OK);
    EXPECT_EQ(key->RemoveElement(number.Get()), E_FAIL);

    EXPECT_EQ(key->GetElements(&elements), S_OK);
    EXPECT_EQ(elements.Size(), 0);
}

TEST_F(ZanDicUniqueTest, RefusesANullListAndAnswersWhenEmpty) {
    HeldList elements;

    EXPECT_EQ(key->GetElements(nullptr), E_FAIL);
    EXPECT_EQ(key->GetElements(&elements), S_OK);

    EXPECT_EQ(elements.Size(), 0);
}

TEST_F(ZanDicUniqueTest, LosesAnAttributeThatIsGone) {
    const auto other = Class(*package, "Other");
    const auto number = Simple(*other, "Number");
    const auto again = Simple(*part, "Number");
    HeldList elements;
    EXPECT_EQ(key->AddElement(number.Get()), S_OK);

    EXPECT_EQ(package->RemoveElement(Named("Other")), S_OK);

    EXPECT_EQ(key->GetElements(&elements), S_OK);
    EXPECT_EQ(elements.Size(), 0);
    EXPECT_EQ(key->AddElement(number.Get()), E_FAIL);
    EXPECT_EQ(key->AddElement(again.Get()), S_OK);
}

TEST_F(ZanDicUniqueTest, RefusesAnAttributeOnceItIsGoneItself) {
    const auto other = Class(*package, "Other");
    const auto number = Simple(*other, "Number");
    HeldList elements;

    EXPECT_EQ(package->RemoveElement(Named("Part")), S_OK);

    EXPECT_EQ(key->AddElement(number.Get()), E_FAIL);
    EXPECT_EQ(key->GetElements(&elements), S_OK);
    EXPECT_EQ(elements.Size(), 0);
}

}  // namespace
