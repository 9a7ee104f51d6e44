// The index of injective relationships by the class at which they point.
#include "KindsFixture.h"
#include "ZanDicClass.h"

namespace {

class ZanDicRelationsTest : public KindsFixture {
protected:
    static std::string PointingAt(OXMIDicClass& target) {
        HeldList relationships;
        EXPECT_EQ(target.GetInjectivesPointingOnMe(relationships), S_OK);
        return NamesOf(relationships);
    }

    Held<OXMIDicRelationship> Injective(OXMIDicClass& owner, const char* name) {
        auto made = Relationship(owner, name);
        EXPECT_EQ(made->SetInjective(1), S_OK);
        return made;
    }

    Held<OXMIDicPackage> items = Package("Items");
    Held<OXMIDicClass> part = Class(*items, "Part");
    Held<OXMIDicClass> person = Class(*items, "Person");
    Held<OXMIDicRelationship> maker = Injective(*part, "Maker");
};

TEST_F(ZanDicRelationsTest, AnAttributeIsNotedOnceForAClass) {
    EXPECT_EQ(maker->SetTarget(person.Get()), S_OK);
    EXPECT_EQ(Injective(*part, "Owner")->SetTarget(person.Get()), S_OK);
    EXPECT_EQ(maker->SetTarget(person.Get()), S_OK);

    EXPECT_EQ(PointingAt(*person), "Maker Owner ");
}

TEST_F(ZanDicRelationsTest, MovesWithTheTarget) {
    EXPECT_EQ(maker->SetTarget(person.Get()), S_OK);

    EXPECT_EQ(maker->SetTarget(part.Get()), S_OK);

    EXPECT_EQ(PointingAt(*person), "");
    EXPECT_EQ(PointingAt(*part), "Maker ");
}

TEST_F(ZanDicRelationsTest, LeavesWhenTheTypeIsNoClassAnyMore) {
    EXPECT_EQ(maker->SetTarget(person.Get()), S_OK);

    EXPECT_EQ(maker->SetType(Enum(*items, "Colour").Get()), S_OK);

    EXPECT_EQ(PointingAt(*person), "");
}

TEST_F(ZanDicRelationsTest, ANewTargetOfOneThatIsInjectiveNoMoreIsNotNoted) {
    EXPECT_EQ(maker->SetTarget(person.Get()), S_OK);
    EXPECT_EQ(maker->SetInjective(0), S_OK);
    EXPECT_EQ(PointingAt(*person), "Maker ") << "only SetTarget looks at the flag";

    EXPECT_EQ(maker->SetTarget(part.Get()), S_OK);

    EXPECT_EQ(PointingAt(*person), "");
    EXPECT_EQ(PointingAt(*part), "");
}

TEST_F(ZanDicRelationsTest, FollowsAClassWhoseUuidChanges) {
    const ZELDbBinary uuid = NextUuid();
    EXPECT_EQ(maker->SetTarget(person.Get()), S_OK);

    EXPECT_EQ(person->SetUuid(&uuid), E_FAIL);
    EXPECT_EQ(PointingAt(*person), "Maker ");
    EXPECT_EQ(person->GenUuid(), S_OK);
    EXPECT_EQ(PointingAt(*person), "Maker ");

    EXPECT_EQ(maker->SetTarget(part.Get()), S_OK);
    EXPECT_EQ(PointingAt(*person), "");
}

TEST_F(ZanDicRelationsTest, WhoeverTakesTheFormerUuidGetsNothing) {
    ZELDbBinary former;
    person->GetUuid(&former);
    const ZELDbBinary uuid = NextUuid();
    EXPECT_EQ(maker->SetTarget(person.Get()), S_OK);
    EXPECT_EQ(person->SetUuid(&uuid), E_FAIL);
    Held<OXMIDicClass> heir;

    EXPECT_EQ(items->CreateClass(Named("Heir"), &former, heir.Out()), S_OK);

    EXPECT_EQ(PointingAt(*heir), "");
}

TEST_F(ZanDicRelationsTest, AClassWithTheUuidOfAnotherNeitherGetsNorGivesAway) {
    ZELDbBinary taken;
    part->GetUuid(&taken);
    const auto owner = Injective(*part, "Owner");
    EXPECT_EQ(owner->SetTarget(part.Get()), S_OK);
    EXPECT_EQ(maker->SetTarget(person.Get()), S_OK);

    EXPECT_EQ(person->SetUuid(&taken), E_FAIL);
    EXPECT_EQ(PointingAt(*person), "");
    EXPECT_EQ(maker->SetTarget(person.Get()), S_OK);
    EXPECT_EQ(PointingAt(*part), "Owner ");

    EXPECT_EQ(items->RemoveElement(Named("Person")), E_FAIL) << "it is not registered";
    EXPECT_EQ(PointingAt(*part), "Owner ");
}

TEST_F(ZanDicRelationsTest, ForgetsAttributesThatAreGone) {
    EXPECT_EQ(maker->SetTarget(person.Get()), S_OK);

    EXPECT_EQ(items->RemoveElement(Named("Part")), S_OK);

    EXPECT_EQ(PointingAt(*person), "");
}

TEST_F(ZanDicRelationsTest, ForgetsAClassThatIsGone) {
    ZELDbBinary uuid;
    person->GetUuid(&uuid);
    EXPECT_EQ(maker->SetTarget(person.Get()), S_OK);
    EXPECT_EQ(items->RemoveElement(Named("Person")), S_OK);
    EXPECT_EQ(PointingAt(*person), "");
    Held<OXMIDicClass> again;

    EXPECT_EQ(items->CreateClass(Named("Person"), &uuid, again.Out()), S_OK);

    EXPECT_EQ(PointingAt(*again), "") << "loading again does not restore links";
    EXPECT_EQ(PointingAt(*person), "");
    EXPECT_EQ(maker->SetTarget(again.Get()), S_OK);
    EXPECT_EQ(PointingAt(*again), "Maker ");
}

TEST_F(ZanDicRelationsTest, SuperClassesComeFirst) {
    const auto employee = SubClass(*items, "Employee", *person);
    EXPECT_EQ(Injective(*part, "Desk")->SetTarget(employee.Get()), S_OK);
    EXPECT_EQ(maker->SetTarget(person.Get()), S_OK);

    EXPECT_EQ(PointingAt(*employee), "Maker Desk ");
}

}  // namespace
