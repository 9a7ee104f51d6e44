// Whatever callers do by public calls, in whatever order, and whatever they still hold: nothing is read that
// was freed, nothing stays behind, and what is gone is gone for everybody.
#include <rapidcheck.h>

#include "ModelFixture.h"
#include "OXMIDicApp.h"

namespace {

using Rows = std::vector<Held<OXMIDicElementH>>;

/// A model that is built, held and taken apart at random.
class RandomModel {
public:
    explicit RandomModel(OXMIDicMgr& manager) : _Manager(manager) {}

    void Step() {
        switch (*rc::gen::inRange(0, 30)) {
            case 0:
            case 1:
                return CreatePackage();
            case 2:
            case 3:
            case 4:
            case 5:
                return CreateElement();
            case 6:
            case 7:
            case 8:
            case 9:
            case 10:
            case 11:
                return CreateMember();
            case 12:
            case 13:
                return Derive();
            case 14:
            case 15:
            case 16:
                return LinkAttribute();
            case 17:
                return UsePackage();
            case 18:
                return AddToUnique();
            case 19:
                return Categorise();
            case 20:
                return RemoveMember();
            case 21:
                return RemoveElement();
            case 22:
                return RemovePackage();
            case 23:
                return Flush();
            case 24:
                return ChangeUuid();
            case 25:
                return Rename();
            case 26:
            case 27:
                return LetGo();
            default:
                return AskEverything();
        }
    }

    /// Asks everything of everything that is held.
    void AskEverything() {
        for (const auto& held : _HELD) {
            ZELString name;
            ZELDbBinary uuid;
            RC_ASSERT(held->GetName(&name) == S_OK);
            RC_ASSERT(held->GetUuid(&uuid) == S_OK);
            HeldList list;
            held->GetCategories(&list);
            if (const auto face = QueryFor<OXMIDicElement>(*held)) AskElement(*face);
            if (const auto face = QueryFor<OXMIDicPackage>(*held)) AskPackage(*face);
            if (const auto face = QueryFor<OXMIDicClass>(*held)) AskClass(*face);
            if (const auto face = QueryFor<OXMIDicEnum>(*held)) AskEnum(*face);
            if (const auto face = QueryFor<OXMIDicUnique>(*held)) AskList(*face, &OXMIDicUnique::GetElements);
            if (const auto face = QueryFor<OXMIDicRelationship>(*held)) AskRelationship(*face);
            if (const auto face = QueryFor<OXMIDicInverse>(*held)) AskInverse(*face);
        }
    }

    void LetGoOfAll() { _HELD.clear(); }

private:
    template <class Interface>
    Held<Interface> Pick() {
        if (_HELD.empty()) return {};
        const auto start = *rc::gen::inRange<std::size_t>(0, _HELD.size());
        for (std::size_t step = 0; step < _HELD.size(); ++step) {
            if (auto found = QueryFor<Interface>(*_HELD[(start + step) % _HELD.size()])) return found;
        }
        return {};
    }

    /// Few names, so that they clash.
    static ZELString AnyName() { return ZELString("N" + std::to_string(*rc::gen::inRange(0, 12))); }
    /// New ones mostly, but sometimes one that is taken.
    ZELDbBinary AnyUuid() {
        if (*rc::gen::inRange(0, 10) != 0) ++_LastUuid;
        return TestUuid(_LastUuid);
    }

    template <class Interface>
    void Keep(Interface* made) {
        if (made == nullptr) return;
        const Held<Interface> face(made);
        if (*rc::gen::inRange(0, 3) != 0) _HELD.push_back(QueryFor<OXMIDicElementH>(*made));
    }

    void CreatePackage() {
        const ZELString name = AnyName();
        const ZELString domain("VALKOR");
        const ZELDbBinary uuid = AnyUuid();
        OXMIDicPackage* made = nullptr;
        _Manager.CreatePackage(&name, &uuid, &domain, &made);
        if (made != nullptr) _HELD.push_back(QueryFor<OXMIDicElementH>(*made));
        const Held<OXMIDicPackage> face(made);
    }

    template <class Interface, class Owner>
    void Make(Owner& owner, HRESULT (Owner::*create)(const ZELString*, const ZELDbBinary*, Interface**)) {
        const ZELString name = AnyName();
        const ZELDbBinary uuid = AnyUuid();
        Interface* made = nullptr;
        (owner.*create)(&name, &uuid, &made);
        Keep(made);
    }

    void CreateElement() {
        const auto package = Pick<OXMIDicPackage>();
        if (!package) return;
        switch (*rc::gen::inRange(0, 5)) {
            case 0:
                return Make<OXMIDicEnum>(*package, &OXMIDicPackage::CreateEnum);
            case 1:
                return Make<OXMIDicCategory>(*package, &OXMIDicPackage::CreateCategory);
            default:
                return Make<OXMIDicClass>(*package, &OXMIDicPackage::CreateClass);
        }
    }

    void CreateMember() {
        if (const auto owner = Pick<OXMIDicEnum>(); owner && *rc::gen::inRange(0, 6) == 0) {
            return Make<OXMIDicEnumerator>(*owner, &OXMIDicEnum::CreateEnumerator);
        }
        const auto owner = Pick<OXMIDicClass>();
        if (!owner) return;
        switch (*rc::gen::inRange(0, 4)) {
            case 0:
                return Make<OXMIDicSimple>(*owner, &OXMIDicClass::CreateSimple);
            case 1:
                return Make<OXMIDicRelationship>(*owner, &OXMIDicClass::CreateRelationship);
            case 2:
                return Make<OXMIDicInverse>(*owner, &OXMIDicClass::CreateInverse);
            default:
                return Make<OXMIDicUnique>(*owner, &OXMIDicClass::CreateUnique);
        }
    }

    void Derive() {
        const auto lower = Pick<OXMIDicClass>();
        const auto upper = Pick<OXMIDicClass>();
        if (!lower) return;
        lower->SetSuperClass(upper.Get());
        if (*rc::gen::inRange(0, 2) != 0) lower->SetReference(upper.Get());
    }

    void LinkAttribute() {
        const auto relationship = Pick<OXMIDicRelationship>();
        const auto inverse = Pick<OXMIDicInverse>();
        if (!relationship || !inverse) return;
        relationship->SetInjective(1);
        relationship->SetTarget(Pick<OXMIDicClass>().Get());
        relationship->SetInvertedAttribute(inverse.Get());
        inverse->SetInverse(relationship.Get());
        inverse->SetType(Pick<OXMIDicElement>().Get());
    }

    void UsePackage() {
        const auto user = Pick<OXMIDicPackage>();
        if (!user) return;
        user->AddUsedPackage(Pick<OXMIDicPackage>().Get());
        user->AddScopePackage(Pick<OXMIDicPackage>().Get());
    }

    void AddToUnique() {
        const auto unique = Pick<OXMIDicUnique>();
        if (unique) unique->AddElement(Pick<OXMIDicElement>().Get());
    }

    void Categorise() {
        const auto object = Pick<OXMIDicElementH>();
        if (object) object->AddCategory(Pick<OXMIDicCategory>().Get());
    }

    void RemoveMember() {
        const ZELString name = AnyName();
        if (const auto owner = Pick<OXMIDicClass>()) {
            owner->RemoveElement(&name);
            owner->RemoveUnique(&name);
        }
        if (const auto owner = Pick<OXMIDicEnum>()) owner->RemoveEnumerator(&name);
    }

    void RemoveElement() {
        const ZELString name = AnyName();
        if (const auto package = Pick<OXMIDicPackage>()) package->RemoveElement(&name);
    }

    void RemovePackage() {
        const ZELString name = AnyName();
        _Manager.RemovePackage(&name);
    }

    void Flush() {
        if (*rc::gen::inRange(0, 4) == 0) {
            if (const auto package = Pick<OXMIDicPackage>()) RC_ASSERT(package->FlushAll() == S_OK);
        } else if (const auto element = Pick<OXMIDicElement>()) {
            RC_ASSERT(element->FlushAll() == S_OK);
        }
    }

    void ChangeUuid() {
        const auto object = Pick<OXMIDicElementH>();
        const ZELDbBinary uuid = AnyUuid();
        if (object) object->SetUuid(&uuid);
    }

    void Rename() {
        const auto object = Pick<OXMIDicElementH>();
        const ZELString name = AnyName();
        if (object) object->SetName(&name);
    }

    void LetGo() {
        if (_HELD.empty()) return;
        const auto index = *rc::gen::inRange<std::size_t>(0, _HELD.size());
        std::swap(_HELD[index], _HELD.back());
        _HELD.pop_back();
    }

    template <class Owner>
    static void AskList(Owner& owner, HRESULT (Owner::*get)(ZELListPtrIUnknown*)) {
        HeldList list;
        RC_ASSERT(Succeeded((owner.*get)(&list)));
        NamesOf(list);
    }

    static void AskElement(OXMIDicElement& element) {
        Held<OXMIDicPackage> package;
        ZELString name;
        const HRESULT has = element.GetPackage(package.Out());
        RC_ASSERT((has == S_OK) == (element.GetPackageName(&name) == S_OK));
    }

    void AskPackage(OXMIDicPackage& package) {
        AskList(package, &OXMIDicPackage::GetElements);
        AskList(package, &OXMIDicPackage::GetClasses);
        AskList(package, &OXMIDicPackage::GetUsedPackages);
        AskList(package, &OXMIDicPackage::GetScopePackages);
        AskList(package, &OXMIDicPackage::GetAllElements);
    }

    static void AskClass(OXMIDicClass& owner) {
        AskList(owner, &OXMIDicClass::GetClassElements);
        AskList(owner, &OXMIDicClass::GetAllElements);
        AskList(owner, &OXMIDicClass::GetSubClasses);
        AskList(owner, &OXMIDicClass::GetUniques);
        HeldList supers;
        HeldList injectives;
        Held<OXMIDicClass> superClass;
        Held<OXMIDicClass> reference;
        unsigned char extensible = 0;
        int derivable = 0;
        RC_ASSERT(owner.GetSuperClasses(&supers) == S_FALSE);
        RC_ASSERT((owner.GetSuperClass(superClass.Out()) == S_OK) == (supers.Size() != 0));
        RC_ASSERT(owner.GetInjectivesPointingOnMe(injectives) == S_OK);
        RC_ASSERT(owner.GetExtensible(&extensible) == S_FALSE);
        RC_ASSERT(owner.GetKVADerivable(&derivable) == S_FALSE);
        owner.GetReference(reference.Out());
    }

    static void AskEnum(OXMIDicEnum& owner) {
        AskList(owner, &OXMIDicEnum::GetEnumerators);
        ZELListValZELString names;
        RC_ASSERT(owner.GetEnumValues(&names) == S_OK);
    }

    static void AskRelationship(OXMIDicRelationship& relationship) {
        AskList(relationship, &OXMIDicRelationship::GetInvertedAttributes);
        Held<OXMIDicClass> target;
        Held<OXMIDicClass> origin;
        Held<OXMIDicElement> specialized;
        relationship.GetTarget(target.Out());
        relationship.GetOrigin(origin.Out());
        relationship.GetSpecializedAttribute(specialized.Out());
    }

    static void AskInverse(OXMIDicInverse& inverse) {
        Held<OXMIDicRelationship> relationship;
        Held<OXMIDicElement> type;
        inverse.GetInverse(relationship.Out());
        inverse.GetType(type.Out());
    }

    OXMIDicMgr& _Manager;
    Rows _HELD;
    unsigned _LastUuid = 1;
};

class ModelLifetimeTest : public ModelFixture {};

TEST_F(ModelLifetimeTest, NothingIsReadAfterItsEndAndNothingStaysBehind) {
    const int before = ZanDicObj::live_Objects();

    const bool holds = rc::check([&] {
        Manager().Init(0);
        RandomModel model(Manager());
        const int steps = *rc::gen::inRange(0, 400);
        for (int step = 0; step < steps; ++step) model.Step();
        model.AskEverything();
        if (*rc::gen::arbitrary<bool>()) {
            RC_ASSERT(Manager().End() == S_OK);
            model.AskEverything();
            for (int step = 0; step < 40; ++step) model.Step();
            model.AskEverything();
            model.LetGoOfAll();
        } else {
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
