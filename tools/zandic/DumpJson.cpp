#include "DumpJson.h"

#include "DumpFields.h"
#include "MemberNames.h"
#include "OXMIDicCategory.h"
#include "OXMIDicEnumerator.h"
#include "OXMIDicExtension.h"
#include "OXMIDicInverse.h"
#include "OXMIDicPrimitive.h"
#include "OXMIDicRelationship.h"
#include "OXMIDicSimple.h"

namespace tool {
namespace {

using namespace dump;
namespace format = ZANDicFormat;

/// As \p kWrite where the attribute is multi-valued, else null.
template <void (*kWrite)(JsonWriter&, OXMIDicAttribute&)>
void OfCollection(JsonWriter& json, OXMIDicAttribute& attribute) {
    if (zandic::Flag(attribute, &OXMIDicAttribute::GetMultiValuated)) {
        kWrite(json, attribute);
    } else {
        json.Null();
    }
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
    {"name", Of<WriteName>},
    {"uuid", Of<WriteUuid>},
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
    {"other", Of<WriteFreeAttributes>},
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
    {"name", Of<WriteName>},
    {"uuid", Of<WriteUuid>},
    {"alias", Text<&OXMIDicUnique::GetAlias>},
    {"attributes", Links<&OXMIDicUnique::GetElements>},
    {"other", Of<WriteFreeAttributes>},
};

constexpr Field<OXMIDicEnumerator> kEnumeratorFields[] = {
    {"name", Of<WriteName>},
    {"uuid", Of<WriteUuid>},
    {"alias", Text<&OXMIDicEnumerator::GetAlias>},
    {"value", Number<&OXMIDicEnumerator::GetValue>},
    {"other", Of<WriteFreeAttributes>},
};

// elements

void WriteOwnExtensible(JsonWriter& json, OXMIDicClass& classElement) {
    if (const auto own = zandic::Get(classElement, &OXMIDicClass::GetClassExtensible)) {
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
    {"name", Of<WriteName>},
    {"uuid", Of<WriteUuid>},
    {"alias", Text<&OXMIDicElement::GetAlias>},
    {"expositionLevel", Text<&OXMIDicElement::GetExpositionLevel>},
    {"visibility", Word<&OXMIDicElement::GetVisibility, format::kVisibilityWords>},
    {"categories", Links<&OXMIDicElement::GetCategories>},
    {"other", Of<WriteFreeAttributes>},
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

constexpr Field<OXMIDicExtension> kExtensionFields[] = {
    {"scopes", Links<&OXMIDicExtension::GetScopes>},
};

constexpr Field<OXMIDicClass> kBlockFields[] = {
    {"blocks", WriteOwnBlocks},
    {"allBlocks", WriteAllBlocks},
};

constexpr Field<OXMIDicEnum> kEnumFields[] = {
    {"enumerators", Members<&OXMIDicEnum::GetEnumerators, kEnumeratorFields, OXMIDicEnumerator>},
};

constexpr Field<OXMIDicCategory> kCategoryFields[] = {
    {"group", Text<&OXMIDicCategory::GetGroup>},
};

void WriteClass(JsonWriter& json, OXMIDicElement& element) {
    const auto classElement = zandic::As<OXMIDicClass>(element);
    WriteFields(json, *classElement, kClassFields);
    if (zandic::Kind(element) == OXMDicTYPE_Extension) {
        WriteFields(json, *zandic::As<OXMIDicExtension>(element), kExtensionFields);
    }
    WriteFields(json, *classElement, kBlockFields);
}

/// What an element has beside the common keys; several kinds answer the same interfaces, so the kind decides.
struct KindRow {
    OXMDicTYPE kind;
    void (*write)(JsonWriter& json, OXMIDicElement& element);
};
constexpr KindRow kKindRows[] = {
    {OXMDicTYPE_Class, WriteClass},
    {OXMDicTYPE_Extension, WriteClass},
    {OXMDicTYPE_Interface, WriteInterface},
    {OXMDicTYPE_RBOMapping, WriteMapping},
    {OXMDicTYPE_Enum,
     [](JsonWriter& json, OXMIDicElement& element) {
         WriteFields(json, *zandic::As<OXMIDicEnum>(element), kEnumFields);
     }},
    {OXMDicTYPE_Category,
     [](JsonWriter& json, OXMIDicElement& element) {
         WriteFields(json, *zandic::As<OXMIDicCategory>(element), kCategoryFields);
     }},
};

void WriteElement(JsonWriter& json, OXMIDicElement& element) {
    json.BeginObject();
    WriteFields(json, element, kElementFields);
    const OXMDicTYPE kind = zandic::Kind(element);
    for (const KindRow& row : kKindRows) {
        if (row.kind == kind) row.write(json, element);
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
    {"name", Of<WriteName>},
    {"uuid", Of<WriteUuid>},
    {"domain", Text<&OXMIDicPackage::GetDomain>},
    {"alias", Text<&OXMIDicPackage::GetAlias>},
    {"expositionLevel", Text<&OXMIDicPackage::GetExpositionLevel>},
    {"uses", Links<&OXMIDicPackage::GetUsedPackages>},
    {"scopes", Links<&OXMIDicPackage::GetScopePackages>},
    {"other", Of<WriteFreeAttributes>},
    {"elements", WriteElements},
};

/// What writes a member, or a package, by itself.
struct ObjectRow {
    OXMDicTYPE kind;
    void (*write)(JsonWriter& json, OXMIDicElementH& object);
};

void WriteAttributeObject(JsonWriter& json, OXMIDicElementH& object) {
    WriteAttribute(json, *zandic::As<OXMIDicAttribute>(object));
}

constexpr ObjectRow kObjectRows[] = {
    {OXMDicTYPE_Package, ObjectOf<OXMIDicPackage, kPackageFields>},
    {OXMDicTYPE_Simple, WriteAttributeObject},
    {OXMDicTYPE_Relationship, WriteAttributeObject},
    {OXMDicTYPE_Inverse, WriteAttributeObject},
    {OXMDicTYPE_Unique, ObjectOf<OXMIDicUnique, kUniqueFields>},
    {OXMDicTYPE_Enumerator, ObjectOf<OXMIDicEnumerator, kEnumeratorFields>},
    {OXMDicTYPE_Method, WriteMethod},
    {OXMDicTYPE_Parameter, WriteParameter},
    {OXMDicTYPE_RBORoot, WriteRoot},
    {OXMDicTYPE_RBOComponent, WriteComponent},
    {OXMDicTYPE_RBOPathExpression, WritePathExpression},
    {OXMDicTYPE_AttributeBlock, WriteBlock},
};

}  // namespace

void DumpObject(JsonWriter& json, OXMIDicElementH& object) {
    const OXMDicTYPE kind = zandic::Kind(object);
    for (const ObjectRow& row : kObjectRows) {
        if (row.kind == kind) return row.write(json, object);
    }
    WriteElement(json, *zandic::As<OXMIDicElement>(object));
}

void DumpJson(const zandic::Dictionary& dictionary, Output& output) {
    AskForAllAttributes(dictionary);
    ForgetMembers();  // of a dump before, when something else was loaded

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

std::string DumpText(const zandic::Dictionary& dictionary) {
    std::string text;
    Output output(text);
    DumpJson(dictionary, output);
    output.Flush();
    return text;
}

}  // namespace tool
