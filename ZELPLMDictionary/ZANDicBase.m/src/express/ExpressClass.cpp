#include "ExpressClass.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "ExpressTexts.h"
#include "OXMIDicUnique.h"
#include "ZELUnicodeString.h"

namespace {

using namespace express;
using namespace std::literals;
using ZANDicFormat::FindCode;
using ZANDicFormat::WordOf;

ZELString NameOf(OXMIDicElementH& element) {
    ZELString name;
    element.GetName(&name);
    return name;
}

OXMDicTYPE TypeCodeOf(OXMIDicElementH& element) {
    OXMDicTYPE type = OXMDicTYPE_UNDEFINED;
    element.GetType(&type);
    return type;
}

template <auto Getter, class Interface>
bool IsSet(Interface& element) {
    unsigned char flag = 0;
    (element.*Getter)(&flag);
    return flag == 1;
}

constexpr bool IsExternal(int scope) { return scope == OXMDicSCOPE_External || scope == OXMDicSCOPE_Vault; }

/// What fills names up to their column.
constexpr auto kFilling = [] {
    std::array<char, kNameColumns> blanks{};
    blanks.fill(' ');
    return blanks;
}();

}  // namespace

ExpressClass::Member::Member(ZanDicRef<ZanDicObj> own)
    : name(own->Name()), type(own->Type()), object(std::move(own)) {
    if (const ZanDicAttribute* const attribute = AttributeBehind(object.Get())) stored.emplace(*attribute);
}

ExpressClass::Member::Member(OXMIDicElementH& face) : name(NameOf(face)), type(TypeCodeOf(face)) {
    if (const ZanDicAttribute* const attribute = AttributeBehind(face)) stored.emplace(*attribute);
}

HRESULT ExpressClass::Write(OXMIDicClass& element) {
    EntityLine(element);
    ZanDicRefList faces;
    ListMembers(element, faces);

    bool hasInverse = false;
    const std::size_t count = _MEMBERS.size();
    for (std::size_t index = 0; index < count; ++index) {
        // What types attributes lies all over the memory: it is asked for in time, step by step.
        if (index + 6 < count && _MEMBERS[index + 6].stored) _MEMBERS[index + 6].stored->PrefetchTypePlace();
        if (index + 4 < count && _MEMBERS[index + 4].stored) _MEMBERS[index + 4].stored->PrefetchType();
        if (index + 2 < count && _MEMBERS[index + 2].stored) _MEMBERS[index + 2].stored->PrefetchTypeName();
        const Member& member = _MEMBERS[index];
        if (member.type == OXMDicTYPE_Inverse) hasInverse = true;
        if (member.type != OXMDicTYPE_Inverse && member.type != OXMDicTYPE_Unique) AttributeLine(member);
    }
    if (hasInverse) Put(kInverseHeader, "\n"sv);
    for (std::size_t index = 0; hasInverse && index < count; ++index) {
        if (_MEMBERS[index].type == OXMDicTYPE_Inverse) InverseLine(_MEMBERS[index]);
    }
    _MEMBERS.clear();

    if (const HRESULT rc = UniqueLines(element); Failed(rc)) return rc;
    Put(kEndEntity, "\n\n"sv);
    return S_OK;
}

/// Takes the members of a class: those of a class of this library where they are stored, others by their
/// interfaces, which \p faces then holds.
void ExpressClass::ListMembers(OXMIDicClass& element, ZanDicRefList& faces) {
    if (const ZanHashList* const own = OwnAttributesOf(element)) {
        for (int position = 1; position <= own->Size(); ++position) {
            _MEMBERS.emplace_back(ZanDicRef<ZanDicObj>::Share((*own)[position]));
        }
        return;
    }
    element.GetClassElements(faces.Out());
    for (int position = 1; position <= faces.Size(); ++position) {
        _MEMBERS.emplace_back(static_cast<OXMIDicElementH&>(*faces[position]));
    }
}

void ExpressClass::EntityLine(OXMIDicClass& element) {
    Put(kEntity, NameOf(element).View());
    ZanDicRef<OXMIDicClass> superClass;
    element.GetSuperClass(superClass.Out());
    if (superClass) Put(kSubtypeOf, NameOf(*superClass).View(), kSubtypeEnd);
    Put(IsSet<&OXMIDicClass::GetAbstract>(element) ? kAbstract : kEnd, "\n"sv);
}

/// The name of a member, filled up to its column.
void ExpressClass::Name(const Member& member, std::string_view begin) {
    const int length = ZELUnicodeString(member.name).Length();
    const auto missing = static_cast<std::size_t>(std::max(kNameColumns - length, 0));
    Put(begin, member.name.View(), std::string_view(kFilling.data(), missing), kColon);
}

void ExpressClass::AttributeLine(const Member& member) {
    const bool specializes = member.stored && member.stored->IsSpecialized();
    Name(member, specializes ? kSpecialization : kIndentation);
    if (member.stored) {
        if (member.type == OXMDicTYPE_Simple) SimpleType(*member.stored);
        if (member.type == OXMDicTYPE_Relationship) RelationType(*member.stored);
    }
    EndLine();
    if (specializes) Put(kSpecializationEnd, "\n"sv);
}

void ExpressClass::OptionalAndCollection(const StoredAttribute& attribute) {
    if (!attribute.IsMandatory()) Put(kOptional);
    if (!attribute.IsMultiValuated()) return;
    Put(WordOf(kCollectionWords, attribute.Collection()), kBoundsBegin);
    Number(std::max(attribute.Lower(), 0));
    Put(kBoundsSeparator);
    if (attribute.Upper() > 0) {
        Number(attribute.Upper());
        Put(kBoundsEnd);
    } else {
        Put(kNoUpperBound);
    }
}

void ExpressClass::SimpleType(const StoredAttribute& attribute) {
    const ZanDicElement* const type = attribute.Type();
    const bool isEnum = type != nullptr && type->Type() == OXMDicTYPE_Enum;
    const OXMDicPRIMITIVEType kind = attribute.Primitive();
    const bool hasLength = kind == OXMDicPRIMITIVEType_String || kind == OXMDicPRIMITIVEType_Binary;
    if (kind == OXMDicPRIMITIVEType_Date) _HasDate = true;
    int length = attribute.MaxLength();
    if (length < 1 && hasLength) length = kDefaultLength;

    OptionalAndCollection(attribute);
    Put(isEnum ? kEnumType : WordOf(kTypeWords, kind));
    if (length > 0) {
        Put(kLengthBegin);
        Number(length);
        Put(kLengthEnd);
    }
    if (isEnum) {
        Put(kEnumName, type->Name().View(), kEnumNameEnd);
    } else {
        Put(kSimpleEnd);
    }
}

void ExpressClass::RelationType(const StoredAttribute& attribute) {
    OptionalAndCollection(attribute);
    const ZanDicElement* const type = attribute.Type();
    if (type == nullptr || type->Type() != OXMDicTYPE_Primitive || !IsExternal(attribute.Scope())) {
        Put(attribute.HasClassAsType() ? type->Name().View() : kUnknownTarget, kEnd);
        return;
    }
    const OXMDicPRIMITIVEType kind = attribute.Primitive();
    if (FindCode(kExternalBegins, kind) == nullptr) return;
    Put(WordOf(kExternalBegins, kind));
    Number(attribute.MaxLength());
    Put(WordOf(kExternalEnds, kind));
}

void ExpressClass::InverseLine(const Member& member) {
    Name(member, kIndentation);
    if (member.stored) {
        const StoredAttribute& inverse = *member.stored;
        if (inverse.IsMultiValuated()) Put(WordOf(kInversePrefixes, inverse.Collection()));
        Put(inverse.HasClassAsType() ? inverse.Type()->Name().View() : member.name.View(), kFor);
        if (const ZanDicAttribute* const relationship = inverse.Inverted()) {
            Put(relationship->Name().View(), kEnd);
        } else {
            Put(kNoInverse);
        }
    }
    EndLine();
}

HRESULT ExpressClass::UniqueLines(OXMIDicClass& element) {
    ZanDicRefList uniques;
    element.GetUniques(uniques.Out());
    bool hasHeader = false;
    for (int position = 1; position <= uniques.Size(); ++position) {
        if (uniques[position] == nullptr) return E_FAIL;
        const ZanDicRef<OXMIDicUnique> unique = As<OXMIDicUnique>(*uniques[position]);
        if (!unique || TypeCodeOf(*unique) != OXMDicTYPE_Unique) continue;
        if (!hasHeader) Put(kUniqueHeader, "\n"sv);
        hasHeader = true;

        Put(kIndentation, NameOf(*unique).View(), kColon);
        ZanDicRefList elements;
        unique->GetElements(elements.Out());
        for (int member = 1; member <= elements.Size(); ++member) {
            if (member > 1) Put(kUniqueSeparator);
            Put(NameOf(static_cast<OXMIDicElementH&>(*elements[member])).View());
        }
        Put(kUniqueEnd);
        EndLine();
    }
    return S_OK;
}

void ExpressClass::Number(int number) {
    char digits[12];
    const char* const end = std::to_chars(digits, digits + sizeof digits, number).ptr;
    Put(std::string_view(digits, static_cast<std::size_t>(end - digits)));
}
