// The attributes of a class: simple, relationship, inverse.

#include "OXMIDicAttribute.h"
#include "OXMIDicClass.h"
#include "OXMIDicInverse.h"
#include "OXMIDicPrimitive.h"
#include "OXMIDicRelationship.h"
#include "OXMIDicSimple.h"
#include "WriterTexts.h"
#include "XmlRows.h"
#include "ZANDicTags.h"

namespace {

using namespace ZANDicFormat;
using LinkName = ZanDicObj::LinkName;

/// What types an attribute.
struct TypeOf {
    explicit TypeOf(OXMIDicAttribute& attribute) {
        attribute.GetType(element.Out());
        if (!element) return;
        element->GetType(&type);
        if (type != OXMDicTYPE_Primitive) return;
        if (const ZanDicRef<OXMIDicPrimitive> face = As<OXMIDicPrimitive>(*element)) kind = face->Primitive();
    }

    ZanDicRef<OXMIDicElement> element;  ///< null without a type
    OXMDicTYPE type = OXMDicTYPE_UNDEFINED;
    OXMDicPRIMITIVEType kind = OXMDicPRIMITIVEType_UNDEFINED;  ///< of a primitive
};

void MaxLength(XmlNode& node, OXMIDicAttribute& attribute) {
    int maxLength = 0;
    attribute.GetMaxLength(&maxLength);
    if (maxLength > 0) node.Number(word::kMaxLength, maxLength);
}

bool IsMultiValuated(OXMIDicAttribute& attribute) {
    unsigned char multiValuated = 0;
    attribute.GetMultiValuated(&multiValuated);
    return multiValuated == 1;
}

/// Bounds and type of the collection of a multi-valued attribute.
HRESULT Collection(XmlNode& node, OXMIDicAttribute& attribute) {
    if (!IsMultiValuated(attribute)) return S_OK;
    int lower = 0;
    int upper = 0;
    attribute.GetLower(&lower);
    attribute.GetUpper(&upper);
    node.Number(word::kLower, lower);
    node.Number(word::kUpper, upper);
    node.Word(word::kCollectionType,
              WordOf(kCollectionWords, node.Stored(attribute, StoredMode::Collection)));
    return S_OK;
}
template <class Interface>
HRESULT CollectionRow(XmlNode& node, Interface& attribute, std::string_view) {
    return Collection(node, attribute);
}

/// The enumeration or the primitive that types a simple attribute, with the length of texts and bytes.
HRESULT SimpleType(XmlNode& node, OXMIDicSimple& simple, std::string_view) {
    const TypeOf type(simple);
    if (type.type == OXMDicTYPE_Enum) {
        node.Uuid(word::kTargetRef, emit::UuidOf(*type.element));
        return S_OK;
    }
    if (type.type != OXMDicTYPE_Primitive) {
        node.WarnLost(simple, LinkName::Type, word::kTargetRef);
        ZanDicWriteError(writer::kGetPrimitiveFailed);
        return E_FAIL;
    }
    node.hasPrimitive = true;
    node.primitive = type.kind;
    node.Text(word::kType, emit::NameOf(*type.element).View());
    if (type.kind == OXMDicPRIMITIVEType_String || type.kind == OXMDicPRIMITIVEType_Binary) {
        MaxLength(node, simple);
    }
    return S_OK;
}

HRESULT CaseMode(XmlNode& node, OXMIDicSimple& simple, std::string_view word) {
    if (node.primitive != OXMDicPRIMITIVEType_String) return S_OK;
    return emit::StoredWord<StoredMode::Case, kCaseModeWords>(node, simple, word);
}

constexpr XmlRow<OXMIDicSimple> kSimpleRows[] = {
    {word::kName, emit::Text<&OXMIDicElementH::GetName>},
    {word::kUuid, emit::Uuid},
    {word::kAlias, emit::LongText<&OXMIDicElement::GetAlias>},
    {word::kExpositionLevel, emit::LongText<&OXMIDicElement::GetExpositionLevel>},
    {word::kVisibility, emit::Word<OXMDicVISIBILITY, &OXMIDicElement::GetVisibility, kVisibilityWords>},
    {word::kAccessMode, emit::StoredWord<StoredMode::Access, kAccessModeSimpleWords>},
    {word::kType, SimpleType},
    {word::kMandatory, emit::Flag<&OXMIDicAttribute::GetMandatory>},
    {word::kMultiValuated, emit::Flag<&OXMIDicAttribute::GetMultiValuated>},
    {word::kCaseMode, CaseMode},
    {word::kLower, CollectionRow},
    {word::kSensitive, emit::Flag<&OXMIDicAttribute::GetSensitive>},
    {word::kUpdateFacet, emit::StoredWord<StoredMode::Facet, kUpdateFacetWords>},
    {word::kDefault, emit::SomeText<&OXMIDicAttribute::GetDefault>},
    {word::kMagnitude, emit::SomeText<&OXMIDicSimple::GetMagnitude>},
    {word::kDBFormat, emit::SomeText<&OXMIDicSimple::GetDBFormat>},
    {word::kCategoryRefs, emit::References<&OXMIDicElementH::GetCategories, LinkName::Categories>},
};

/// The target class, or the word that stands for any object.
HRESULT Target(XmlNode& node, OXMIDicRelationship& relationship, std::string_view) {
    const TypeOf type(relationship);
    if (type.type == OXMDicTYPE_Class || type.type == OXMDicTYPE_Extension) {
        node.Uuid(word::kTargetRef, emit::UuidOf(*type.element));
        node.Text(word::kTargetName, emit::NameOf(*type.element).View());
    } else if (type.kind == OXMDicPRIMITIVEType_AnyObject) {
        node.Word(word::kTargetRef, value::kAnyObject);
    } else if (!type.element) {
        node.WarnLost(relationship, LinkName::Type, word::kTargetRef);
    }
    return S_OK;
}

/// The value type of references into other stores, with its length.
HRESULT RelationType(XmlNode& node, OXMIDicRelationship& relationship, std::string_view word) {
    const CodeWord* const type = FindCode(kRelationTypeWords, TypeOf(relationship).kind);
    if (type == nullptr) return S_OK;
    node.Word(word, type->word);
    MaxLength(node, relationship);
    return S_OK;
}

/// What the attributes of relationships and inverses begin with.
constexpr XmlRow<OXMIDicRelationship> kRelationHead[] = {
    {word::kName, emit::Text<&OXMIDicElementH::GetName>},
    {word::kUuid, emit::Uuid},
    {word::kAlias, emit::LongText<&OXMIDicElement::GetAlias>},
    {word::kExpositionLevel, emit::LongText<&OXMIDicElement::GetExpositionLevel>},
    {word::kVisibility, emit::Word<OXMDicVISIBILITY, &OXMIDicElement::GetVisibility, kVisibilityWords>},
    {word::kAccessMode, emit::StoredWord<StoredMode::Access, kAccessModeRelationWords>},
    {word::kTargetRef, Target},
};
/// What follows in both.
constexpr XmlRow<OXMIDicRelationship> kRelationBody[] = {
    {word::kMandatory, emit::Flag<&OXMIDicAttribute::GetMandatory>},
    {word::kInjective, emit::Flag<&OXMIDicRelationship::GetInjective>},
    {word::kMultiValuated, emit::Flag<&OXMIDicAttribute::GetMultiValuated>},
    {word::kAggregation, emit::StoredWord<StoredMode::Aggregation, kAggregationWords>},
    {word::kType, RelationType},
    {word::kUpdateFacet, emit::StoredWord<StoredMode::Facet, kUpdateFacetWords>},
    {word::kLower, CollectionRow},
    {word::kSensitive, emit::Flag<&OXMIDicAttribute::GetSensitive>},
    {word::kDefault, emit::SomeText<&OXMIDicAttribute::GetDefault>},
};
constexpr XmlRow<OXMIDicRelationship> kRelationshipTail[] = {
    {word::kScope, emit::StoredWord<StoredMode::Scope, kScopeWords>},
    {word::kScopeRefs, emit::References<&OXMIDicRelationship::GetScopes, LinkName::Scopes>},
    {word::kCategoryRefs, emit::References<&OXMIDicElementH::GetCategories, LinkName::Categories>},
};
constexpr XmlRow<OXMIDicInverse> kInverseOf[] = {
    {word::kInverseOfRef,
     emit::Reference<OXMIDicRelationship, &OXMIDicInverse::GetInverse, LinkName::Inverse>},
};
constexpr XmlRow<OXMIDicRelationship> kInverseTail[] = {
    {word::kCategoryRefs, emit::References<&OXMIDicElementH::GetCategories, LinkName::Categories>},
};

HRESULT WriteRelationship(XmlNode& node, IUnknown& element) {
    return WriteRows<OXMIDicRelationship, kRelationHead, kRelationBody, kRelationshipTail>(node, element);
}

/// An inverse answers as a relationship too, whose properties it has.
HRESULT WriteInverse(XmlNode& node, IUnknown& element) {
    const ZanDicRef<OXMIDicRelationship> relationship = As<OXMIDicRelationship>(element);
    const ZanDicRef<OXMIDicInverse> inverse = As<OXMIDicInverse>(element);
    if (!relationship || !inverse) return E_FAIL;
    WriteEach(node, *relationship, kRelationHead);
    WriteEach(node, *inverse, kInverseOf);
    WriteEach(node, *relationship, kRelationBody);
    WriteEach(node, *relationship, kInverseTail);
    WriteFreeAttributes(node, *relationship);
    return S_OK;
}

}  // namespace

constexpr XmlKind kSimpleKind{OXMDicTYPE_Simple, writer::kDisplaySimple, FixedTag<tag::kSimple>,
                              WriteRows<OXMIDicSimple, kSimpleRows>, nullptr};
constexpr XmlKind kRelationshipKind{OXMDicTYPE_Relationship, writer::kDisplayRelationship,
                                    FixedTag<tag::kRelationship>, WriteRelationship, nullptr};
constexpr XmlKind kInverseKind{OXMDicTYPE_Inverse, writer::kDisplayInverse, FixedTag<tag::kInverse>,
                               WriteInverse, nullptr};
