#include "Model.h"

namespace tool {
namespace {

void Append(std::string& name, const ZELString& part) {
    if (!name.empty()) name += kNameSeparator;
    name += part.View();
}

bool Owns(OXMIDicElement& element, OXMIDicElementH& member) {
    if (auto enumeration = zandic::As<OXMIDicEnum>(element)) {
        for (OXMIDicElement& each : zandic::All<OXMIDicElement>(*enumeration, &OXMIDicEnum::GetEnumerators)) {
            if (IsSame(each, member)) return true;
        }
    }
    if (auto classElement = zandic::As<OXMIDicClass>(element)) {
        for (OXMIDicElement& each : zandic::All<OXMIDicElement>(*classElement, &OXMIDicClass::GetUniques)) {
            if (IsSame(each, member)) return true;
        }
    }
    return false;
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

void AppendQualifiedName(OXMIDicElementH& object, std::string& name) {
    std::string qualified;
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
        zandic::All<OXMIDicElement>(each, &OXMIDicClass::GetAllElements);
    });
}

zandic::Handle<OXMIDicElement> OwnerOf(const zandic::Dictionary& dictionary, OXMIDicElementH& member) {
    zandic::Handle<OXMIDicElement> owner;
    ForEachElement(dictionary, [&](OXMIDicElement& element) {
        if (!owner && Owns(element, member)) owner = zandic::Handle<OXMIDicElement>::Share(&element);
    });
    return owner;
}

}  // namespace tool
