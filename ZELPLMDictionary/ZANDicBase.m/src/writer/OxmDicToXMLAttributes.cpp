// The attributes of a class: simple, relationship, inverse. They are nearly all of a document, so their
// values are read where they are stored, and each row is made for its word.

#include <type_traits>
#include <utility>

#include "WriterTexts.h"
#include "XmlRows.h"
#include "ZANDicTags.h"
#include "ZANDicValueWords.h"

namespace {

using namespace ZANDicFormat;
using LinkName = ZanDicObj::LinkName;

/// One attribute, or a few that belong together.
using Row = HRESULT (*)(XmlNode& node, const StoredAttribute& attribute);

HRESULT Name(XmlNode& node, const StoredAttribute& attribute) {
    node.Text<word::kName>(attribute.Name().View());
    return S_OK;
}

HRESULT Uuid(XmlNode& node, const StoredAttribute& attribute) {
    node.Uuid<word::kUuid>(attribute.Uuid());
    return S_OK;
}

template <const std::string_view& word, auto Getter>
HRESULT Flag(XmlNode& node, const StoredAttribute& attribute) {
    node.Flag<word>((attribute.*Getter)());
    return S_OK;
}

/// The word of a stored number; nothing where the table has none.
template <const std::string_view& word, auto Getter, const auto& Words>
HRESULT Code(XmlNode& node, const StoredAttribute& attribute) {
    node.Code<word, Words>((attribute.*Getter)());
    return S_OK;
}

/// A text that few attributes have, of \p least characters or more.
template <const std::string_view& word, int least, auto Field>
HRESULT RareText(XmlNode& node, const StoredAttribute& attribute) {
    const ZanDicAttributeFields* const rare = attribute.Rare();
    if (rare != nullptr && (rare->*Field).Length() >= least) node.Text<word>((rare->*Field).View());
    return S_OK;
}

void MaxLength(XmlNode& node, const StoredAttribute& attribute) {
    if (attribute.MaxLength() > 0) node.Number(word::kMaxLength, attribute.MaxLength());
}

/// Bounds and type of the collection of a multi-valued attribute.
HRESULT Collection(XmlNode& node, const StoredAttribute& attribute) {
    if (!attribute.IsMultiValuated()) return S_OK;
    node.Number(word::kLower, attribute.Lower());
    node.Number(word::kUpper, attribute.Upper());
    node.Code<word::kCollectionType, kCollectionWords>(attribute.Collection());
    return S_OK;
}

HRESULT Categories(XmlNode& node, const StoredAttribute& attribute) {
    if (attribute.Rare() == nullptr || attribute.Rare()->categories == nullptr) return S_OK;
    const ZanHashList& categories = *attribute.Rare()->categories;
    node.BeginList();
    for (int position = 1; position <= categories.Size(); ++position) {
        node.ListItem(categories[position]->Uuid());
    }
    node.List(word::kCategoryRefs);
    node.WarnLost(attribute.LostLinks(LinkName::Categories), word::kCategoryRefs);
    return S_OK;
}

HRESULT Free(XmlNode& node, const StoredAttribute& attribute) {
    if (const ZanDicAttributeFields* const rare = attribute.Rare()) {
        if (rare->otherNames.Size() == 0) return S_OK;
        const auto names = rare->otherNames;  // whoever gets the warnings might set others
        const auto values = rare->otherValues;
        WriteFreeAttributes(node, names, values);
    }
    return S_OK;
}

/// The enumeration or the primitive that types a simple attribute, with the length of texts and bytes.
HRESULT SimpleType(XmlNode& node, const StoredAttribute& simple) {
    const ZanDicElement* const type = simple.Type();
    if (type != nullptr && type->Type() == OXMDicTYPE_Enum) {
        node.Uuid<word::kTargetRef>(type->Uuid());
        return S_OK;
    }
    if (type == nullptr || type->Type() != OXMDicTYPE_Primitive) {
        node.WarnLost(simple.LostLinks(LinkName::Type), word::kTargetRef);
        ZanDicWriteError(writer::kGetPrimitiveFailed);
        return E_FAIL;
    }
    node.hasPrimitive = true;
    node.Text<word::kType>(type->Name().View());
    const OXMDicPRIMITIVEType kind = simple.Primitive();
    if (kind == OXMDicPRIMITIVEType_String || kind == OXMDicPRIMITIVEType_Binary) MaxLength(node, simple);
    return S_OK;
}

HRESULT CaseMode(XmlNode& node, const StoredAttribute& simple) {
    if (simple.Primitive() == OXMDicPRIMITIVEType_String) {
        node.Code<word::kCaseMode, kCaseModeWords>(simple.Case());
    }
    return S_OK;
}

/// The target class, or the word that stands for any object.
HRESULT Target(XmlNode& node, const StoredAttribute& relation) {
    const ZanDicElement* const type = relation.Type();
    if (type == nullptr) {
        node.WarnLost(relation.LostLinks(LinkName::Type), word::kTargetRef);
    } else if (relation.HasClassAsType()) {
        node.Uuid<word::kTargetRef>(type->Uuid());
        node.Text<word::kTargetName>(type->Name().View());
    } else if (relation.Primitive() == OXMDicPRIMITIVEType_AnyObject) {
        node.Word(word::kTargetRef, value::kAnyObject);
    }
    return S_OK;
}

/// The value type of references into other stores, with its length.
HRESULT RelationType(XmlNode& node, const StoredAttribute& relation) {
    if (relation.HasClassAsType()) return S_OK;
    const CodeWord* const type = FindCode(kRelationTypeWords, relation.Primitive());
    if (type == nullptr) return S_OK;
    node.Word(word::kType, type->word);
    MaxLength(node, relation);
    return S_OK;
}

/// The classes to which a relationship applies.
HRESULT Scopes(XmlNode& node, const StoredAttribute& relationship) {
    if (relationship.Rare() == nullptr || !relationship.Rare()->scope) return S_OK;
    const ZanDicLinkList<ZanDicClass>& classes = relationship.Rare()->scope->Classes();
    node.BeginList();
    for (int position = 1; position <= classes.Size(); ++position) {
        node.ListItem(classes[position]->Uuid());
    }
    node.List(word::kScopeRefs);
    node.WarnLost(relationship.LostLinks(LinkName::Scopes), word::kScopeRefs);
    return S_OK;
}

/// The relationship that an inverse inverts.
HRESULT InverseOf(XmlNode& node, const StoredAttribute& inverse) {
    if (const ZanDicAttribute* const relationship = inverse.Inverted()) {
        node.Uuid<word::kInverseOfRef>(relationship->Uuid());
    } else {
        node.WarnLost(inverse.LostLinks(LinkName::Inverse), word::kInverseOfRef);
    }
    return S_OK;
}

constexpr Row kSimpleRows[] = {
    Name,
    Uuid,
    RareText<word::kAlias, 2, &ZanDicRareFields::alias>,
    RareText<word::kExpositionLevel, 2, &ZanDicRareFields::expositionLevel>,
    Code<word::kVisibility, &StoredAttribute::Visibility, kVisibilityWords>,
    Code<word::kAccessMode, &StoredAttribute::Access, kAccessModeSimpleWords>,
    SimpleType,
    Flag<word::kMandatory, &StoredAttribute::IsMandatory>,
    Flag<word::kMultiValuated, &StoredAttribute::IsMultiValuated>,
    CaseMode,
    Collection,
    Flag<word::kSensitive, &StoredAttribute::IsSensitive>,
    Code<word::kUpdateFacet, &StoredAttribute::Facet, kUpdateFacetWords>,
    RareText<word::kDefault, 1, &ZanDicAttributeFields::defaultValue>,
    RareText<word::kMagnitude, 1, &ZanDicAttributeFields::magnitude>,
    RareText<word::kDBFormat, 1, &ZanDicAttributeFields::dbFormat>,
    Categories,
    Free,
};

/// What the attributes of relationships and inverses begin with.
constexpr Row kRelationHead[] = {
    Name,
    Uuid,
    RareText<word::kAlias, 2, &ZanDicRareFields::alias>,
    RareText<word::kExpositionLevel, 2, &ZanDicRareFields::expositionLevel>,
    Code<word::kVisibility, &StoredAttribute::Visibility, kVisibilityWords>,
    Code<word::kAccessMode, &StoredAttribute::Access, kAccessModeRelationWords>,
    Target,
};
/// What follows in both.
constexpr Row kRelationBody[] = {
    Flag<word::kMandatory, &StoredAttribute::IsMandatory>,
    Flag<word::kInjective, &StoredAttribute::IsInjective>,
    Flag<word::kMultiValuated, &StoredAttribute::IsMultiValuated>,
    Code<word::kAggregation, &StoredAttribute::Aggregation, kAggregationWords>,
    RelationType,
    Code<word::kUpdateFacet, &StoredAttribute::Facet, kUpdateFacetWords>,
    Collection,
    Flag<word::kSensitive, &StoredAttribute::IsSensitive>,
    RareText<word::kDefault, 1, &ZanDicAttributeFields::defaultValue>,
};
constexpr Row kRelationshipTail[] = {
    Code<word::kScope, &StoredAttribute::Scope, kScopeWords>,
    Scopes,
    Categories,
    Free,
};
constexpr Row kInverseHead[] = {InverseOf};
constexpr Row kInverseTail[] = {Categories, Free};

/// Writes the rows of one table, in line. \returns the first failure, behind which the others are written.
template <const auto& Rows>
HRESULT WriteTable(XmlNode& node, const StoredAttribute& attribute) {
    return [&]<std::size_t... index>(std::index_sequence<index...>) {
        HRESULT result = S_OK;
        const auto keepFailure = [&result](HRESULT rc) {
            if (Failed(rc) && !Failed(result)) result = rc;
        };
        (keepFailure(Rows[index](node, attribute)), ...);
        return result;
    }
    (std::make_index_sequence<std::extent_v<std::remove_reference_t<decltype(Rows)>>>());
}

template <const auto&... Tables>
HRESULT WriteAttribute(XmlNode& node, const StoredAttribute& attribute) {
    HRESULT result = S_OK;
    const auto keepFailure = [&result](HRESULT rc) {
        if (Failed(rc) && !Failed(result)) result = rc;
    };
    (keepFailure(WriteTable<Tables>(node, attribute)), ...);
    return result;
}

/// The same for the attribute behind an interface. \returns E_FAIL for what is none of this library.
template <const auto&... Tables>
HRESULT WriteFace(XmlNode& node, IUnknown& element) {
    const ZanDicAttribute* const attribute = AttributeBehind(element);
    return attribute != nullptr ? WriteAttribute<Tables...>(node, StoredAttribute(*attribute)) : E_FAIL;
}

template <const std::string_view& name, const auto&... Tables>
constexpr XmlKind AttributeKind(OXMDicTYPE type, std::string_view operation) {
    return {type, operation, FixedTag<name>, WriteFace<Tables...>, nullptr, WriteAttribute<Tables...>, name};
}

}  // namespace

constexpr XmlKind kSimpleKind =
    AttributeKind<tag::kSimple, kSimpleRows>(OXMDicTYPE_Simple, writer::kDisplaySimple);
constexpr XmlKind kRelationshipKind =
    AttributeKind<tag::kRelationship, kRelationHead, kRelationBody, kRelationshipTail>(
        OXMDicTYPE_Relationship, writer::kDisplayRelationship);
constexpr XmlKind kInverseKind =
    AttributeKind<tag::kInverse, kRelationHead, kInverseHead, kRelationBody, kInverseTail>(
        OXMDicTYPE_Inverse, writer::kDisplayInverse);
