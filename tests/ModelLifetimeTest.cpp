// Whatever callers do by public calls, in whatever order, and whatever they still hold: nothing is read that
// was freed, nothing stays behind, and what is gone is gone for everybody.
#include <rapidcheck.h>

#include "KindsFixture.h"

namespace {

using Rows = std::vector<Held<OXMIDicElementH>>;

/// A model that is built, held and taken apart at random.
class RandomModel {
public:
    explicit RandomModel(OXMIDicMgr& manager) : _Manager(manager) {}

    void Step() {
        switch (*rc::gen::inRange(0, 36)) {
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
            case 28:
                return LinkRBO();
            case 29:
                return AddScopes();
            case 30:
                return TypeParameter();
            case 31:
            case 32:
            case 33:
                return CreateInner();
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
            int lost = -1;
            held->GetCategories(&list);
            RC_ASSERT(held->GetLostLinks(&lost) == S_OK);
            RC_ASSERT(lost >= 0);
            if (const auto face = QueryFor<OXMIDicElement>(*held)) AskElement(*face);
            if (const auto face = QueryFor<OXMIDicPackage>(*held)) AskPackage(*face);
            if (const auto face = QueryFor<OXMIDicClass>(*held)) AskClass(*face);
            if (const auto face = QueryFor<OXMIDicEnum>(*held)) AskEnum(*face);
            if (const auto face = QueryFor<OXMIDicUnique>(*held)) AskList(*face, &OXMIDicUnique::GetElements);
            if (const auto face = QueryFor<OXMIDicRelationship>(*held)) AskRelationship(*face);
            if (const auto face = QueryFor<OXMIDicInverse>(*held)) AskInverse(*face);
            if (const auto face = QueryFor<OXMIDicInterface>(*held)) AskInterface(*face);
            if (const auto face = QueryFor<OXMIDicExtension>(*held))
                AskList(*face, &OXMIDicExtension::GetScopes);
            if (const auto face = QueryFor<OXMIDicMethod>(*held))
                AskList(*face, &OXMIDicMethod::GetParameters);
            if (const auto face = QueryFor<OXMIDicParameter>(*held)) AskParameter(*face);
            AskRBO(*held);
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
        switch (*rc::gen::inRange(0, 9)) {
            case 5:
                return Make<OXMIDicExtension>(*package, &OXMIDicPackage::CreateExtension);
            case 6:
                return Make<OXMIDicInterface>(*package, &OXMIDicPackage::CreateInterface);
            case 7:
                return Make<OXMIDicRBOClass>(*package, &OXMIDicPackage::CreateRBOClass);
            case 8:
                return Make<OXMIDicRBOMapping>(*package, &OXMIDicPackage::CreateRBOMapping);
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
        switch (*rc::gen::inRange(0, 5)) {
            case 4:
                return Make<OXMIDicMethod>(*owner, &OXMIDicClass::CreateMethod);
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

    /// Members of members, and what mappings are made of.
    void CreateInner() {
        switch (*rc::gen::inRange(0, 5)) {
            case 0:
                return MakeIn<OXMIDicMethod>(&OXMIDicMethod::CreateParameter);
            case 1:
                return MakeIn<OXMIDicRBOMapping>(&OXMIDicRBOMapping::CreateRBORoot);
            case 2:
                return MakeIn<OXMIDicRBORoot>(&OXMIDicRBORoot::CreateRBOComponent);
            case 3:
                return MakeIn<OXMIDicRBOComponent>(&OXMIDicRBOComponent::CreateRBOComponent);
            default:
                return MakeIn<OXMIDicRBOComponent>(&OXMIDicRBOComponent::CreateRBOPathExpression);
        }
    }

    template <class Owner, class Interface>
    void MakeIn(HRESULT (Owner::*create)(const ZELString*, const ZELDbBinary*, Interface**)) {
        if (const auto owner = Pick<Owner>()) Make<Interface>(*owner, create);
    }

    void LinkRBO() {
        if (const auto mapping = Pick<OXMIDicRBOMapping>()) {
            mapping->SetApplyToRBOClass(Pick<OXMIDicRBOClass>().Get());
        }
        if (const auto root = Pick<OXMIDicRBORoot>()) root->SetBaseClass(Pick<OXMIDicClass>().Get());
        if (const auto component = Pick<OXMIDicRBOComponent>()) {
            component->SetBaseClass(Pick<OXMIDicClass>().Get());
        }
        if (const auto path = Pick<OXMIDicRBOPathExpression>()) path->SetTarget(Pick<OXMIDicElement>().Get());
    }

    void AddScopes() {
        const auto scope = Pick<OXMIDicClass>();
        const auto extension = Pick<OXMIDicExtension>();
        const auto attribute = Pick<OXMIDicRelationship>();
        const bool removes = *rc::gen::inRange(0, 4) == 0;
        if (extension) removes ? extension->RemoveScope(scope.Get()) : extension->AddScope(scope.Get());
        if (attribute) removes ? attribute->RemoveScope(scope.Get()) : attribute->AddScope(scope.Get());
    }

    void TypeParameter() {
        if (const auto parameter = Pick<OXMIDicParameter>()) parameter->SetType(Pick<OXMIDicElement>().Get());
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
            owner->RemoveMethod(&name);
        }
        if (const auto owner = Pick<OXMIDicMethod>()) owner->RemoveParameter(&name);
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
        for (IUnknown* const entry : list) AssertIsThere(entry);
    }

    /// What is handed out is in the dictionary: what is gone has no package any more. Primitives and
    /// parameters never have one.
    static void AssertIsThere(IUnknown* face) {
        const auto element = face != nullptr ? QueryFor<OXMIDicElement>(*face) : Held<OXMIDicElement>();
        if (!element || QueryFor<OXMIDicPrimitive>(*element) || QueryFor<OXMIDicParameter>(*element)) return;
        ZELString package;
        RC_ASSERT(element->GetPackageName(&package) == S_OK);
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
        for (IUnknown* const entry : injectives) AssertIsThere(entry);
        for (IUnknown* const entry : supers) AssertIsThere(entry);
        RC_ASSERT(owner.GetExtensible(&extensible) == S_FALSE);
        RC_ASSERT(owner.GetKVADerivable(&derivable) == S_FALSE);
        owner.GetReference(reference.Out());
        AssertIsThere(reference.Get());
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
        for (IUnknown* const linked :
             {static_cast<IUnknown*>(target.Get()), static_cast<IUnknown*>(origin.Get()),
              static_cast<IUnknown*>(specialized.Get())}) {
            AssertIsThere(linked);
        }
        HeldList scopes;
        unsigned char inScope = 2;
        ZELDbBinary uuid;
        if (origin) origin->GetUuid(&uuid);
        RC_ASSERT(Succeeded(relationship.GetScopes(&scopes)));
        const HRESULT answer = relationship.IsClassInScope(&uuid, &inScope);
        RC_ASSERT(answer == (inScope == 1 ? S_OK : S_FALSE));
    }

    static void AskInterface(OXMIDicInterface& interface) {
        AskList(interface, &OXMIDicInterface::GetMethods);
        AskList(interface, &OXMIDicInterface::GetAllMethods);
        AskList(interface, &OXMIDicInterface::GetSuperInterfaces);
    }

    static void AskParameter(OXMIDicParameter& parameter) {
        Held<OXMIDicElement> type;
        const HRESULT answer = parameter.GetType(type.Out());
        RC_ASSERT(answer == (type ? S_OK : S_FALSE));
        AssertIsThere(type.Get());
    }

    static void AskRBO(OXMIDicElementH& object) {
        Held<OXMIDicRBOClass> applied;
        Held<OXMIDicClass> base;
        Held<OXMIDicElement> target;
        Held<OXMIDicRBOPathExpression> path;
        if (const auto face = QueryFor<OXMIDicRBOMapping>(object)) {
            AskList(*face, &OXMIDicRBOMapping::GetElements);
            const HRESULT answer = face->GetApplyToRBOClass(applied.Out());
            RC_ASSERT(answer == (applied ? S_OK : E_FAIL));
        }
        if (const auto face = QueryFor<OXMIDicRBORoot>(object)) {
            AskList(*face, &OXMIDicRBORoot::GetElements);
            const HRESULT answer = face->GetBaseClass(base.Out());
            RC_ASSERT(answer == (base ? S_OK : E_FAIL));
        }
        if (const auto face = QueryFor<OXMIDicRBOComponent>(object)) {
            AskList(*face, &OXMIDicRBOComponent::GetElements);
            face->GetBaseClass(base.Out());
            face->GetRBOPathExpression(path.Out());
        }
        if (const auto face = QueryFor<OXMIDicRBOPathExpression>(object)) face->GetTarget(target.Out());
        for (IUnknown* const linked :
             {static_cast<IUnknown*>(applied.Get()), static_cast<IUnknown*>(base.Get()),
              static_cast<IUnknown*>(target.Get()), static_cast<IUnknown*>(path.Get())}) {
            AssertIsThere(linked);
        }
    }

    static void AskInverse(OXMIDicInverse& inverse) {
        Held<OXMIDicRelationship> relationship;
        Held<OXMIDicElement> type;
        inverse.GetInverse(relationship.Out());
        inverse.GetType(type.Out());
        AssertIsThere(relationship.Get());
        AssertIsThere(type.Get());
    }

    OXMIDicMgr& _Manager;
    Rows _HELD;
    unsigned _LastUuid = 1;
};

class ModelLifetimeTest : public KindsFixture {};

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
