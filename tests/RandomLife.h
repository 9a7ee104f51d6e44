/// The life of a model that property tests build, link and take apart at random, through the public
/// interfaces only.
#ifndef RANDOM_LIFE_H
#define RANDOM_LIFE_H

#include <rapidcheck.h>

#include <iterator>
#include <string>
#include <utility>
#include <vector>

#include "KindsFixture.h"
#include "ModelQuestions.h"
#include "OXMIDicAttributeBlock.h"
#include "ZanDicBOLink.h"
#include "ZanDicBObject.h"
#include "ZanDicCommand.h"
#include "ZanDicCommandParameter.h"

using Rows = std::vector<Held<OXMIDicElementH>>;

/// A model that is built, held and taken apart at random.
class RandomLife {
public:
    explicit RandomLife(OXMIDicMgr& manager) : _Manager(manager) {}

    void Step() {
        static constexpr Row kSteps[] = {
            {2, &RandomLife::CreatePackage},   {4, &RandomLife::CreateElement},
            {6, &RandomLife::CreateMember},    {3, &RandomLife::CreateInner},
            {1, &RandomLife::Construct},       {2, &RandomLife::CreateBlock},
            {3, &RandomLife::ExtendBlock},     {1, &RandomLife::MakeDefaultBlock},
            {3, &RandomLife::Derive},          {3, &RandomLife::LinkAttribute},
            {1, &RandomLife::TypeAttribute},   {1, &RandomLife::UsePackage},
            {1, &RandomLife::AddToUnique},     {1, &RandomLife::Categorise},
            {1, &RandomLife::UseCommand},      {1, &RandomLife::LinkRBO},
            {1, &RandomLife::StoreReferences}, {1, &RandomLife::AddScopes},
            {1, &RandomLife::TypeParameter},   {1, &RandomLife::LinkBlock},
            {1, &RandomLife::BuildBlock},      {2, &RandomLife::ComputeBlocks},
            {1, &RandomLife::RemoveMember},    {1, &RandomLife::RemoveElement},
            {1, &RandomLife::RemovePackage},   {1, &RandomLife::Flush},
            {1, &RandomLife::ChangeUuid},      {1, &RandomLife::Rename},
            {2, &RandomLife::LetGo},           {2, &RandomLife::AskEverything},
        };
        int sum = 0;
        for (const Row& row : kSteps) sum += row.weight;
        int number = Below(static_cast<std::size_t>(sum));
        for (const Row& row : kSteps) {
            if (number < row.weight) return (this->*row.step)();
            number -= row.weight;
        }
    }

    /// Asks everything of everything that is held.
    void AskEverything() {
        const ModelQuestions questions(_Manager);
        questions.AskManager(AnyName());
        for (const auto& held : _HELD) questions.Ask(*held, AnyName());
    }

    void LetGoOfAll() { _HELD.clear(); }

    void RemoveAllPackages() {
        for (int number = 0; number < kNames; ++number) {
            const ZELString name = Numbered(number);
            _Manager.RemovePackage(&name);
        }
    }

    /// \returns how many objects of callers only the manager's End gives back.
    int LeftToManager() const { return _LeftToManager; }

private:
    /// A step, and how often it is taken compared with others.
    struct Row {
        int weight;
        void (RandomLife::*step)();
    };

    /// Each of 0 to \p bound - 1 alike, in small models as in large ones. Every choice is of this one type,
    /// so that a life that fails can be made shorter.
    static int Below(std::size_t bound) {
        return *rc::gen::resize(rc::kNominalSize, rc::gen::inRange(0, static_cast<int>(bound)));
    }

    template <class Interface>
    Held<Interface> Pick() {
        if (_HELD.empty()) return {};
        const auto start = static_cast<std::size_t>(Below(_HELD.size()));
        for (std::size_t step = 0; step < _HELD.size(); ++step) {
            if (auto found = QueryFor<Interface>(*_HELD[(start + step) % _HELD.size()])) return found;
        }
        return {};
    }

    /// Few names, so that they clash.
    static constexpr int kNames = 12;
    static ZELString Numbered(int number) { return ZELString("N" + std::to_string(number)); }
    static ZELString AnyName() { return Numbered(Below(kNames)); }
    /// New ones mostly, but sometimes one that is taken.
    ZELDbBinary AnyUuid() {
        if (Below(10) != 0) ++_LastUuid;
        return TestUuid(_LastUuid);
    }

    template <class Interface>
    void Keep(Interface* made) {
        if (made == nullptr) return;
        const Held<Interface> face(made);
        if (Below(3) != 0) _HELD.push_back(QueryFor<OXMIDicElementH>(*made));
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
        switch (Below(9)) {
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
        if (const auto owner = Pick<OXMIDicEnum>(); owner && Below(6) == 0) {
            return Make<OXMIDicEnumerator>(*owner, &OXMIDicEnum::CreateEnumerator);
        }
        // Members of a command have no package.
        if (const auto owner = Pick<OXMIDicInterface>();
            owner && !QueryFor<OXMIDicCommand>(*owner) && Below(6) == 0) {
            return Make<OXMIDicMethod>(*owner, &OXMIDicInterface::CreateMethod);
        }
        const auto owner = Pick<OXMIDicClass>();
        if (!owner || QueryFor<OXMIDicCommand>(*owner)) return;
        switch (Below(5)) {
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
        switch (Below(5)) {
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

    /// What no factory makes: callers construct it. Registered by a UUID of its own, it is the manager's,
    /// whose End gives the creator's reference back.
    void Construct() {
        const ZELString name = AnyName();
        switch (Below(4)) {
            case 0:
                return Construct<ZanDicCommand, OXMIDicCommand>(name);
            case 1:
                return Construct<ZanDicCommandParameter, OXMIDicCommandParameter>(name);
            case 2:
                return Construct<ZanDicBObject, OXMIDicBObject>(name);
            default:
                return Construct<ZanDicBOLink, OXMIDicBOLink>(name);
        }
    }

    template <class Object, class Interface>
    void Construct(const ZELString& name) {
        Held<Object> object(new Object(name, AnyUuid()));
        void* face = nullptr;
        RC_ASSERT(object->bind_Interface(OXMDicTYPE_UNDEFINED, &face) == S_OK);
        const Held<Interface> made(static_cast<Interface*>(face));
        _HELD.push_back(QueryFor<OXMIDicElementH>(*made));
        if (Below(3) == 0) return;
        const ZELDbBinary uuid = TestUuid(++_LastUuid);
        made->SetUuid(&uuid);
        object.Detach();
        ++_LeftToManager;
    }

    void UseCommand() {
        const auto package = Pick<OXMIDicPackage>();
        if (!package) return;
        const auto command = Pick<OXMIDicCommand>();
        Below(4) == 0 ? package->RemoveCommand(command.Get()) : package->AddCommand(command.Get());
    }

    Held<OXMIDicAttributeBlock> CreateBlock(OXMIDicClass* owner) {
        const auto package = Pick<OXMIDicPackage>();
        if (!package) return {};
        const ZELString name = AnyName();
        const ZELDbBinary uuid = AnyUuid();
        Held<OXMIDicAttributeBlock> block;
        if (Failed(package->CreateAttributeBlock(&uuid, block.Out()))) return {};
        if (Below(3) != 0) block->SetName(&name);
        block->SetClass(owner);
        for (int count = Below(4); count > 0; --count) {
            block->AddAttribute(Pick<OXMIDicAttribute>().Get());
        }
        if (Below(3) != 0) _HELD.push_back(QueryFor<OXMIDicElementH>(*block));
        return block;
    }

    void CreateBlock() { CreateBlock(Pick<OXMIDicClass>().Get()); }

    /// A block of a class and one of a class below that extends it, computed together: each perhaps by
    /// another package than that of its class.
    void ExtendBlock() {
        const auto upper = Pick<OXMIDicClass>();
        const auto lower = Pick<OXMIDicClass>();
        const auto package = Pick<OXMIDicPackage>();
        if (!upper || !lower || !package) return;
        lower->SetSuperClass(upper.Get());
        const auto father = CreateBlock(upper.Get());
        const auto block = CreateBlock(lower.Get());
        if (!father || !block) return;
        RC_ASSERT(block->SetFather(father.Get()) == S_OK);
        RC_ASSERT(father->SetFather(block.Get()) == E_FAIL);
        ZELListPtrIUnknown blocks;
        blocks.Append(father.Get());
        blocks.Append(block.Get());
        package->ComputeAttributeBlocks(&blocks);
    }

    void MakeDefaultBlock() {
        const auto owner = Pick<OXMIDicClass>();
        if (!owner) return;
        const ZELString name = AnyName();
        const bool isNamed = Below(2) == 0;
        OXMIDicAttributeBlock* made = nullptr;
        owner->GetCBlockForAtt(isNamed ? &name : nullptr, 1, &made);
        Keep(made);
    }

    void LinkBlock() {
        const auto block = Pick<OXMIDicAttributeBlock>();
        if (!block) return;
        switch (Below(4)) {
            case 0:
                block->SetFather(Pick<OXMIDicAttributeBlock>().Get());
                return;
            case 1:
                block->SetRoot(Pick<OXMIDicAttributeBlock>().Get());
                return;
            case 2:
                block->SetClass(Pick<OXMIDicClass>().Get());
                return;
            default:
                block->AddAttribute(Pick<OXMIDicAttribute>().Get());
        }
    }

    void BuildBlock() {
        const auto block = Pick<OXMIDicAttributeBlock>();
        const auto owner = Pick<OXMIDicClass>();
        if (!block) return;
        const ZELString name = AnyName();
        if (owner && Below(3) == 0) owner->RegisterBlockByName(block.Get(), &name);
        static constexpr HRESULT (OXMIDicAttributeBlock::*kBuilds[])() = {
            &OXMIDicAttributeBlock::BuildName, &OXMIDicAttributeBlock::BuildRoot,
            &OXMIDicAttributeBlock::BuildFather, &OXMIDicAttributeBlock::BuildAllAttributes};
        (block.Get()->*kBuilds[Below(std::size(kBuilds))])();
    }

    void ComputeBlocks() {
        const auto package = Pick<OXMIDicPackage>();
        if (!package) return;
        HeldList list;
        for (int count = Below(5); count > 0; --count) {
            const auto block = Pick<OXMIDicAttributeBlock>();
            if (!block) break;
            block->AddRef();
            list.Append(block.Get());
        }
        package->ComputeAttributeBlocks(&list);
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

    void StoreReferences() {
        const ZELDbBinary uuid = AnyUuid();
        const ZELUnicodeString name("N1");
        if (const auto mapping = Pick<OXMIDicRBOMapping>()) {
            mapping->SetApplyToRBOClassRef(&uuid);
            mapping->SetApplyToRBOClassName(&name);
        }
        if (const auto root = Pick<OXMIDicRBORoot>()) root->SetBaseClassRef(&uuid);
        if (const auto component = Pick<OXMIDicRBOComponent>()) {
            component->SetBaseClassRef(&uuid);
            component->SetValidityRule(&name);
        }
        if (const auto path = Pick<OXMIDicRBOPathExpression>()) path->SetTargetRef(&uuid);
    }

    void AddScopes() {
        const auto scope = Pick<OXMIDicClass>();
        const auto extension = Pick<OXMIDicExtension>();
        const auto attribute = Pick<OXMIDicRelationship>();
        const bool removes = Below(4) == 0;
        if (extension) removes ? extension->RemoveScope(scope.Get()) : extension->AddScope(scope.Get());
        if (attribute) removes ? attribute->RemoveScope(scope.Get()) : attribute->AddScope(scope.Get());
    }

    void TypeParameter() {
        if (const auto parameter = Pick<OXMIDicParameter>()) parameter->SetType(Pick<OXMIDicElement>().Get());
    }

    void Derive() {
        const auto lower = Pick<OXMIDicClass>();
        const auto upper = Pick<OXMIDicClass>();
        if (lower) lower->SetSuperClass(upper.Get());
        if (lower && Below(2) != 0) lower->SetReference(upper.Get());
        const auto interface = Pick<OXMIDicInterface>();
        if (interface) interface->SetSuperInterface(Pick<OXMIDicInterface>().Get());
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

    void TypeAttribute() {
        const auto attribute = Pick<OXMIDicAttribute>();
        const auto simple = Pick<OXMIDicSimple>();
        if (attribute) attribute->SetMultiValuated(static_cast<unsigned char>(Below(2)));
        if (!simple) return;
        Held<OXMIDicPrimitive> primitive;
        _Manager.GetPrimitive(OXMDicPRIMITIVEType_Integer, primitive.Out());  // none after the manager's End
        simple->SetType(Pick<OXMIDicEnum>().Get());
        if (Below(2) != 0) simple->SetPrimitive(primitive.Get());
    }

    void UsePackage() {
        const auto user = Pick<OXMIDicPackage>();
        if (!user) return;
        user->AddUsedPackage(Pick<OXMIDicPackage>().Get());
        user->AddScopePackage(Pick<OXMIDicPackage>().Get());
    }

    void AddToUnique() {
        const auto unique = Pick<OXMIDicUnique>();
        if (!unique) return;
        const auto element = Pick<OXMIDicElement>();
        Below(4) == 0 ? unique->RemoveElement(element.Get()) : unique->AddElement(element.Get());
    }

    void Categorise() {
        const auto object = Pick<OXMIDicElementH>();
        if (!object) return;
        const auto category = Pick<OXMIDicCategory>();
        Below(4) == 0 ? object->RemoveCategory(category.Get()) : object->AddCategory(category.Get());
    }

    void RemoveMember() {
        const ZELString name = AnyName();
        if (const auto owner = Pick<OXMIDicClass>()) {
            owner->RemoveElement(&name);
            owner->RemoveUnique(&name);
            owner->RemoveMethod(&name);
        }
        if (const auto owner = Pick<OXMIDicInterface>()) owner->RemoveMethod(&name);
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
        if (Below(4) == 0) {
            if (const auto package = Pick<OXMIDicPackage>()) RC_ASSERT(package->FlushAll() == S_OK);
        } else if (const auto element = Pick<OXMIDicElement>()) {
            RC_ASSERT(element->FlushAll() == S_OK);
        }
    }

    /// The new UUID of a block and of what callers constructed is never taken: both stay registered.
    void ChangeUuid() {
        const auto object = Pick<OXMIDicElementH>();
        if (!object) return;
        if (QueryFor<OXMIDicAttributeBlock>(*object) || ModelQuestions::IsConstructedByCallers(*object)) {
            RC_ASSERT(object->GenUuid() == S_OK);
        } else {
            const ZELDbBinary uuid = AnyUuid();
            object->SetUuid(&uuid);
        }
    }

    void Rename() {
        const auto object = Pick<OXMIDicElementH>();
        const ZELString name = AnyName();
        if (object) object->SetName(&name);
    }

    void LetGo() {
        if (_HELD.empty()) return;
        const auto index = static_cast<std::size_t>(Below(_HELD.size()));
        std::swap(_HELD[index], _HELD.back());
        _HELD.pop_back();
    }

    OXMIDicMgr& _Manager;
    Rows _HELD;
    unsigned _LastUuid = 1;
    int _LeftToManager = 0;
};

#endif
