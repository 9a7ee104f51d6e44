// What an object says of the links that were set and are gone, and what its getters answer then.
#include "KindsFixture.h"
#include "OXMIDicAttributeBlock.h"
#include "ZanDicObj.h"

namespace {

class ZanDicLostLinksTest : public KindsFixture {
protected:
    Held<OXMIDicPackage> items = Package("Items");
    Held<OXMIDicPackage> people = Package("People");
    Held<OXMIDicClass> part = Class(*items, "Part");
    Held<OXMIDicClass> person = Class(*people, "Person");
    Held<OXMIDicRelationship> maker = Relationship(*part, "Maker");
};

TEST_F(ZanDicLostLinksTest, RefusesNull) { EXPECT_EQ(part->GetLostLinks(nullptr), E_FAIL); }

TEST_F(ZanDicLostLinksTest, ALinkNeverSetIsNotLost) {
    EXPECT_EQ(LostLinks(*part), 0);
    EXPECT_EQ(LostLinks(*maker), 0);
    EXPECT_EQ(LostLinks(*items), 0);
}

TEST_F(ZanDicLostLinksTest, AClassLosesSuperClassAndReference) {
    EXPECT_EQ(part->SetSuperClass(person.Get()), S_OK);
    EXPECT_EQ(part->SetReference(person.Get()), S_OK);
    OXMIDicClass* found = nullptr;

    RemovePackage("People");

    EXPECT_EQ(LostLinks(*part), 2);
    EXPECT_EQ(part->GetSuperClass(&found), S_FALSE);
    EXPECT_EQ(part->GetReference(&found), S_FALSE);
    EXPECT_EQ(found, nullptr);
}

TEST_F(ZanDicLostLinksTest, SettingALinkAnewForgetsTheLoss) {
    EXPECT_EQ(part->SetSuperClass(person.Get()), S_OK);
    RemovePackage("People");

    EXPECT_EQ(part->SetSuperClass(Class(*items, "Thing").Get()), S_OK);

    EXPECT_EQ(LostLinks(*part), 0);
}

TEST_F(ZanDicLostLinksTest, AFlushOfTheSuperClassAloneCountsAsLoss) {
    EXPECT_EQ(part->SetSuperClass(person.Get()), S_OK);

    EXPECT_EQ(person->FlushAll(), S_OK);

    Held<OXMIDicClass> found;
    EXPECT_EQ(part->GetSuperClass(found.Out()), S_FALSE);
    EXPECT_EQ(LostLinks(*part), 1);
}

TEST_F(ZanDicLostLinksTest, ABlockLosesClassFatherRootAndAttributes) {
    const ZELDbBinary uuid = NextUuid();
    const ZELDbBinary fatherUuid = NextUuid();
    Held<OXMIDicAttributeBlock> block;
    Held<OXMIDicAttributeBlock> father;
    ASSERT_EQ(items->CreateAttributeBlock(&uuid, block.Out()), S_OK);
    ASSERT_EQ(people->CreateAttributeBlock(&fatherUuid, father.Out()), S_OK);
    ASSERT_EQ(block->SetClass(person.Get()), S_OK);
    ASSERT_EQ(block->SetFather(father.Get()), S_OK);
    ASSERT_EQ(block->SetRoot(father.Get()), S_OK);
    ASSERT_EQ(block->AddAttribute(Relationship(*person, "Employer").Get()), S_OK);
    EXPECT_EQ(LostLinks(*block), 0);

    RemovePackage("People");

    EXPECT_EQ(LostLinks(*block), 4);
}

TEST_F(ZanDicLostLinksTest, ASubClassThatGoesIsNoLossOfItsSuperClass) {
    EXPECT_EQ(person->SetSuperClass(part.Get()), S_OK);

    RemovePackage("People");

    EXPECT_EQ(Listed(*part, &OXMIDicClass::GetSubClasses), "");
    EXPECT_EQ(LostLinks(*part), 0);
}

TEST_F(ZanDicLostLinksTest, AnAttributeLosesItsTypeAndScopes) {
    EXPECT_EQ(maker->SetTarget(person.Get()), S_OK);
    EXPECT_EQ(maker->AddScope(person.Get()), S_OK);
    OXMIDicElement* type = nullptr;

    RemovePackage("People");

    EXPECT_EQ(LostLinks(*maker), 2);
    EXPECT_EQ(maker->GetType(&type), S_FALSE);
}

TEST_F(ZanDicLostLinksTest, AnInverseLosesItsRelationshipAndTheOtherWayRound) {
    const auto made = Inverse(*person, "Made");
    EXPECT_EQ(maker->SetInvertedAttribute(made.Get()), S_OK);
    EXPECT_EQ(made->SetInverse(maker.Get()), S_OK);

    RemovePackage("People");
    EXPECT_EQ(LostLinks(*maker), 1);
    EXPECT_EQ(Listed(*maker, &OXMIDicRelationship::GetInvertedAttributes), "");
    EXPECT_EQ(LostLinks(*made), 0) << "it is gone itself and has no links";

    const auto other = Inverse(*part, "Other");
    EXPECT_EQ(other->SetInverse(maker.Get()), S_OK);
    const auto document = Class(*items, "Document");
    const auto late = Inverse(*document, "Late");
    EXPECT_EQ(late->SetInverse(maker.Get()), S_OK);
    EXPECT_EQ(items->RemoveElement(Named("Part")), S_OK);
    OXMIDicRelationship* found = nullptr;
    EXPECT_EQ(late->GetInverse(&found), S_FALSE);
    EXPECT_EQ(LostLinks(*late), 1);
}

TEST_F(ZanDicLostLinksTest, InversesThatComeAndGoLeaveNothingButTheirNumber) {
    for (int round = 1; round <= 100; ++round) {
        const auto passing = Class(*items, "Passing");
        const auto inverse = Inverse(*passing, "Back");
        EXPECT_EQ(maker->SetInvertedAttribute(inverse.Get()), S_OK);
        EXPECT_EQ(items->RemoveElement(Named("Passing")), S_OK);
        EXPECT_EQ(LostLinks(*maker), round);
    }

    EXPECT_EQ(Listed(*maker, &OXMIDicRelationship::GetInvertedAttributes), "");
}

TEST_F(ZanDicLostLinksTest, AUniqueLosesItsMembers) {
    const auto key = Unique(*person, "Key");
    const auto number = Simple(*part, "Number");
    EXPECT_EQ(key->AddElement(number.Get()), S_OK);

    RemovePackage("Items");

    EXPECT_EQ(LostLinks(*key), 1);
    EXPECT_EQ(Listed(*key, &OXMIDicUnique::GetElements), "");
}

TEST_F(ZanDicLostLinksTest, AnythingLosesItsCategories) {
    const auto weight = Category(*people, "Weight");
    EXPECT_EQ(part->AddCategory(weight.Get()), S_OK);
    EXPECT_EQ(items->AddCategory(weight.Get()), S_OK);

    RemovePackage("People");

    EXPECT_EQ(LostLinks(*part), 1);
    EXPECT_EQ(LostLinks(*items), 1);
}

TEST_F(ZanDicLostLinksTest, APackageLosesUsedAndScopePackagesUntilTheirNamesComeBack) {
    EXPECT_EQ(items->AddUsedPackage(people.Get()), S_OK);
    EXPECT_EQ(items->AddScopePackage(people.Get()), S_OK);

    RemovePackage("People");
    EXPECT_EQ(LostLinks(*items), 2);
    EXPECT_EQ(Listed(*items, &OXMIDicPackage::GetUsedPackages), "");

    const auto again = Package("People");
    EXPECT_EQ(Listed(*items, &OXMIDicPackage::GetUsedPackages), "") << "links do not come back by themselves";
    EXPECT_EQ(items->AddUsedPackage(again.Get()), S_OK);
    EXPECT_EQ(LostLinks(*items), 1);
}

TEST_F(ZanDicLostLinksTest, TheEndOfTheManagerIsNoLossForWhatIsGoneToo) {
    EXPECT_EQ(part->SetSuperClass(person.Get()), S_OK);

    EXPECT_EQ(Manager().End(), S_OK);

    EXPECT_EQ(LostLinks(*part), 0);
}

}  // namespace
