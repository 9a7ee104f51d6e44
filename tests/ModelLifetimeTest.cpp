// Whatever callers do by public calls, in whatever order, and whatever they still hold: nothing is read that
// was freed, nothing stays behind, and what is gone is gone for everybody.
#include <rapidcheck.h>

#include "KindsFixture.h"
#include "RandomLife.h"

namespace {

class ModelLifetimeTest : public KindsFixture {};

TEST_F(ModelLifetimeTest, NothingIsReadAfterItsEndAndNothingStaysBehind) {
    const int before = ZanDicObj::live_Objects();

    const bool holds = rc::check([&] {
        Manager().End();  // what a life that failed has left
        Manager().Init(0);
        RandomLife model(Manager());
        const int steps = *rc::gen::inRange(0, 400);
        for (int step = 0; step < steps; ++step) model.Step();
        model.AskEverything();
        switch (*rc::gen::inRange(0, 3)) {
            case 0:
                RC_ASSERT(Manager().End() == S_OK);
                model.AskEverything();
                for (int step = 0; step < 40; ++step) model.Step();
                model.AskEverything();
                model.LetGoOfAll();
                break;
            case 1:
                model.RemoveAllPackages();
                model.AskEverything();
                model.LetGoOfAll();
                RC_ASSERT(ZanDicObj::live_Objects() == before + model.LeftToManager());
                break;
            default:
                model.LetGoOfAll();
        }
        RC_ASSERT(Manager().End() == S_OK);
        RC_ASSERT(ZanDicObj::live_Objects() == before - 9);
        ClearWritten();
    });

    EXPECT_TRUE(holds);
    Manager().Init(0);
    for (unsigned uuid = 1; uuid < 400; ++uuid) {
        const ZELDbBinary bytes = TestUuid(uuid);
        OXMIDicElementH* found = nullptr;
        ASSERT_EQ(Manager().Search(&bytes, &found), E_FAIL);
    }
}

TEST_F(ModelLifetimeTest, EveryMemberIsGoneWithItsPackage) {
    const auto items = Package("Items");
    const auto part = Class(*items, "Part");
    const auto colour = Enum(*items, "Colour");
    Rows members;
    members.push_back(QueryFor<OXMIDicElementH>(*Simple(*part, "Number")));
    members.push_back(QueryFor<OXMIDicElementH>(*Unique(*part, "Key")));
    members.push_back(QueryFor<OXMIDicElementH>(*Enumerator(*colour, "Red")));
    members.push_back(QueryFor<OXMIDicElementH>(*Category(*items, "Weight")));

    RemovePackage("Items");

    for (const auto& member : members) {
        ZELString name;
        EXPECT_FALSE(IsRegistered(*member));
        EXPECT_EQ(QueryFor<OXMIDicElement>(*member)->GetPackageName(&name), S_FALSE);
    }
}

TEST_F(ModelLifetimeTest, AnObjectThatIsGoneCannotBeRegisteredAgain) {
    const auto items = Package("Items");
    const auto part = Class(*items, "Part");
    const ZELDbBinary uuid = NextUuid();
    OXMIDicElementH* found = nullptr;
    EXPECT_EQ(items->RemoveElement(Named("Part")), S_OK);

    EXPECT_EQ(part->SetUuid(&uuid), E_FAIL);
    EXPECT_EQ(part->GenUuid(), S_OK);

    EXPECT_FALSE(IsRegistered(*part));
    EXPECT_EQ(Manager().Search(&uuid, &found), E_FAIL);
}

TEST_F(ModelLifetimeTest, APackageUnloadsAndComesBackThoughMembersWereRemoved) {
    for (int round = 0; round < 2; ++round) {
        const ZELString name("Items");
        const ZELString domain("VALKOR");
        const ZELDbBinary packageUuid = TestUuid(1);
        const ZELDbBinary classUuid = TestUuid(2);
        const ZELDbBinary attributeUuid = TestUuid(3);
        Held<OXMIDicPackage> package;
        Held<OXMIDicClass> part;
        Held<OXMIDicSimple> number;

        EXPECT_EQ(Manager().CreatePackage(&name, &packageUuid, &domain, package.Out()), S_OK);
        EXPECT_EQ(package->CreateClass(Named("Part"), &classUuid, part.Out()), S_OK);
        EXPECT_EQ(part->CreateSimple(Named("Number"), &attributeUuid, number.Out()), S_OK);
        EXPECT_EQ(part->RemoveElement(Named("Number")), S_OK);

        RemovePackage("Items");
    }
}

}  // namespace
