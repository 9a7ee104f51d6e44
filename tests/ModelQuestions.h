/// Every question that the interfaces of the dictionary answer, asked of one object, and what must hold of
/// the answers whatever has happened to the model: for property tests.
#ifndef MODEL_QUESTIONS_H
#define MODEL_QUESTIONS_H

#include <rapidcheck.h>

#include <utility>
#include <vector>

#include "KindsFixture.h"
#include "OXMIDicAttributeBlock.h"
#include "OXMIDicBOLink.h"
#include "OXMIDicBObject.h"

/// Asks objects of one manager. A broken promise fails the property.
class ModelQuestions {
public:
    explicit ModelQuestions(OXMIDicMgr& manager) : _Manager(manager) {}

    void AskManager(const ZELString& name) const {
        HeldList packages;
        HeldList named;
        RC_ASSERT(_Manager.GetPackages(&packages) == S_OK);
        for (IUnknown* const package : packages)
            RC_ASSERT(static_cast<bool>(QueryFor<OXMIDicPackage>(*package)));
        _Manager.SearchByName(&name, &named);
        AssertAreThere(named);
    }

    /// \param name a name to look for wherever something is found by name.
    void Ask(OXMIDicElementH& object, const ZELString& name) const {
        AskAnyObject(object, name);
        if (const auto face = QueryFor<OXMIDicAttributeBlock>(object)) AskBlock(*face);
        if (const auto face = QueryFor<OXMIDicElement>(object)) AskElement(*face);
        if (const auto face = QueryFor<OXMIDicPackage>(object)) AskPackage(*face, name);
        if (const auto face = QueryFor<OXMIDicClass>(object)) AskClass(*face, name);
        if (const auto face = QueryFor<OXMIDicEnum>(object)) AskEnum(*face);
        if (const auto face = QueryFor<OXMIDicUnique>(object)) AskList(*face, &OXMIDicUnique::GetElements);
        if (const auto face = QueryFor<OXMIDicAttribute>(object)) AskAttribute(*face);
        if (const auto face = QueryFor<OXMIDicSimple>(object)) AskSimple(*face);
        if (const auto face = QueryFor<OXMIDicRelationship>(object)) AskRelationship(*face);
        if (const auto face = QueryFor<OXMIDicInverse>(object)) AskInverse(*face);
        if (const auto face = QueryFor<OXMIDicInterface>(object)) AskInterface(*face, name);
        if (const auto face = QueryFor<OXMIDicExtension>(object))
            AskList(*face, &OXMIDicExtension::GetScopes);
        if (const auto face = QueryFor<OXMIDicMethod>(object)) AskMethod(*face, name);
        if (const auto face = QueryFor<OXMIDicParameter>(object)) AskParameter(*face);
        if (const auto face = QueryFor<OXMIDicCommand>(object)) AskCommand(*face);
        AskRBO(object);
    }

    /// Whether no factory makes objects of this kind.
    static bool IsConstructedByCallers(IUnknown& face) {
        return QueryFor<OXMIDicCommand>(face) || QueryFor<OXMIDicCommandParameter>(face) ||
               QueryFor<OXMIDicBObject>(face) || QueryFor<OXMIDicBOLink>(face);
    }

private:
    /// What is handed out is in the dictionary: what is gone has no package any more, and a block that is
    /// gone is not registered. Primitives, parameters and what callers construct never have a package.
    void AssertIsThere(IUnknown* face) const {
        if (face == nullptr) return;
        if (QueryFor<OXMIDicAttributeBlock>(*face)) return RC_ASSERT(IsRegistered(*face));
        const auto element = QueryFor<OXMIDicElement>(*face);
        if (!element || QueryFor<OXMIDicPrimitive>(*element) || QueryFor<OXMIDicParameter>(*element) ||
            IsConstructedByCallers(*element)) {
            return;
        }
        ZELString package;
        RC_ASSERT(element->GetPackageName(&package) == S_OK);
    }

    bool IsRegistered(IUnknown& face) const {
        ZELDbBinary uuid;
        Held<OXMIDicElementH> found;
        QueryFor<OXMIDicElementH>(face)->GetUuid(&uuid);
        return _Manager.Search(&uuid, found.Out()) == S_OK && SameObject(*found, face);
    }

    void AssertAreThere(const HeldList& list) const {
        for (IUnknown* const entry : list) AssertIsThere(entry);
    }

    template <class Owner, class Declared>
    void AskList(Owner& owner, HRESULT (Declared::*get)(ZELListPtrIUnknown*)) const {
        HeldList list;
        RC_ASSERT(Succeeded((owner.*get)(&list)));
        AssertAreThere(list);
    }

    /// Asks for one linked object. \returns the result; something is handed out exactly when it is S_OK, and
    /// is there.
    template <class Owner, class Declared, class Interface>
    HRESULT AskOne(Owner& owner, HRESULT (Declared::*get)(Interface**)) const {
        Held<Interface> found;
        const HRESULT answer = (owner.*get)(found.Out());
        RC_ASSERT((answer == S_OK) == static_cast<bool>(found));
        AssertIsThere(found.Get());
        return answer;
    }

    /// As AskOne, for one that belongs to \p key.
    template <class Interface, class Owner, class Key>
    HRESULT Find(Owner& owner, HRESULT (Owner::*get)(const Key*, Interface**), const Key* key) const {
        Held<Interface> found;
        const HRESULT answer = (owner.*get)(key, found.Out());
        RC_ASSERT((answer == S_OK) == static_cast<bool>(found));
        AssertIsThere(found.Get());
        return answer;
    }

    /// What is found among the own ones is also found when others are asked as well.
    template <class Interface, class Owner>
    void AskByName(Owner& owner, HRESULT (Owner::*own)(const ZELString*, Interface**),
                   HRESULT (Owner::*any)(const ZELString*, Interface**), const ZELString& name) const {
        const HRESULT here = Find(owner, own, &name);
        const HRESULT anywhere = Find(owner, any, &name);
        RC_ASSERT(Failed(here) || Succeeded(anywhere));
    }

    void AskAnyObject(OXMIDicElementH& object, const ZELString& wanted) const {
        ZELString name;
        ZELDbBinary uuid;
        OXMDicTYPE type{};
        HeldList categories;
        unsigned char isCategory = 0;
        int lost = -1;
        RC_ASSERT(object.GetName(&name) == S_OK);
        RC_ASSERT(object.GetUuid(&uuid) == S_OK);
        RC_ASSERT(object.GetType(&type) == S_OK);
        RC_ASSERT(object.GetLostLinks(&lost) == S_OK);
        RC_ASSERT(lost >= 0);
        const HRESULT had = object.GetCategories(&categories);
        RC_ASSERT(had == object.IsCategory(&wanted, &isCategory));
        RC_ASSERT(had == S_OK || (categories.Size() == 0 && isCategory == 0));
        AssertAreThere(categories);
    }

    void AskElement(OXMIDicElement& element) const {
        ZELString name;
        OXMDicVISIBILITY visibility{};
        const HRESULT has = AskOne(element, &OXMIDicElement::GetPackage);
        RC_ASSERT((has == S_OK) == (element.GetPackageName(&name) == S_OK));
        RC_ASSERT(element.GetVisibility(&visibility) == S_OK);
    }

    void AskPackage(OXMIDicPackage& package, const ZELString& name) const {
        AskList(package, &OXMIDicPackage::GetElements);
        AskList(package, &OXMIDicPackage::GetClasses);
        AskList(package, &OXMIDicPackage::GetUsedPackages);
        AskList(package, &OXMIDicPackage::GetScopePackages);
        AskList(package, &OXMIDicPackage::GetAllElements);
        AskList(package, &OXMIDicPackage::GetCommands);
        AskByName<OXMIDicElement>(package, &OXMIDicPackage::GetElement, &OXMIDicPackage::GetElementR, name);
        Held<OXMIDicRBOClass> rboClass;
        if (Failed(package.GetRBOClass(&name, rboClass.Out()))) return;
        AssertIsThere(rboClass.Get());
        Find<OXMIDicRBOMapping, OXMIDicPackage, OXMIDicRBOClass>(package, &OXMIDicPackage::GetRBOMapping,
                                                                 rboClass.Get());
    }

    void AskClass(OXMIDicClass& owner, const ZELString& name) const {
        AskList(owner, &OXMIDicClass::GetClassElements);
        AskList(owner, &OXMIDicClass::GetAllElements);
        AskList(owner, &OXMIDicClass::GetSubClasses);
        AskList(owner, &OXMIDicClass::GetUniques);
        AskList(owner, &OXMIDicClass::GetMethods);
        AskList(owner, &OXMIDicClass::GetAllMethods);
        AskByName<OXMIDicElement>(owner, &OXMIDicClass::GetClassElement, &OXMIDicClass::GetElement, name);
        AskByName<OXMIDicMethod>(owner, &OXMIDicClass::GetClassMethod, &OXMIDicClass::GetMethod, name);
        HeldList supers;
        HeldList injectives;
        ZELString superName;
        unsigned char extensible = 0;
        int derivable = 0;
        RC_ASSERT(owner.GetSuperClasses(&supers) == S_FALSE);
        const HRESULT hasSuper = AskOne(owner, &OXMIDicClass::GetSuperClass);
        RC_ASSERT((hasSuper == S_OK) == (supers.Size() != 0));
        RC_ASSERT(owner.GetSuperName(&superName) == hasSuper);
        RC_ASSERT(owner.GetInjectivesPointingOnMe(injectives) == S_OK);
        AssertAreThere(injectives);
        AssertAreThere(supers);
        RC_ASSERT(owner.GetExtensible(&extensible) == S_FALSE);
        RC_ASSERT(owner.GetKVADerivable(&derivable) == S_FALSE);
        RC_ASSERT(owner.GetClassExtensible(&extensible) == S_FALSE);
        RC_ASSERT(owner.GetClassKVADerivable(&derivable) == S_FALSE);
        AskOne(owner, &OXMIDicClass::GetReference);
        AskBlocksOf(owner, name);
    }

    void AskBlocksOf(OXMIDicClass& owner, const ZELString& name) const {
        HeldList visible;
        HeldList again;
        unsigned char hasBlocks = 2;
        RC_ASSERT(owner.GetAttBlocks(&visible) == S_OK);
        RC_ASSERT(owner.GetAllAttributeBlockList(&again) == S_OK);
        RC_ASSERT(owner.HasAttBlocks(&hasBlocks) == S_OK);
        RC_ASSERT(visible.Size() == again.Size());
        RC_ASSERT(hasBlocks == (visible.Size() != 0 ? 1 : 0));
        AssertAreThere(visible);
        AssertOneBlockOfEachRoot(visible);
        AskList(owner, &OXMIDicClass::GetClassAttBlocks);
        Find(owner, &OXMIDicClass::GetAttBlock, &name);
        Find(owner, &OXMIDicClass::GetAttBlockForAtt, &name);
        Held<OXMIDicAttributeBlock> defaultBlock;
        const HRESULT answer = owner.GetCBlockForAtt(nullptr, 0, defaultBlock.Out());
        RC_ASSERT((answer == S_OK) == static_cast<bool>(defaultBlock));
        AssertIsThere(defaultBlock.Get());
    }

    /// A block without a root stands for itself.
    static void AssertOneBlockOfEachRoot(const HeldList& blocks) {
        std::vector<Held<OXMIDicElementH>> roots;  // held: an interface is told by its address
        for (IUnknown* const entry : blocks) {
            const auto block = QueryFor<OXMIDicAttributeBlock>(*entry);
            Held<OXMIDicAttributeBlock> root;
            const bool hasRoot = block->GetRoot(root.Out()) == S_OK;
            auto standsFor = QueryFor<OXMIDicElementH>(hasRoot ? static_cast<IUnknown&>(*root) : *entry);
            for (const auto& other : roots) RC_ASSERT(other.Get() != standsFor.Get());
            roots.push_back(std::move(standsFor));
        }
    }

    void AskBlock(OXMIDicAttributeBlock& block) const {
        AskList(block, &OXMIDicAttributeBlock::GetAttributes);
        AskOne(block, &OXMIDicAttributeBlock::GetClass);
        AskOne(block, &OXMIDicAttributeBlock::GetFather);
        AskOne(block, &OXMIDicAttributeBlock::GetRoot);
    }

    void AskEnum(OXMIDicEnum& owner) const {
        AskList(owner, &OXMIDicEnum::GetEnumerators);
        ZELListValZELString names;
        RC_ASSERT(owner.GetEnumValues(&names) == S_OK);
    }

    void AskAttribute(OXMIDicAttribute& attribute) const {
        AskOne(attribute, &OXMIDicAttribute::GetOrigin);
        AskOne(attribute, &OXMIDicAttribute::GetSpecializedAttribute);
        Held<OXMIDicElement> type;
        attribute.GetType(type.Out());
        AssertIsThere(type.Get());
    }

    void AskSimple(OXMIDicSimple& simple) const { AskOne(simple, &OXMIDicSimple::GetPrimitive); }

    void AskRelationship(OXMIDicRelationship& relationship) const {
        AskList(relationship, &OXMIDicRelationship::GetInvertedAttributes);
        AskList(relationship, &OXMIDicRelationship::GetScopes);
        AskOne(relationship, &OXMIDicRelationship::GetTarget);
        Held<OXMIDicClass> origin;
        unsigned char inScope = 2;
        ZELDbBinary uuid;
        if (relationship.GetOrigin(origin.Out()) == S_OK) origin->GetUuid(&uuid);
        const HRESULT answer = relationship.IsClassInScope(&uuid, &inScope);
        RC_ASSERT(answer == (inScope == 1 ? S_OK : S_FALSE));
    }

    void AskInverse(OXMIDicInverse& inverse) const {
        Held<OXMIDicRelationship> relationship;
        inverse.GetInverse(relationship.Out());
        AssertIsThere(relationship.Get());
    }

    void AskInterface(OXMIDicInterface& owner, const ZELString& name) const {
        AskList(owner, &OXMIDicInterface::GetMethods);
        AskList(owner, &OXMIDicInterface::GetAllMethods);
        AskList(owner, &OXMIDicInterface::GetSuperInterfaces);
        AskOne(owner, &OXMIDicInterface::GetSuperInterface);
        AskByName<OXMIDicMethod>(owner, &OXMIDicInterface::GetClassMethod, &OXMIDicInterface::GetMethod,
                                 name);
    }

    void AskMethod(OXMIDicMethod& method, const ZELString& name) const {
        AskList(method, &OXMIDicMethod::GetParameters);
        Find(method, &OXMIDicMethod::GetParameter, &name);
    }

    void AskParameter(OXMIDicParameter& parameter) const {
        Held<OXMIDicElement> type;
        const HRESULT answer = parameter.GetType(type.Out());
        RC_ASSERT(answer == (type ? S_OK : S_FALSE));
        AssertIsThere(type.Get());
    }

    /// The retired kind refuses everything.
    static void AskCommand(OXMIDicCommand& command) {
        Held<OXMIDicClass> target;
        HeldList elements;
        RC_ASSERT(command.GetTarget(target.Out()) == E_FAIL);
        RC_ASSERT(command.GetElements(&elements) == E_FAIL);
        RC_ASSERT(elements.Size() == 0);
    }

    void AskRBO(OXMIDicElementH& object) const {
        if (const auto face = QueryFor<OXMIDicRBOMapping>(object)) {
            AskList(*face, &OXMIDicRBOMapping::GetElements);
            RC_ASSERT(AskOne(*face, &OXMIDicRBOMapping::GetApplyToRBOClass) != S_FALSE);
        }
        if (const auto face = QueryFor<OXMIDicRBORoot>(object)) {
            AskList(*face, &OXMIDicRBORoot::GetElements);
            RC_ASSERT(AskOne(*face, &OXMIDicRBORoot::GetBaseClass) != S_FALSE);
        }
        if (const auto face = QueryFor<OXMIDicRBOComponent>(object)) {
            AskList(*face, &OXMIDicRBOComponent::GetElements);
            AskOne(*face, &OXMIDicRBOComponent::GetBaseClass);
            AskOne(*face, &OXMIDicRBOComponent::GetRBOPathExpression);
        }
        if (const auto face = QueryFor<OXMIDicRBOPathExpression>(object)) {
            AskOne(*face, &OXMIDicRBOPathExpression::GetTarget);
        }
    }

    OXMIDicMgr& _Manager;
};

#endif
