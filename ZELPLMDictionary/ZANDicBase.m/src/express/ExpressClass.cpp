#include "ExpressClass.h"

#include <charconv>

#include "ExpressTexts.h"
#include "OXMIDicInverse.h"
#include "OXMIDicPrimitive.h"
#include "OXMIDicRelationship.h"
#include "OXMIDicUnique.h"
#include "ZELUnicodeString.h"
#include "ZanDicStored.h"

namespace {

using namespace express;
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

/// The kind of what is a primitive; else UNDEFINED.
OXMDicPRIMITIVEType KindOf(OXMIDicElement& type) {
    const ZanDicRef<OXMIDicPrimitive> primitive = As<OXMIDicPrimitive>(type);
    return primitive ? primitive->Primitive() : OXMDicPRIMITIVEType_UNDEFINED;
}

/// The name of the target class; \p otherName when there is none.
template <class Interface>
ZELString TargetName(OXMIDicAttribute& attribute, const ZELString& otherName) {
    ZanDicRef<OXMIDicClass> target;
    if (const ZanDicRef<Interface> face = As<Interface>(attribute)) face->GetTarget(target.Out());
    return target ? NameOf(*target) : otherName;
}

int CollectionOf(OXMIDicAttribute& attribute) {
    const ZanDicAttribute* const stored = AttributeBehind(attribute);
    return stored != nullptr ? StoredAttribute(*stored).Collection() : 0;
}

bool IsExternal(OXMIDicAttribute& attribute) {
    const ZanDicAttribute* const stored = AttributeBehind(attribute);
    const int scope = stored != nullptr ? StoredAttribute(*stored).Scope() : 0;
    return scope == OXMDicSCOPE_External || scope == OXMDicSCOPE_Vault;
}

}  // namespace

HRESULT ExpressClass::Write(OXMIDicClass& element) {
    EntityLine(element);

    ZanDicRefList members;
    element.GetClassElements(members.Out());
    bool hasInverse = false;
    for (int position = 1; position <= members.Size(); ++position) {
        auto& member = static_cast<OXMIDicElementH&>(*members[position]);
        const OXMDicTYPE type = TypeCodeOf(member);
        if (type == OXMDicTYPE_Inverse) hasInverse = true;
        if (type != OXMDicTYPE_Inverse && type != OXMDicTYPE_Unique) AttributeLine(member);
    }
    if (hasInverse) {
        Put(kInverseHeader);
        EndLine();
    }
    for (int position = 1; hasInverse && position <= members.Size(); ++position) {
        auto& member = static_cast<OXMIDicElementH&>(*members[position]);
        if (TypeCodeOf(member) == OXMDicTYPE_Inverse) InverseLine(member);
    }

    if (const HRESULT rc = UniqueLines(element); Failed(rc)) return rc;
    Put(kEndEntity, '\n', '\n');
    return S_OK;
}

void ExpressClass::EntityLine(OXMIDicClass& element) {
    Put(kEntity, NameOf(element).View());
    ZanDicRef<OXMIDicClass> superClass;
    element.GetSuperClass(superClass.Out());
    if (superClass) Put(kSubtypeOf, NameOf(*superClass).View(), kSubtypeEnd);
    Put(IsSet<&OXMIDicClass::GetAbstract>(element) ? kAbstract : kEnd);
    EndLine();
}

/// The name of an attribute, filled up to its column.
void ExpressClass::Name(OXMIDicElementH& element) {
    const ZELString name = NameOf(element);
    Put(name.View());
    for (int length = ZELUnicodeString(name).Length(); length < kNameColumns; ++length) Put(' ');
    Put(kColon);
}

void ExpressClass::AttributeLine(OXMIDicElementH& element) {
    const ZanDicRef<OXMIDicAttribute> attribute = As<OXMIDicAttribute>(element);
    ZanDicRef<OXMIDicElement> specialized;
    if (attribute) attribute->GetSpecializedAttribute(specialized.Out());

    Put(kIndentation);
    if (specialized) Put(kSpecialization);
    Name(element);
    if (attribute) {
        const OXMDicTYPE type = TypeCodeOf(element);
        if (type == OXMDicTYPE_Simple) SimpleType(*attribute);
        if (type == OXMDicTYPE_Relationship) RelationType(*attribute);
    }
    EndLine();
    if (specialized) Put(kSpecializationEnd, '\n');
}

void ExpressClass::OptionalAndCollection(OXMIDicAttribute& attribute) {
    if (!IsSet<&OXMIDicAttribute::GetMandatory>(attribute)) Put(kOptional);
    if (!IsSet<&OXMIDicAttribute::GetMultiValuated>(attribute)) return;
    int lower = 0;
    int upper = 0;
    attribute.GetLower(&lower);
    attribute.GetUpper(&upper);
    Put(WordOf(kCollectionWords, CollectionOf(attribute)), kBoundsBegin);
    Number(lower > 0 ? lower : 0);
    Put(kBoundsSeparator);
    if (upper > 0) {
        Number(upper);
        Put(kBoundsEnd);
    } else {
        Put(kNoUpperBound);
    }
}

void ExpressClass::SimpleType(OXMIDicAttribute& attribute) {
    ZanDicRef<OXMIDicElement> type;
    attribute.GetType(type.Out());
    const bool isEnum = type && TypeCodeOf(*type) == OXMDicTYPE_Enum;
    const OXMDicPRIMITIVEType kind = type && !isEnum ? KindOf(*type) : OXMDicPRIMITIVEType_UNDEFINED;
    const bool hasLength = kind == OXMDicPRIMITIVEType_String || kind == OXMDicPRIMITIVEType_Binary;
    if (kind == OXMDicPRIMITIVEType_Date) _HasDate = true;
    int length = -1;
    attribute.GetMaxLength(&length);
    if (length < 1 && hasLength) length = kDefaultLength;

    OptionalAndCollection(attribute);
    Put(isEnum ? kEnumType : WordOf(kTypeWords, kind));
    if (length > 0) {
        Put(kLengthBegin);
        Number(length);
        Put(kLengthEnd);
    }
    if (isEnum) {
        Put(kEnumName, NameOf(*type).View(), kEnumNameEnd);
    } else {
        Put(kSimpleEnd);
    }
}

void ExpressClass::RelationType(OXMIDicAttribute& attribute) {
    OptionalAndCollection(attribute);
    ZanDicRef<OXMIDicElement> type;
    attribute.GetType(type.Out());
    if (!type || TypeCodeOf(*type) != OXMDicTYPE_Primitive || !IsExternal(attribute)) {
        Put(TargetName<OXMIDicRelationship>(attribute, ZELString(kUnknownTarget)).View(), kEnd);
        return;
    }
    const OXMDicPRIMITIVEType kind = KindOf(*type);
    if (FindCode(kExternalBegins, kind) == nullptr) return;
    int length = -1;
    attribute.GetMaxLength(&length);
    Put(WordOf(kExternalBegins, kind));
    Number(length);
    Put(WordOf(kExternalEnds, kind));
}

void ExpressClass::InverseLine(OXMIDicElementH& element) {
    Put(kIndentation);
    Name(element);
    const ZanDicRef<OXMIDicAttribute> attribute = As<OXMIDicAttribute>(element);
    const ZanDicRef<OXMIDicInverse> inverse = As<OXMIDicInverse>(element);
    if (attribute && inverse) {
        if (IsSet<&OXMIDicAttribute::GetMultiValuated>(*attribute)) {
            Put(WordOf(kInversePrefixes, CollectionOf(*attribute)));
        }
        ZanDicRef<OXMIDicRelationship> relationship;
        inverse->GetInverse(relationship.Out());
        Put(TargetName<OXMIDicInverse>(*attribute, NameOf(element)).View(), kFor);
        if (relationship) {
            Put(NameOf(*relationship).View(), kEnd);
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
        if (!hasHeader) Put(kUniqueHeader, '\n');
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
