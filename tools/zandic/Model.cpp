#include "Model.h"

#include <algorithm>
#include <iterator>

#include "MemberNames.h"
#include "OXMIDicAttributeBlock.h"

namespace tool {
namespace {

void Append(std::string& name, const ZELString& part) {
    if (!name.empty()) name += kNameSeparator;
    name += part.View();
}

/// Whether an object of the kind has an owner that it does not know.
bool IsMember(OXMDicTYPE kind) {
    constexpr OXMDicTYPE kKinds[] = {
        OXMDicTYPE_Unique,
        OXMDicTYPE_Enumerator,
        OXMDicTYPE_Method,
        OXMDicTYPE_Parameter,
        OXMDicTYPE_RBORoot,
        OXMDicTYPE_RBOComponent,
        OXMDicTYPE_RBOPathExpression,
    };
    return std::find(std::begin(kKinds), std::end(kKinds), kind) != std::end(kKinds);
}

}  // namespace

std::string_view TagOf(OXMIDicElementH& object) {
    const OXMDicTYPE kind = zandic::Kind(object);
    if (kind == OXMDicTYPE_Class) {
        const auto classElement = zandic::As<OXMIDicClass>(object);
        if (classElement && zandic::Flag(*classElement, &OXMIDicClass::GetInstance)) {
            return ZANDicFormat::tag::kInstance;
        }
    }
    return ZANDicFormat::WordOf(ZANDicFormat::kElementTags, kind);
}

bool IsAttribute(OXMIDicElementH& object) {
    const OXMDicTYPE kind = zandic::Kind(object);
    return kind == OXMDicTYPE_Simple || kind == OXMDicTYPE_Relationship || kind == OXMDicTYPE_Inverse;
}

// NOLINTNEXTLINE(misc-no-recursion): once, since a block's class is no block.
void AppendQualifiedName(OXMIDicElementH& object, std::string& name) {
    const OXMDicTYPE kind = zandic::Kind(object);
    if (IsMember(kind) && Members().AppendName(zandic::Uuid(object), name)) return;
    std::string qualified;
    if (kind == OXMDicTYPE_AttributeBlock) {
        const auto block = zandic::As<OXMIDicAttributeBlock>(object);
        if (const auto owner = zandic::Link(*block, &OXMIDicAttributeBlock::GetClass)) {
            AppendQualifiedName(*owner, qualified);
        }
    }
    if (const auto element = zandic::As<OXMIDicElement>(object)) {
        if (const auto package = zandic::Get(*element, &OXMIDicElement::GetPackageName)) {
            Append(qualified, *package);
        }
    }
    if (IsAttribute(object)) {
        const auto attribute = zandic::As<OXMIDicAttribute>(object);
        if (const auto origin = zandic::Link(*attribute, &OXMIDicAttribute::GetOrigin)) {
            Append(qualified, zandic::Name(*origin));
        }
    }
    Append(qualified, zandic::Name(object));
    name += qualified;
}

std::string QualifiedName(OXMIDicElementH& object) {
    std::string name;
    AppendQualifiedName(object, name);
    return name;
}

bool IsSame(OXMIDicElementH& object, OXMIDicElementH& other) {
    return zandic::Uuid(object) == zandic::Uuid(other);
}

std::span<const ZANDicFormat::CodeWord> AccessModeWords(OXMIDicAttribute& attribute) {
    if (zandic::Kind(attribute) == OXMDicTYPE_Simple) return ZANDicFormat::kAccessModeSimpleWords;
    return ZANDicFormat::kAccessModeRelationWords;
}

void AskForAllAttributes(const zandic::Dictionary& dictionary) {
    ForEachClass(dictionary, [](OXMIDicClass& each) {
        // Asking a class answers for all that it is derived from: a chain costs its length, not its square.
        if (!zandic::All<OXMIDicElementH>(each, &OXMIDicClass::GetSubClasses).IsEmpty()) return;
        zandic::All<OXMIDicElement>(each, &OXMIDicClass::GetAllElements);
    });
}

zandic::Handle<OXMIDicElement> OwnerOf(const zandic::Dictionary& dictionary, OXMIDicElementH& member) {
    const ZELDbBinary owner = Members().OwnerOf(zandic::Uuid(member));
    return owner.IsEmpty() ? zandic::Handle<OXMIDicElement>()
                           : zandic::As<OXMIDicElement>(dictionary.Search(owner));
}

}  // namespace tool
