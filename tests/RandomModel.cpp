#include "RandomModel.h"

#include <iterator>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "DictionaryFixture.h"
#include "OXMIDicCategory.h"
#include "OXMIDicClass.h"
#include "OXMIDicEnum.h"
#include "OXMIDicEnumerator.h"
#include "OXMIDicExtension.h"
#include "OXMIDicInterface.h"
#include "OXMIDicInverse.h"
#include "OXMIDicMethod.h"
#include "OXMIDicPackage.h"
#include "OXMIDicParameter.h"
#include "OXMIDicPrimitive.h"
#include "OXMIDicRBOClass.h"
#include "OXMIDicRBOComponent.h"
#include "OXMIDicRBOMapping.h"
#include "OXMIDicRBOPathExpression.h"
#include "OXMIDicRBORoot.h"
#include "OXMIDicRelationship.h"
#include "OXMIDicSimple.h"
#include "OXMIDicUnique.h"
#include "RandomDraws.h"
#include "ZANDicTags.h"

namespace {

namespace tag = ZANDicFormat::tag;
namespace word = ZANDicFormat::word;

class RandomModel : private RandomDraws {
public:
    RandomModel(OXMIDicMgr& manager, const Choice& choice, std::optional<Loss> drawn)
        : RandomDraws(choice, drawn), _Manager(manager) {}

    void Make() {
        _Domain = Lose(Loss::Domain) ? "OTHER" : Chance(4) ? "DUVRA" : "VALKOR";
        for (const char* const name : {"Base", "Scope", "Top"}) {
            _PACKAGES.push_back(Package(name));
            if (_PACKAGES.size() == 2 && Chance(2)) Use(kScope, kBase);
            if (_PACKAGES.size() == 3) {
                Use(kTop, kBase);
                _PACKAGES[kTop]->AddScopePackage(_PACKAGES[kScope].Get());
                _Uses[kTop][kScope] = true;
            }
            Fill(*_PACKAGES.back());
        }
        if (Chance(3)) CloseRing();
        if (Lose(Loss::UnlistedPackage)) _PACKAGES[kTop]->AddUsedPackage(Package("two words").Get());
        if (Lose(Loss::PackageName)) Package("a.b");
    }

private:
    enum Place { kBase, kScope, kTop, kPlaces };

    /// One row a kind of top-level element, as often as it is to come.
    struct KindRow {
        int weight;
        void (RandomModel::*make)(OXMIDicPackage& package);
    };
    static const KindRow kKinds[7];

    ZELDbBinary NextUuid() { return TestUuid(++_Number); }
    /// A hostile name that nothing else has.
    ZELString NextName() {
        if (Lose(Loss::EmptyName)) return ZELString("");
        return ZELString(HostileText() + "#" + std::to_string(_Number));
    }

    /// \returns one of \p list that an element of \p package may name; null when the one drawn may not.
    template <class Interface>
    Interface* Any(OXMIDicPackage& package, const std::vector<Held<Interface>>& list) {
        if (list.empty()) return nullptr;
        Interface& drawn = *list[static_cast<std::size_t>(Draw(static_cast<int>(list.size())))];
        return MayRefer(package, drawn) ? &drawn : nullptr;
    }

    // Packages.

    Held<OXMIDicPackage> Package(const char* name) {
        const ZELString packageName(name);
        const ZELString domain(_Domain);
        const ZELDbBinary uuid = NextUuid();
        Held<OXMIDicPackage> package;
        _Manager.CreatePackage(&packageName, &uuid, &domain, package.Out());
        return package;
    }

    void Use(Place user, Place used) {
        _PACKAGES[user]->AddUsedPackage(_PACKAGES[used].Get());
        _Uses[user][used] = true;
    }

    /// Lets the first package use the last one, and refer to it.
    void CloseRing() {
        Use(kBase, kTop);
        for (const Held<OXMIDicRelationship>& relationship : _UNTARGETED) {
            if (PlaceOf(*relationship) != kBase) continue;
            OXMIDicClass* const target = Any(*_PACKAGES[kBase], _CLASSES);
            if (target != nullptr) relationship->SetTarget(target);
        }
    }

    Place PlaceOf(OXMIDicElement& element) {
        ZELString name;
        element.GetPackageName(&name);
        return name == ZELString("Base") ? kBase : name == ZELString("Scope") ? kScope : kTop;
    }

    /// Whether an element of \p package may name the other one: within a package, and of one that it uses.
    bool MayRefer(OXMIDicPackage& package, OXMIDicElement& other) {
        ZELString name;
        package.GetName(&name);
        const Place from = name == ZELString("Base") ? kBase : name == ZELString("Scope") ? kScope : kTop;
        const Place to = PlaceOf(other);
        return from == to || _Uses[from][to] || Lose(Loss::UnusedPackage);
    }

    void Fill(OXMIDicPackage& package) {
        Text(package, &OXMIDicPackage::SetAlias);
        Text(package, &OXMIDicPackage::SetExpositionLevel);
        Free(tag::kPackage, package);
        if (Chance(3)) package.SetOtherAttribute("Version", "7");
        int weights = 0;
        for (const KindRow& row : kKinds) weights += row.weight;
        for (int count = Draw(14); count > 0; --count) {
            int place = Draw(weights);
            const KindRow* row = kKinds;
            for (; place >= row->weight; ++row) place -= row->weight;
            (this->*row->make)(package);
        }
    }

    // Properties.

    /// What every element may have, as far as it is saved.
    void Common(std::string_view tagName, OXMIDicPackage& package, OXMIDicElement& element) {
        if (IsSaved(tagName, word::kAlias)) Text(element, &OXMIDicElement::SetAlias);
        if (IsSaved(tagName, word::kExpositionLevel)) Text(element, &OXMIDicElement::SetExpositionLevel);
        if (IsSaved(tagName, word::kVisibility)) {
            Code(element, &OXMIDicElement::SetVisibility, 3);
            if (Lose(Loss::NumberWithoutWord)) element.SetVisibility(static_cast<OXMDicVISIBILITY>(4));
        }
        if (IsSaved(tagName, word::kCategoryRefs)) {
            for (int count = Draw(3); count > 0; --count) {
                if (OXMIDicCategory* const category = Any(package, _CATEGORIES)) {
                    element.AddCategory(category);
                }
            }
        }
        Free(tagName, element);
    }

    /// Calls a factory that takes name and UUID.
    template <class Owner, class Interface>
    Held<Interface> Make(Owner& owner,
                         HRESULT (Owner::*factory)(const ZELString*, const ZELDbBinary*, Interface**)) {
        const ZELDbBinary uuid = NextUuid();
        const ZELString name = NextName();
        Held<Interface> made;
        (owner.*factory)(&name, &uuid, made.Out());
        if (made && Lose(Loss::SameName)) {
            const ZELString same("same");
            made->SetName(&same);
        }
        return made;
    }

    // Elements.

    void Category(OXMIDicPackage& package) {
        Held<OXMIDicCategory> category =
            Make<OXMIDicPackage, OXMIDicCategory>(package, &OXMIDicPackage::CreateCategory);
        if (!category) return;
        Common(tag::kCategory, package, *category);
        const ZELString group(HostileText());
        category->SetGroup(&group);
        _CATEGORIES.push_back(std::move(category));
    }

    void Enum(OXMIDicPackage& package) {
        Held<OXMIDicEnum> element = Make<OXMIDicPackage, OXMIDicEnum>(package, &OXMIDicPackage::CreateEnum);
        if (!element) return;
        Common(tag::kEnum, package, *element);
        for (int count = Draw(4); count > 0; --count) {
            const Held<OXMIDicEnumerator> enumerator =
                Make<OXMIDicEnum, OXMIDicEnumerator>(*element, &OXMIDicEnum::CreateEnumerator);
            if (!enumerator) continue;
            Common(tag::kEnumerator, package, *enumerator);
            Number(*enumerator, &OXMIDicEnumerator::SetValue);
        }
        _ENUMS.push_back(std::move(element));
    }

    void Class(OXMIDicPackage& package) {
        Held<OXMIDicClass> element =
            Make<OXMIDicPackage, OXMIDicClass>(package, &OXMIDicPackage::CreateClass);
        if (!element) return;
        OXMIDicClass* const superClass = Chance(2) ? Any(package, _CLASSES) : nullptr;
        if (superClass != nullptr) element->SetSuperClass(superClass);
        Flag(*element, &OXMIDicClass::SetInstance);
        FillClass(tag::kClass, package, *element);
        if (superClass == nullptr) _ROOTS.push_back(SameAs(*element));
        _CLASSES.push_back(std::move(element));
    }

    void Extension(OXMIDicPackage& package) {
        Held<OXMIDicExtension> element =
            Make<OXMIDicPackage, OXMIDicExtension>(package, &OXMIDicPackage::CreateExtension);
        if (!element) return;
        OXMIDicClass* superClass = nullptr;
        if (Chance(2)) superClass = Any(package, _EXTENSIONS);
        if (Chance(4)) superClass = Any(package, _CLASSES);
        if (superClass != nullptr) element->SetSuperClass(superClass);
        for (int count = Draw(4); count > 0; --count) {
            OXMIDicClass* scope = Any(package, _CLASSES);
            if (Chance(3)) scope = Any(package, _EXTENSIONS);
            if (scope != nullptr && (IsExtensible(*scope) || Lose(Loss::UnextensibleScope))) {
                element->AddScope(scope);
            }
        }
        FillClass(tag::kExtension, package, *element);
        _EXTENSIONS.push_back(std::move(element));
    }

    static bool IsExtensible(OXMIDicClass& element) {
        unsigned char extensible = 0;
        element.GetExtensible(&extensible);
        return extensible == 1;
    }

    static Held<OXMIDicClass> SameAs(OXMIDicClass& element) {
        element.AddRef();
        return Held<OXMIDicClass>(&element);
    }

    void FillClass(std::string_view tagName, OXMIDicPackage& package, OXMIDicClass& element) {
        Common(tagName, package, element);
        if (OXMIDicClass* const reference = Any(package, _CLASSES); reference != nullptr && Chance(3)) {
            element.SetReference(reference);
        }
        Code<int>(element, &OXMIDicClass::SetKVADerivable, 4);
        Flag(element, &OXMIDicClass::SetPersistent);
        Flag(element, &OXMIDicClass::SetAbstract);
        Flag(element, &OXMIDicClass::SetExtensible);
        Text(element, &OXMIDicClass::SetApplicationName);
        const ZELString lateType(HostileText());
        element.SetLateType(&lateType);
        std::vector<Held<OXMIDicElement>> members;
        for (int count = Draw(5); count > 0; --count) Member(package, element, members);
        for (int count = Draw(3); count > 0; --count) Unique(package, element, members);
    }

    // Members of a class.

    void Member(OXMIDicPackage& package, OXMIDicClass& owner, std::vector<Held<OXMIDicElement>>& members) {
        const int kind = Draw(3);
        const ZELDbBinary uuid = NextUuid();
        // These names come again and again, so that attributes redefine inherited ones.
        const char* const common[] = {"Common", " Other common "};
        ZELString name = NextName();
        if (kind == 0 && Chance(3)) name = ZELString(common[Draw(2)]);
        const bool isTarget = kind == 1 && Chance(2);
        if (isTarget) name = ZELString("Target");
        Held<OXMIDicElement> member;
        if (Succeeded(owner.GetClassElement(&name, member.Out()))) return;
        if (kind == 0) Simple(package, owner, name, uuid);
        if (kind == 1) Relationship(package, owner, name, uuid, isTarget);
        if (kind == 2) Inverse(package, owner, name, uuid);
        if (Succeeded(owner.GetClassElement(&name, member.Out()))) members.push_back(std::move(member));
    }

    void Attribute(std::string_view tagName, OXMIDicPackage& package, OXMIDicAttribute& attribute) {
        Common(tagName, package, attribute);
        const bool hasNone = tagName == tag::kSimple || Lose(Loss::AccessModeNone);
        Code(attribute, &OXMIDicAttribute::SetAccessMode, 4, hasNone ? 1 : 2);
        Flag(attribute, &OXMIDicAttribute::SetMandatory);
        Flag(attribute, &OXMIDicAttribute::SetSensitive);
        Flag(attribute, &OXMIDicAttribute::SetMultiValuated);
        Code(attribute, &OXMIDicAttribute::SetUpdateFacet, 3);
        Code(attribute, &OXMIDicAttribute::SetCollectionType, 4);
        Number(attribute, &OXMIDicAttribute::SetMaxLength);
        Number(attribute, &OXMIDicAttribute::SetLower);
        Number(attribute, &OXMIDicAttribute::SetUpper);
        Text(attribute, &OXMIDicAttribute::SetDefault);
    }

    Held<OXMIDicPrimitive> Primitive(int kind) {
        Held<OXMIDicPrimitive> primitive;
        _Manager.GetPrimitive(static_cast<OXMDicPRIMITIVEType>(kind), primitive.Out());
        return primitive;
    }

    void Simple(OXMIDicPackage& package, OXMIDicClass& owner, const ZELString& name,
                const ZELDbBinary& uuid) {
        Held<OXMIDicSimple> simple;
        if (Failed(owner.CreateSimple(&name, &uuid, simple.Out()))) return;
        Attribute(tag::kSimple, package, *simple);
        Code(*simple, &OXMIDicSimple::SetCaseMode, 3);
        Text(*simple, &OXMIDicSimple::SetMagnitude);
        Text(*simple, &OXMIDicSimple::SetDBFormat);
        if (OXMIDicEnum* const element = Any(package, _ENUMS); element != nullptr && Chance(3)) {
            simple->SetType(element);
        } else if (!Chance(8)) {
            const int kind = Lose(Loss::TypeWithoutWord) ? OXMDicPRIMITIVEType_URL : 1 + Draw(7);
            simple->SetPrimitive(Primitive(kind).Get());
            return;
        }
        if (Chance(2)) simple->SetOtherAttribute("Type", "Money");  // a word that names no primitive
    }

    /// The properties of a relationship or inverse that are set before its target.
    void Relation(std::string_view tagName, OXMIDicPackage& package, OXMIDicRelationship& relation) {
        Attribute(tagName, package, relation);
        Flag(relation, &OXMIDicRelationship::SetInjective);
        Code(relation, &OXMIDicRelationship::SetAggregationMode, 3);
        Code(relation, &OXMIDicRelationship::SetScope, 3);
        if (!IsSaved(tagName, word::kScopeRefs)) return;
        for (int count = Draw(3); count > 0; --count) {
            OXMIDicClass* scope = Any(package, _CLASSES);
            if (Chance(4)) scope = Any(package, _EXTENSIONS);
            if (scope != nullptr) relation.AddScope(scope);
        }
    }

    /// What types a relationship or inverse. \returns false when nothing does.
    bool Target(OXMIDicPackage& package, OXMIDicRelationship& relation) {
        if (Lose(Loss::TypeWithoutWord)) {
            relation.SetType(Primitive(OXMDicPRIMITIVEType_Integer).Get());
            return true;
        }
        OXMIDicClass* target = Any(package, _CLASSES);
        if (Chance(6)) target = Any(package, _EXTENSIONS);
        if (target != nullptr && Chance(2)) {
            relation.SetTarget(target);
        } else if (!Chance(4)) {
            const OXMDicPRIMITIVEType kinds[] = {OXMDicPRIMITIVEType_String, OXMDicPRIMITIVEType_Binary,
                                                 OXMDicPRIMITIVEType_URL, OXMDicPRIMITIVEType_AnyObject};
            relation.SetType(Primitive(kinds[Draw(4)]).Get());
        } else {
            return false;
        }
        if (Lose(Loss::LateInjective)) relation.SetInjective(1);
        return true;
    }

    /// \param isRedefined whether others of that name may be inherited: all of them have the first root class
    /// for their target.
    void Relationship(OXMIDicPackage& package, OXMIDicClass& owner, const ZELString& name,
                      const ZELDbBinary& uuid, bool isRedefined) {
        OXMIDicClass* const root = _ROOTS.empty() ? nullptr : _ROOTS.front().Get();
        if (isRedefined && (root == nullptr || !MayRefer(package, *root))) return;
        Held<OXMIDicRelationship> relationship;
        if (Failed(owner.CreateRelationship(&name, &uuid, relationship.Out()))) return;
        Relation(tag::kRelationship, package, *relationship);
        if (isRedefined) {
            OXMIDicClass* const other = Lose(Loss::RedefinedTarget) ? Any(package, _CLASSES) : nullptr;
            relationship->SetTarget(other != nullptr ? other : root);
        } else if (!Target(package, *relationship)) {
            relationship->AddRef();
            _UNTARGETED.push_back(Held<OXMIDicRelationship>(relationship.Get()));
        }
        _RELATIONSHIPS.push_back(std::move(relationship));
    }

    void Inverse(OXMIDicPackage& package, OXMIDicClass& owner, const ZELString& name,
                 const ZELDbBinary& uuid) {
        Held<OXMIDicInverse> inverse;
        if (Failed(owner.CreateInverse(&name, &uuid, inverse.Out()))) return;
        Held<OXMIDicRelationship> relation;
        inverse->QueryInterface(OXMIDicRelationship::ClassId(), relation.OutVoid());
        Relation(tag::kInverse, package, *relation);
        Target(package, *relation);
        OXMIDicRelationship* const inverted = Any(package, _RELATIONSHIPS);
        if (inverted == nullptr || Chance(3)) return;
        inverted->SetInvertedAttribute(inverse.Get());
        if (!Lose(Loss::HalfInverse)) inverse->SetInverse(inverted);
    }

    void Unique(OXMIDicPackage& package, OXMIDicClass& owner, std::vector<Held<OXMIDicElement>>& members) {
        const Held<OXMIDicUnique> unique =
            Make<OXMIDicClass, OXMIDicUnique>(owner, &OXMIDicClass::CreateUnique);
        if (!unique) return;
        Common(tag::kUnique, package, *unique);
        for (int count = Draw(3); count > 0; --count) {
            if (OXMIDicElement* const member = Any(package, members)) unique->AddElement(member);
        }
        if (Lose(Loss::OddLink)) unique->AddElement(&owner);
    }

    // Interfaces.

    void Interface(OXMIDicPackage& package) {
        Held<OXMIDicInterface> element =
            Make<OXMIDicPackage, OXMIDicInterface>(package, &OXMIDicPackage::CreateInterface);
        if (!element) return;
        Common(tag::kInterface, package, *element);
        if (OXMIDicInterface* const superInterface = Any(package, _INTERFACES); superInterface && Chance(2)) {
            element->SetSuperInterface(superInterface);
        }
        for (int count = Draw(3); count > 0; --count) {
            const Held<OXMIDicMethod> method =
                Make<OXMIDicInterface, OXMIDicMethod>(*element, &OXMIDicInterface::CreateMethod);
            if (!method) continue;
            Common(tag::kMethod, package, *method);
            for (int parameters = Draw(4); parameters > 0; --parameters) Parameter(package, *method);
        }
        _INTERFACES.push_back(std::move(element));
    }

    void Parameter(OXMIDicPackage& package, OXMIDicMethod& method) {
        const Held<OXMIDicParameter> parameter =
            Make<OXMIDicMethod, OXMIDicParameter>(method, &OXMIDicMethod::CreateParameter);
        if (!parameter) return;
        Common(tag::kParameter, package, *parameter);
        Code(*parameter, &OXMIDicParameter::SetKind, 4);
        if (Lose(Loss::NumberWithoutWord)) parameter->SetKind(static_cast<OXMDicKIND>(5));
        Text(*parameter, &OXMIDicParameter::SetDefault);
        OXMIDicElement* type = nullptr;
        switch (Draw(8)) {
            case 0:
                return;
            case 1:
                type = Any(package, _CLASSES);
                break;
            case 2:
                type = Any(package, _ENUMS);
                break;
            case 3:
                type = Any(package, _INTERFACES);
                break;
            case 4:
                type = Any(package, _RELATIONSHIPS);
                break;
            default: {
                const int kind = Lose(Loss::TypeWithoutWord) ? OXMDicPRIMITIVEType_AnyObject : 1 + Draw(7);
                parameter->SetType(Primitive(kind).Get());
                return;
            }
        }
        if (type != nullptr) parameter->SetType(type);
    }

    // RBO kinds. What is stored with a link is what the link says.

    void RBOClass(OXMIDicPackage& package) {
        Held<OXMIDicRBOClass> element =
            Make<OXMIDicPackage, OXMIDicRBOClass>(package, &OXMIDicPackage::CreateRBOClass);
        if (!element) return;
        Common(tag::kRBOClass, package, *element);
        _RBOCLASSES.push_back(std::move(element));
    }

    void RBOMapping(OXMIDicPackage& package) {
        OXMIDicRBOClass* const rboClass = Any(package, _RBOCLASSES);
        if (rboClass == nullptr) return;
        const Held<OXMIDicRBOMapping> mapping =
            Make<OXMIDicPackage, OXMIDicRBOMapping>(package, &OXMIDicPackage::CreateRBOMapping);
        if (!mapping) return;
        Common(tag::kRBOMapping, package, *mapping);
        if (!Lose(Loss::MissingReference)) mapping->SetApplyToRBOClass(rboClass);
        for (int count = Draw(3); count > 0; --count) {
            const Held<OXMIDicRBORoot> root =
                Make<OXMIDicRBOMapping, OXMIDicRBORoot>(*mapping, &OXMIDicRBOMapping::CreateRBORoot);
            if (!root) continue;
            Common(tag::kRBORoot, package, *root);
            BaseClass(package, *root);
            for (int components = Draw(3); components > 0; --components) {
                Component(package, *root, &OXMIDicRBORoot::CreateRBOComponent, 3);
            }
        }
    }

    template <class Node>
    void BaseClass(OXMIDicPackage& package, Node& node) {
        OXMIDicClass* const base = Any(package, _CLASSES);
        if (base != nullptr && Lose(Loss::StoredReference)) {
            ZELDbBinary uuid;
            base->GetUuid(&uuid);
            node.SetBaseClassRef(&uuid);
        } else if (base != nullptr && Chance(2)) {
            node.SetBaseClass(base);
        } else {
            Text(node, &Node::SetBaseClassName);
        }
    }

    /// \param depth how many components may be nested in this one.
    template <class Owner>
    void Component(OXMIDicPackage& package, Owner& owner,
                   HRESULT (Owner::*factory)(const ZELString*, const ZELDbBinary*, OXMIDicRBOComponent**),
                   int depth) {
        const Held<OXMIDicRBOComponent> component = Make<Owner, OXMIDicRBOComponent>(owner, factory);
        if (!component) return;
        Common(tag::kRBOComponent, package, *component);
        BaseClass(package, *component);
        Text(*component, &OXMIDicRBOComponent::SetValidityRule);
        if (Chance(2)) Path(package, *component);
        for (int count = depth > 0 ? Draw(3) : 0; count > 0; --count) {
            Component(package, *component, &OXMIDicRBOComponent::CreateRBOComponent, depth - 1);
        }
    }

    void Path(OXMIDicPackage& package, OXMIDicRBOComponent& component) {
        OXMIDicElement* target = Any(package, _RELATIONSHIPS);
        if (Chance(3)) target = Any(package, _CLASSES);
        if (target == nullptr) return;
        const Held<OXMIDicRBOPathExpression> path = Make<OXMIDicRBOComponent, OXMIDicRBOPathExpression>(
            component, &OXMIDicRBOComponent::CreateRBOPathExpression);
        if (!path) return;
        Common(tag::kRBOPathExpression, package, *path);
        Text(*path, &OXMIDicRBOPathExpression::SetPathExprType);
        Text(*path, &OXMIDicRBOPathExpression::SetPathExprSubType);
        if (!Lose(Loss::MissingReference)) path->SetTarget(target);
    }

    OXMIDicMgr& _Manager;
    const char* _Domain = "";
    unsigned _Number = 0;
    bool _Uses[kPlaces][kPlaces] = {};
    std::vector<Held<OXMIDicPackage>> _PACKAGES;
    std::vector<Held<OXMIDicCategory>> _CATEGORIES;
    std::vector<Held<OXMIDicEnum>> _ENUMS;
    std::vector<Held<OXMIDicClass>> _CLASSES;
    std::vector<Held<OXMIDicClass>> _ROOTS;  ///< classes without super class
    std::vector<Held<OXMIDicExtension>> _EXTENSIONS;
    std::vector<Held<OXMIDicInterface>> _INTERFACES;
    std::vector<Held<OXMIDicRelationship>> _RELATIONSHIPS;
    std::vector<Held<OXMIDicRelationship>> _UNTARGETED;
    std::vector<Held<OXMIDicRBOClass>> _RBOCLASSES;
};

constexpr RandomModel::KindRow RandomModel::kKinds[7] = {
    {2, &RandomModel::Category},  {2, &RandomModel::Enum},      {8, &RandomModel::Class},
    {3, &RandomModel::Extension}, {2, &RandomModel::Interface}, {1, &RandomModel::RBOClass},
    {2, &RandomModel::RBOMapping}};

}  // namespace

Choice SeededChoice(unsigned seed) {
    return [numbers = std::minstd_rand(seed)](int count) mutable {
        return static_cast<int>(numbers() % static_cast<unsigned>(count));
    };
}

void MakeRandomModel(OXMIDicMgr& manager, const Choice& choice, std::optional<Loss> drawn) {
    RandomModel(manager, choice, drawn).Make();
}
