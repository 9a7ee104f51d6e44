#include "References.h"

#include <cstddef>

#include "Model.h"
#include "OXMIDicAttributeBlock.h"
#include "OXMIDicExtension.h"
#include "OXMIDicInterface.h"
#include "OXMIDicInverse.h"
#include "OXMIDicMethod.h"
#include "OXMIDicRBOClass.h"
#include "OXMIDicRelationship.h"
#include "RboWalk.h"

namespace tool {
namespace {

struct KindText {
    std::string_view word;
    std::string_view phrase;
};

/// In the order of ReferenceKind.
constexpr KindText kTexts[] = {
    {"subclass", "is derived from it"},
    {"instance", "is an instance of it"},
    {"type", "has it as its type"},
    {"target", "points at it"},
    {"inverse", "inverts it"},
    {"redefinition", "redefines it"},
    {"scope", "applies to it"},
    {"extension", "extends it"},
    {"category", "is in it"},
    {"parameter", "has it as its type"},
    {"mapping", "applies to it"},
    {"base", "is based on it"},
    {"path", "leads to it"},
    {"key", "has it in the key"},
    {"block", "holds it"},
    {"father", "extends it"},
    {"use", "uses it"},
    {"scope-use", "uses its scopes"},
};

/// One walk.
class Walk {
public:
    explicit Walk(const std::function<void(const Reference&)>& visit) : _Visit(visit) {}

    void OfPackage(OXMIDicPackage& package) {
        All<OXMIDicPackage>(ReferenceKind::Use, package, &OXMIDicPackage::GetUsedPackages);
        All<OXMIDicPackage>(ReferenceKind::ScopeUse, package, &OXMIDicPackage::GetScopePackages);
        for (OXMIDicElement& element : zandic::Elements(package)) OfElement(element);
    }

private:
    void One(ReferenceKind kind, OXMIDicElementH& from, OXMIDicElementH& to) { _Visit({kind, from, to}); }

    template <class Target>
    void Maybe(ReferenceKind kind, OXMIDicElementH& from, const zandic::Handle<Target>& to) {
        if (to) One(kind, from, *to);
    }

    template <class Target, class From, class Getter>
    void All(ReferenceKind kind, From& from, Getter getter) {
        for (Target& to : zandic::All<Target>(from, getter)) One(kind, from, to);
    }

    void CategoriesOf(OXMIDicElementH& object) {
        All<OXMIDicElementH>(ReferenceKind::Category, object, &OXMIDicElementH::GetCategories);
    }

    void OfElement(OXMIDicElement& element);
    void OfClass(OXMIDicClass& classElement);
    void OfAttribute(OXMIDicAttribute& attribute);
    void OfBlock(OXMIDicAttributeBlock& block);
    void OfInterface(OXMIDicInterface& interface);
    void OfMapping(OXMIDicRBOMapping& mapping);

    const std::function<void(const Reference&)>& _Visit;
};

void Walk::OfElement(OXMIDicElement& element) {
    CategoriesOf(element);
    const OXMDicTYPE kind = zandic::Kind(element);
    if (kind == OXMDicTYPE_Class || kind == OXMDicTYPE_Extension) {
        OfClass(*zandic::As<OXMIDicClass>(element));
    } else if (kind == OXMDicTYPE_Interface) {
        OfInterface(*zandic::As<OXMIDicInterface>(element));
    } else if (kind == OXMDicTYPE_Enum) {
        const auto enumeration = zandic::As<OXMIDicEnum>(element);
        for (OXMIDicElementH& each :
             zandic::All<OXMIDicElementH>(*enumeration, &OXMIDicEnum::GetEnumerators)) {
            CategoriesOf(each);
        }
    } else if (const auto mapping = zandic::As<OXMIDicRBOMapping>(element)) {
        OfMapping(*mapping);
    }
}

void Walk::OfClass(OXMIDicClass& classElement) {
    Maybe(ReferenceKind::Subclass, classElement, zandic::Link(classElement, &OXMIDicClass::GetSuperClass));
    Maybe(ReferenceKind::Instance, classElement, zandic::Link(classElement, &OXMIDicClass::GetReference));
    if (zandic::Kind(classElement) == OXMDicTYPE_Extension) {
        const auto extension = zandic::As<OXMIDicExtension>(classElement);
        All<OXMIDicClass>(ReferenceKind::Extension, *extension, &OXMIDicExtension::GetScopes);
    }
    for (OXMIDicAttribute& attribute : zandic::OwnAttributes(classElement)) OfAttribute(attribute);
    for (OXMIDicUnique& unique : zandic::All<OXMIDicUnique>(classElement, &OXMIDicClass::GetUniques)) {
        CategoriesOf(unique);
        All<OXMIDicElementH>(ReferenceKind::Key, unique, &OXMIDicUnique::GetElements);
    }
    for (OXMIDicAttributeBlock& block :
         zandic::All<OXMIDicAttributeBlock>(classElement, &OXMIDicClass::GetClassAttBlocks)) {
        OfBlock(block);
    }
}

void Walk::OfAttribute(OXMIDicAttribute& attribute) {
    CategoriesOf(attribute);
    const OXMDicTYPE kind = zandic::Kind(attribute);
    Maybe(kind == OXMDicTYPE_Simple ? ReferenceKind::Type : ReferenceKind::Target, attribute,
          zandic::TypeOf(attribute));
    Maybe(ReferenceKind::Redefinition, attribute,
          zandic::Link(attribute, &OXMIDicAttribute::GetSpecializedAttribute));
    if (kind == OXMDicTYPE_Relationship) {
        const auto relationship = zandic::As<OXMIDicRelationship>(attribute);
        All<OXMIDicElementH>(ReferenceKind::Scope, *relationship, &OXMIDicRelationship::GetScopes);
    } else if (kind == OXMDicTYPE_Inverse) {
        const auto inverse = zandic::As<OXMIDicInverse>(attribute);
        Maybe(ReferenceKind::Inverse, attribute, zandic::Link(*inverse, &OXMIDicInverse::GetInverse));
    }
}

void Walk::OfBlock(OXMIDicAttributeBlock& block) {
    CategoriesOf(block);
    Maybe(ReferenceKind::Father, block, zandic::Link(block, &OXMIDicAttributeBlock::GetFather));
    All<OXMIDicElementH>(ReferenceKind::Block, block, &OXMIDicAttributeBlock::GetAttributes);
}

void Walk::OfInterface(OXMIDicInterface& interface) {
    Maybe(ReferenceKind::Subclass, interface, zandic::Link(interface, &OXMIDicInterface::GetSuperInterface));
    for (OXMIDicMethod& method : zandic::All<OXMIDicMethod>(interface, &OXMIDicInterface::GetMethods)) {
        CategoriesOf(method);
        for (OXMIDicParameter& parameter :
             zandic::All<OXMIDicParameter>(method, &OXMIDicMethod::GetParameters)) {
            CategoriesOf(parameter);
            Maybe(ReferenceKind::Parameter, parameter, zandic::TypeOf(parameter));
        }
    }
}

void Walk::OfMapping(OXMIDicRBOMapping& mapping) {
    Maybe(ReferenceKind::Mapping, mapping, zandic::Link(mapping, &OXMIDicRBOMapping::GetApplyToRBOClass));
    ForEachBelow(mapping, [this](OXMIDicElement& each, OXMIDicElement&) {
        CategoriesOf(each);
        if (const auto root = zandic::As<OXMIDicRBORoot>(each)) {
            Maybe(ReferenceKind::Base, each, zandic::Link(*root, &OXMIDicRBORoot::GetBaseClass));
        } else if (const auto component = zandic::As<OXMIDicRBOComponent>(each)) {
            Maybe(ReferenceKind::Base, each, zandic::Link(*component, &OXMIDicRBOComponent::GetBaseClass));
        } else if (const auto path = zandic::As<OXMIDicRBOPathExpression>(each)) {
            Maybe(ReferenceKind::Path, each, zandic::Link(*path, &OXMIDicRBOPathExpression::GetTarget));
        }
    });
}

}  // namespace

std::string_view ReferenceWord(ReferenceKind kind) { return kTexts[static_cast<std::size_t>(kind)].word; }

std::string_view ReferencePhrase(ReferenceKind kind) { return kTexts[static_cast<std::size_t>(kind)].phrase; }

void ForEachReference(const zandic::Dictionary& dictionary,
                      const std::function<void(const Reference&)>& visit) {
    Walk walk(visit);
    ForEachPackage(dictionary, [&walk](OXMIDicPackage& package) { walk.OfPackage(package); });
}

}  // namespace tool
