#include "DumpJson.h"

#include "JsonWriter.h"
#include "Model.h"
#include "OXMIDicCategory.h"
#include "OXMIDicEnumerator.h"
#include "OXMIDicInverse.h"
#include "OXMIDicPrimitive.h"
#include "OXMIDicRelationship.h"
#include "OXMIDicSimple.h"

namespace tool {
namespace {

namespace format = ZANDicFormat;

/// One key of an object, and what writes its value.
template <class Element>
struct Field {
    std::string_view key;
    void (*write)(JsonWriter& json, Element& element);
};

template <class Element, std::size_t N>
void WriteFields(JsonWriter& json, Element& element, const Field<Element> (&fields)[N]) {
    for (const Field<Element>& field : fields) {
        json.Key(field.key);
        field.write(json, element);
    }
}

/// A text, null where it is empty or unset.
void WriteText(JsonWriter& json, std::string_view text) {
    if (text.empty()) {
        json.Null();
    } else {
        json.Text(text);
    }
}

void WriteReference(JsonWriter& json, OXMIDicElementH& target) {
    static std::string name;  // one text for all references of a dump, so that none allocates
    name.clear();
    AppendQualifiedName(target, name);
    json.Text(name);
}

template <class Target>
void WriteReferenceOrNull(JsonWriter& json, const zandic::Handle<Target>& target) {
    if (target) {
        WriteReference(json, *target);
    } else {
        json.Null();
    }
}

template <class Target>
void WriteReferences(JsonWriter& json, const zandic::List<Target>& targets) {
    json.BeginArray();
    for (Target& target : targets) WriteReference(json, target);
    json.EndArray();
}

// What writes the value that a getter gives, to stand in the rows below.

template <auto kGetter, class Element>
void Text(JsonWriter& json, Element& element) {
    const auto text = zandic::Get(element, kGetter);
    WriteText(json, text ? text->View() : std::string_view());
}

template <auto kGetter, class Element>
void Flag(JsonWriter& json, Element& element) {
    json.Flag(zandic::Flag(element, kGetter));
}

template <auto kGetter, class Element>
void Number(JsonWriter& json, Element& element) {
    if (const auto number = zandic::Get(element, kGetter)) {
        json.Number(*number);
    } else {
        json.Null();
    }
}

template <auto kGetter, auto& kWords, class Element>
void Word(JsonWriter& json, Element& element) {
    WriteText(json, WordOf(element, kGetter, kWords));
}

template <auto kGetter, class Element>
void Link(JsonWriter& json, Element& element) {
    WriteReferenceOrNull(json, zandic::Link(element, kGetter));
}

template <auto kGetter, class Element>
void Links(JsonWriter& json, Element& element) {
    WriteReferences(json, zandic::All<OXMIDicElementH>(element, kGetter));
}

/// As \p kWrite where the attribute is multi-valued, else null.
template <void (*kWrite)(JsonWriter&, OXMIDicAttribute&)>
void OfCollection(JsonWriter& json, OXMIDicAttribute& attribute) {
    if (zandic::Flag(attribute, &OXMIDicAttribute::GetMultiValuated)) {
        kWrite(json, attribute);
    } else {
        json.Null();
    }
}

void WriteKind(JsonWriter& json, OXMIDicElement& element) { WriteText(json, TagOf(element)); }

void WriteName(JsonWriter& json, OXMIDicElementH& object) { WriteText(json, zandic::Name(object).View()); }

void WriteUuid(JsonWriter& json, OXMIDicElementH& object) {
    json.Text(zandic::UuidText(zandic::Uuid(object)).View());
}

void WriteFreeAttributes(JsonWriter& json, OXMIDicElementH& object) {
    json.BeginObject();
    for (const auto [name, value] : zandic::FreeAttributes(object)) {
        json.AnyKey(name);
        json.Text(value);
    }
    json.EndObject();
}

// members of a class

void WriteAccessMode(JsonWriter& json, OXMIDicAttribute& attribute) {
    WriteText(json, WordOf(attribute, &OXMIDicAttribute::GetAccessMode, AccessModeWords(attribute)));
}

/// \returns the primitive that types the attribute; null when something else does, or nothing.
zandic::Handle<OXMIDicPrimitive> PrimitiveOf(OXMIDicAttribute& attribute) {
    return zandic::As<OXMIDicPrimitive>(zandic::TypeOf(attribute));
}

bool IsAnyObject(const zandic::Handle<OXMIDicPrimitive>& primitive) {
    return primitive && primitive->Primitive() == OXMDicPRIMITIVEType_AnyObject;
}

void WritePrimitive(JsonWriter& json, OXMIDicSimple& simple) {
    const auto primitive = PrimitiveOf(simple);
    WriteText(json, primitive ? zandic::Name(*primitive).View() : std::string_view());
}

void WriteEnum(JsonWriter& json, OXMIDicSimple& simple) {
    WriteReferenceOrNull(json, zandic::As<OXMIDicEnum>(zandic::TypeOf(simple)));
}

void WriteTarget(JsonWriter& json, OXMIDicRelationship& relation) {
    const auto primitive = PrimitiveOf(relation);
    if (IsAnyObject(primitive)) {
        json.Text(format::value::kAnyObject);
    } else if (primitive) {
        json.Null();
    } else {
        WriteReferenceOrNull(json, zandic::TypeOf(relation));
    }
}

void WriteRelationPrimitive(JsonWriter& json, OXMIDicRelationship& relation) {
    const auto primitive = PrimitiveOf(relation);
    const bool isValue = primitive && !IsAnyObject(primitive);
    WriteText(json, isValue ? zandic::Name(*primitive).View() : std::string_view());
}

constexpr Field<OXMIDicAttribute> kAttributeFields[] = {
    {"kind", [](JsonWriter& json, OXMIDicAttribute& attribute) { WriteKind(json, attribute); }},
    {"name", [](JsonWriter& json, OXMIDicAttribute& attribute) { WriteName(json, attribute); }},
    {"uuid", [](JsonWriter& json, OXMIDicAttribute& attribute) { WriteUuid(json, attribute); }},
    {"alias", Text<&OXMIDicAttribute::GetAlias>},
    {"expositionLevel", Text<&OXMIDicAttribute::GetExpositionLevel>},
    {"visibility", Word<&OXMIDicAttribute::GetVisibility, format::kVisibilityWords>},
    {"accessMode", WriteAccessMode},
    {"mandatory", Flag<&OXMIDicAttribute::GetMandatory>},
    {"multiValuated", Flag<&OXMIDicAttribute::GetMultiValuated>},
    {"lower", OfCollection<Number<&OXMIDicAttribute::GetLower>>},
    {"upper", OfCollection<Number<&OXMIDicAttribute::GetUpper>>},
    {"collectionType", OfCollection<Word<&OXMIDicAttribute::GetCollectionType, format::kCollectionWords>>},
    {"maxLength", Number<&OXMIDicAttribute::GetMaxLength>},
    {"sensitive", Flag<&OXMIDicAttribute::GetSensitive>},
    {"updateFacet", Word<&OXMIDicAttribute::GetUpdateFacet, format::kUpdateFacetWords>},
    {"default", Text<&OXMIDicAttribute::GetDefault>},
    {"categories", Links<&OXMIDicAttribute::GetCategories>},
    {"other", [](JsonWriter& json, OXMIDicAttribute& attribute) { WriteFreeAttributes(json, attribute); }},
    {"specializes", Link<&OXMIDicAttribute::GetSpecializedAttribute>},
};

constexpr Field<OXMIDicSimple> kSimpleFields[] = {
    {"primitive", WritePrimitive},
    {"enum", WriteEnum},
    {"caseMode", Word<&OXMIDicSimple::GetCaseMode, format::kCaseModeWords>},
    {"magnitude", Text<&OXMIDicSimple::GetMagnitude>},
    {"dbFormat", Text<&OXMIDicSimple::GetDBFormat>},
};

constexpr Field<OXMIDicRelationship> kRelationFields[] = {
    {"target", WriteTarget},
    {"primitive", WriteRelationPrimitive},
    {"aggregation", Word<&OXMIDicRelationship::GetAggregationMode, format::kAggregationWords>},
    {"injective", Flag<&OXMIDicRelationship::GetInjective>},
    {"scope", Word<&OXMIDicRelationship::GetScope, format::kScopeWords>},
};

constexpr Field<OXMIDicRelationship> kRelationshipFields[] = {
    {"scopes", Links<&OXMIDicRelationship::GetScopes>},
    {"invertedBy", Links<&OXMIDicRelationship::GetInvertedAttributes>},
};

constexpr Field<OXMIDicInverse> kInverseFields[] = {
    {"inverseOf", Link<&OXMIDicInverse::GetInverse>},
};

/// Every attribute answers the interfaces of all three kinds: the kind decides which of them count.
void WriteAttribute(JsonWriter& json, OXMIDicAttribute& attribute) {
    json.BeginObject();
    WriteFields(json, attribute, kAttributeFields);
    const OXMDicTYPE kind = zandic::Kind(attribute);
    if (kind == OXMDicTYPE_Simple) {
        WriteFields(json, *zandic::As<OXMIDicSimple>(attribute), kSimpleFields);
    } else {
        const auto relation = zandic::As<OXMIDicRelationship>(attribute);
        WriteFields(json, *relation, kRelationFields);
        if (kind == OXMDicTYPE_Relationship) {
            WriteFields(json, *relation, kRelationshipFields);
        } else {
            WriteFields(json, *zandic::As<OXMIDicInverse>(attribute), kInverseFields);
        }
    }
    json.EndObject();
}

constexpr Field<OXMIDicUnique> kUniqueFields[] = {
    {"name", [](JsonWriter& json, OXMIDicUnique& unique) { WriteName(json, unique); }},
    {"uuid", [](JsonWriter& json, OXMIDicUnique& unique) { WriteUuid(json, unique); }},
    {"alias", Text<&OXMIDicUnique::GetAlias>},
    {"attributes", Links<&OXMIDicUnique::GetElements>},
    {"other", [](JsonWriter& json, OXMIDicUnique& unique) { WriteFreeAttributes(json, unique); }},
};

constexpr Field<OXMIDicEnumerator> kEnumeratorFields[] = {
    {"name", [](JsonWriter& json, OXMIDicEnumerator& enumerator) { WriteName(json, enumerator); }},
    {"uuid", [](JsonWriter& json, OXMIDicEnumerator& enumerator) { WriteUuid(json, enumerator); }},
    {"alias", Text<&OXMIDicEnumerator::GetAlias>},
    {"value", Number<&OXMIDicEnumerator::GetValue>},
    {"other", [](JsonWriter& json, OXMIDicEnumerator& enumerator) { WriteFreeAttributes(json, enumerator); }},
};

/// A list of members, each written as an object of \p kFields.
template <auto kGetter, auto& kFields, class Member, class Element>
void Members(JsonWriter& json, Element& element) {
    json.BeginArray();
    for (Member& member : zandic::All<Member>(element, kGetter)) {
        json.BeginObject();
        WriteFields(json, member, kFields);
        json.EndObject();
    }
    json.EndArray();
}

// elements

void WriteOwnExtensible(JsonWriter& json, OXMIDicClass& classElement) {
    if (const auto own = zandic::Get(classElement, &OXMIDicClass::GetExtensible)) {
        json.Flag(*own == 1);
    } else {
        json.Null();
    }
}

void WriteAttributes(JsonWriter& json, OXMIDicClass& classElement) {
    json.BeginArray();
    for (OXMIDicAttribute& attribute :
         zandic::All<OXMIDicAttribute>(classElement, &OXMIDicClass::GetClassElements)) {
        WriteAttribute(json, attribute);
    }
    json.EndArray();
}

constexpr Field<OXMIDicElement> kElementFields[] = {
    {"kind", WriteKind},
    {"name", [](JsonWriter& json, OXMIDicElement& element) { WriteName(json, element); }},
    {"uuid", [](JsonWriter& json, OXMIDicElement& element) { WriteUuid(json, element); }},
    {"alias", Text<&OXMIDicElement::GetAlias>},
    {"expositionLevel", Text<&OXMIDicElement::GetExpositionLevel>},
    {"visibility", Word<&OXMIDicElement::GetVisibility, format::kVisibilityWords>},
    {"categories", Links<&OXMIDicElement::GetCategories>},
    {"other", [](JsonWriter& json, OXMIDicElement& element) { WriteFreeAttributes(json, element); }},
};

constexpr Field<OXMIDicClass> kClassFields[] = {
    {"super", Link<&OXMIDicClass::GetSuperClass>},
    {"reference", Link<&OXMIDicClass::GetReference>},
    {"subclasses", Links<&OXMIDicClass::GetSubClasses>},
    {"abstract", Flag<&OXMIDicClass::GetAbstract>},
    {"persistent", Flag<&OXMIDicClass::GetPersistent>},
    {"extensible", WriteOwnExtensible},
    {"kvaDerivable", Word<&OXMIDicClass::GetClassKVADerivable, format::kKVADerivableWords>},
    {"lateType", Text<&OXMIDicClass::GetLateType>},
    {"applicationName", Text<&OXMIDicClass::GetApplicationName>},
    {"attributes", WriteAttributes},
    {"allAttributes", Links<&OXMIDicClass::GetAllElements>},
    {"uniques", Members<&OXMIDicClass::GetUniques, kUniqueFields, OXMIDicUnique>},
    {"injectivesPointingOnMe", Links<&OXMIDicClass::GetInjectivesPointingOnMe>},
};

constexpr Field<OXMIDicEnum> kEnumFields[] = {
    {"enumerators", Members<&OXMIDicEnum::GetEnumerators, kEnumeratorFields, OXMIDicEnumerator>},
};

constexpr Field<OXMIDicCategory> kCategoryFields[] = {
    {"group", Text<&OXMIDicCategory::GetGroup>},
};

void WriteElement(JsonWriter& json, OXMIDicElement& element) {
    json.BeginObject();
    WriteFields(json, element, kElementFields);
    if (const auto classElement = zandic::As<OXMIDicClass>(element)) {
        WriteFields(json, *classElement, kClassFields);
    } else if (const auto enumeration = zandic::As<OXMIDicEnum>(element)) {
        WriteFields(json, *enumeration, kEnumFields);
    } else if (const auto category = zandic::As<OXMIDicCategory>(element)) {
        WriteFields(json, *category, kCategoryFields);
    }
    json.EndObject();
}

void WriteElements(JsonWriter& json, OXMIDicPackage& package) {
    json.BeginArray();
    for (OXMIDicElement& element : zandic::All<OXMIDicElement>(package, &OXMIDicPackage::GetElements)) {
        WriteElement(json, element);
    }
    json.EndArray();
}

constexpr Field<OXMIDicPackage> kPackageFields[] = {
    {"name", [](JsonWriter& json, OXMIDicPackage& package) { WriteName(json, package); }},
    {"uuid", [](JsonWriter& json, OXMIDicPackage& package) { WriteUuid(json, package); }},
    {"domain", Text<&OXMIDicPackage::GetDomain>},
    {"alias", Text<&OXMIDicPackage::GetAlias>},
    {"expositionLevel", Text<&OXMIDicPackage::GetExpositionLevel>},
    {"uses", Links<&OXMIDicPackage::GetUsedPackages>},
    {"scopes", Links<&OXMIDicPackage::GetScopePackages>},
    {"other", [](JsonWriter& json, OXMIDicPackage& package) { WriteFreeAttributes(json, package); }},
    {"elements", WriteElements},
};

}  // namespace

void DumpJson(const zandic::Dictionary& dictionary, Output& output) {
    AskForAllAttributes(dictionary);

    JsonWriter json(output);
    json.BeginObject();
    json.Key("packages");
    json.BeginArray();
    ForEachPackage(dictionary, [&json](OXMIDicPackage& package) {
        json.BeginObject();
        WriteFields(json, package, kPackageFields);
        json.EndObject();
    });
    json.EndArray();
    json.EndObject();
    json.End();
}

}  // namespace tool
