/// Which attributes and which children each tag knows: one row a tag, for checks, fuzz dictionaries and
/// whoever documents the format. An attribute that a tag does not know is kept as a free attribute of
/// the element, Relationship and Inverse apart, which look at no others.
#ifndef ZAN_DIC_TAGS_H
#define ZAN_DIC_TAGS_H

#include <span>
#include <string_view>

#include "ZANDicValueWords.h"

namespace ZANDicFormat {

/// How the value of an attribute is written.
enum class AttributeForm {
    Text,
    Flag,        ///< true for "Yes" only
    Integer,     ///< signed decimal number
    Word,        ///< one of the words of the row
    Uuid,        ///< the identity of the element itself
    Reference,   ///< the UUID of another object
    References,  ///< UUIDs, separated by blanks
    Names,       ///< names, separated by blanks
    Repeated,    ///< repeats what a reference says; accepted, without effect
};

/// One attribute that a tag knows.
struct AttributeRow {
    std::string_view name;
    AttributeForm form = AttributeForm::Text;
    bool mandatory = false;
    std::span<const CodeWord> words = {};  ///< of a Word; also words that a Reference may have instead
};

/// One tag.
struct TagRow {
    std::string_view tag;
    std::span<const AttributeRow> attributes;
    std::span<const std::string_view> children;
};

/// The rows of attributes that several tags share.
namespace row {
inline constexpr AttributeRow kName{word::kName, AttributeForm::Text, true};
inline constexpr AttributeRow kUuid{word::kUuid, AttributeForm::Uuid, true};
inline constexpr AttributeRow kAlias{word::kAlias};
inline constexpr AttributeRow kExpositionLevel{word::kExpositionLevel};
inline constexpr AttributeRow kVisibility{word::kVisibility, AttributeForm::Word, false, kVisibilityWords};
inline constexpr AttributeRow kCommandRefs{word::kCommandRefs, AttributeForm::References};
inline constexpr AttributeRow kCategoryRefs{word::kCategoryRefs, AttributeForm::References};
inline constexpr AttributeRow kSuperRef{word::kSuperRef, AttributeForm::Reference};
inline constexpr AttributeRow kScopeRefs{word::kScopeRefs, AttributeForm::References};
inline constexpr AttributeRow kTargetRef{word::kTargetRef, AttributeForm::Reference};
inline constexpr AttributeRow kTargetName{word::kTargetName, AttributeForm::Repeated};
inline constexpr AttributeRow kMandatory{word::kMandatory, AttributeForm::Flag};
inline constexpr AttributeRow kMultiValuated{word::kMultiValuated, AttributeForm::Flag};
inline constexpr AttributeRow kMaxLength{word::kMaxLength, AttributeForm::Integer};
inline constexpr AttributeRow kSensitive{word::kSensitive, AttributeForm::Flag};
inline constexpr AttributeRow kUpdateFacet{word::kUpdateFacet, AttributeForm::Word, false, kUpdateFacetWords};
inline constexpr AttributeRow kDefault{word::kDefault};
inline constexpr AttributeRow kLower{word::kLower, AttributeForm::Integer};
inline constexpr AttributeRow kUpper{word::kUpper, AttributeForm::Integer};
inline constexpr AttributeRow kCollectionType{word::kCollectionType, AttributeForm::Word, false,
                                              kCollectionWords};
inline constexpr AttributeRow kAccessModeRelation{word::kAccessMode, AttributeForm::Word, false,
                                                  kAccessModeRelationWords};
inline constexpr AttributeRow kAggregation{word::kAggregation, AttributeForm::Word, false, kAggregationWords};
inline constexpr AttributeRow kScope{word::kScope, AttributeForm::Word, false, kScopeWords};
inline constexpr AttributeRow kRelationType{word::kType, AttributeForm::Word, false, kRelationTypeWords};
inline constexpr AttributeRow kInjective{word::kInjective, AttributeForm::Flag};
inline constexpr AttributeRow kBaseClass{word::kBaseClass};
inline constexpr AttributeRow kBaseClassRef{word::kBaseClassRef, AttributeForm::Reference};
inline constexpr AttributeRow kAttributeUuids{word::kAttributeUuids, AttributeForm::References, true};
}  // namespace row

/// The word that a relationship's or inverse's `TargetRef` may have in place of a UUID.
inline constexpr CodeWord kTargetWords[] = {kPrimitiveWords[OXMDicPRIMITIVEType_AnyObject - 1]};
inline constexpr AttributeRow kRelationTargetRow{word::kTargetRef, AttributeForm::Reference, false,
                                                 kTargetWords};

inline constexpr AttributeRow kPackageAttributes[] = {
    {word::kName},  // not mandatory: the name asked for stands in
    row::kUuid,
    {word::kDomain},  // one of kDomains
    {word::kUseNames, AttributeForm::Names},
    {word::kUseScopes, AttributeForm::Names},
    row::kAlias,
    row::kExpositionLevel,
    {word::kVersion, AttributeForm::Integer},
    row::kCommandRefs,
};
/// Class and Instance; Extension too.
inline constexpr AttributeRow kClassAttributes[] = {
    row::kName,
    row::kUuid,
    row::kAlias,
    row::kExpositionLevel,
    {word::kPersistent, AttributeForm::Flag, true},
    row::kVisibility,
    {word::kKVADerivable, AttributeForm::Word, false, kKVADerivableWords},
    {word::kAbstract, AttributeForm::Flag},
    {word::kExtensible, AttributeForm::Flag},
    {word::kLateType},
    {word::kApplicationName},
    row::kSuperRef,
    {word::kSuperName, AttributeForm::Repeated},
    {word::kReferenceRef, AttributeForm::Reference},
    row::kCommandRefs,
    row::kScopeRefs,
    {word::kScopeNames, AttributeForm::Repeated},
    {word::kInterfaceRefs, AttributeForm::Repeated},
};
inline constexpr AttributeRow kSimpleAttributes[] = {
    row::kName,
    row::kUuid,
    {word::kType, AttributeForm::Word, false, kSimpleTypeWords},
    row::kTargetRef,
    row::kCategoryRefs,
    row::kAlias,
    row::kExpositionLevel,
    row::kVisibility,
    {word::kAccessMode, AttributeForm::Word, false, kAccessModeSimpleWords},
    row::kMandatory,
    {word::kCaseMode, AttributeForm::Word, false, kCaseModeWords},
    row::kMaxLength,
    row::kSensitive,
    row::kUpdateFacet,
    row::kDefault,
    {word::kMagnitude},
    row::kMultiValuated,
    {word::kDBFormat},
    row::kLower,
    row::kUpper,
    row::kCollectionType,
};
/// In the order in which they are read.
inline constexpr AttributeRow kRelationshipAttributes[] = {
    row::kName,           row::kUuid,
    row::kMandatory,      row::kMultiValuated,
    row::kAlias,          row::kExpositionLevel,
    row::kVisibility,     row::kAccessModeRelation,
    row::kAggregation,    row::kUpdateFacet,
    row::kSensitive,      row::kDefault,
    kRelationTargetRow,   row::kScope,
    row::kRelationType,   row::kMaxLength,
    row::kLower,          row::kUpper,
    row::kCollectionType, row::kInjective,
    row::kScopeRefs,      row::kCategoryRefs,
    row::kTargetName,
};
inline constexpr AttributeRow kInverseAttributes[] = {
    row::kName,
    row::kUuid,
    row::kMandatory,
    row::kMultiValuated,
    row::kAlias,
    row::kExpositionLevel,
    row::kVisibility,
    row::kAccessModeRelation,
    row::kAggregation,
    row::kUpdateFacet,
    row::kSensitive,
    row::kDefault,
    kRelationTargetRow,
    row::kScope,
    row::kRelationType,
    row::kMaxLength,
    row::kLower,
    row::kUpper,
    row::kCollectionType,
    row::kInjective,
    {word::kInverseOfRef, AttributeForm::Reference},
    row::kCategoryRefs,
    row::kTargetName,
};
inline constexpr AttributeRow kUniqueAttributes[] = {
    row::kName,
    row::kUuid,
    row::kAlias,
    {word::kUniqueRefs, AttributeForm::References},
};
inline constexpr AttributeRow kImplementAttributes[] = {
    row::kName,
    row::kUuid,
    {word::kIOMode, AttributeForm::Word, false, kIOModeWords},
};
inline constexpr AttributeRow kSecurityAttributes[] = {
    row::kName,
    row::kUuid,
    {word::kSecured, AttributeForm::Word, false, kSecuredWords},
    {word::kEventType, AttributeForm::Word, false, kEventTypeWords},
    {word::kEventMode, AttributeForm::Word, false, kEventModeWords},
};
inline constexpr AttributeRow kInterfaceAttributes[] = {row::kName, row::kUuid, row::kAlias, row::kSuperRef};
/// Method, RBOClass.
inline constexpr AttributeRow kPlainAttributes[] = {row::kName, row::kUuid, row::kAlias};
inline constexpr AttributeRow kParameterAttributes[] = {
    row::kName,
    row::kUuid,
    row::kAlias,
    {word::kType, AttributeForm::Word, false, kSimpleTypeWords},
    {word::kTypeRef, AttributeForm::Reference},
    {word::kClassRef, AttributeForm::Reference},
    {word::kKind, AttributeForm::Word, false, kKindWords},
    row::kDefault,
};
inline constexpr AttributeRow kEnumAttributes[] = {row::kName, row::kUuid, row::kAlias};
inline constexpr AttributeRow kEnumeratorAttributes[] = {
    row::kName,
    row::kUuid,
    row::kAlias,
    {word::kValue, AttributeForm::Integer},
};
inline constexpr AttributeRow kCategoryAttributes[] = {row::kName, row::kUuid, row::kAlias, {word::kGroup}};
inline constexpr AttributeRow kRBOMappingAttributes[] = {
    row::kName,
    row::kUuid,
    row::kAlias,
    {word::kApplyToRBOClass},
    {word::kApplyToRBOClassRef, AttributeForm::Reference, true},
};
inline constexpr AttributeRow kRBORootAttributes[] = {
    row::kName, row::kUuid, row::kAlias, row::kBaseClass, row::kBaseClassRef,
};
inline constexpr AttributeRow kRBOComponentAttributes[] = {
    row::kName, row::kUuid, row::kAlias, row::kBaseClass, row::kBaseClassRef, {word::kValidityRule},
};
inline constexpr AttributeRow kRBOPathExpressionAttributes[] = {
    row::kName,
    row::kUuid,
    row::kAlias,
    {word::kType},
    {word::kSubType},
    {word::kTargetName},
    {word::kTargetRef, AttributeForm::Reference, true},
};
inline constexpr AttributeRow kAttributeBlockAttributes[] = {row::kUuid, row::kName, row::kAttributeUuids};
inline constexpr AttributeRow kAttributeBlockExtensionAttributes[] = {
    row::kUuid,
    {word::kName},
    row::kAttributeUuids,
    {word::kExtents, AttributeForm::Reference, true},
};

inline constexpr std::string_view kPackageChildren[] = {
    tag::kClass,    tag::kInstance,   tag::kExtension, tag::kInterface, tag::kEnum,    tag::kCategory,
    tag::kRBOClass, tag::kRBOMapping, tag::kCommand,   tag::kBObject,   tag::kComment, tag::kKVAComment,
};
inline constexpr std::string_view kClassChildren[] = {
    tag::kSimple, tag::kRelationship, tag::kInverse, tag::kUnique, tag::kImplement, tag::kSecurity,
};
inline constexpr std::string_view kInterfaceChildren[] = {tag::kMethod};
inline constexpr std::string_view kMethodChildren[] = {tag::kParameter};
inline constexpr std::string_view kEnumChildren[] = {tag::kEnumerator};
inline constexpr std::string_view kRBOClassChildren[] = {tag::kSimple};
inline constexpr std::string_view kRBOMappingChildren[] = {tag::kRBORoot, tag::kSimple};
inline constexpr std::string_view kRBORootChildren[] = {tag::kRBOComponent, tag::kSimple};
inline constexpr std::string_view kRBOComponentChildren[] = {tag::kRBOComponent, tag::kRBOPathExpression,
                                                             tag::kSimple};

/// The tags of package documents. Command, BObject, Comment and KVAComment are read no further.
inline constexpr TagRow kTags[] = {
    {tag::kPackage, kPackageAttributes, kPackageChildren},
    {tag::kClass, kClassAttributes, kClassChildren},
    {tag::kInstance, kClassAttributes, kClassChildren},
    {tag::kExtension, kClassAttributes, kClassChildren},
    {tag::kSimple, kSimpleAttributes, {}},
    {tag::kRelationship, kRelationshipAttributes, {}},
    {tag::kInverse, kInverseAttributes, {}},
    {tag::kUnique, kUniqueAttributes, {}},
    {tag::kImplement, kImplementAttributes, {}},
    {tag::kSecurity, kSecurityAttributes, {}},
    {tag::kInterface, kInterfaceAttributes, kInterfaceChildren},
    {tag::kMethod, kPlainAttributes, kMethodChildren},
    {tag::kParameter, kParameterAttributes, {}},
    {tag::kEnum, kEnumAttributes, kEnumChildren},
    {tag::kEnumerator, kEnumeratorAttributes, {}},
    {tag::kCategory, kCategoryAttributes, {}},
    {tag::kCommand, {}, {}},
    {tag::kBObject, {}, {}},
    {tag::kComment, {}, {}},
    {tag::kKVAComment, {}, {}},
    {tag::kRBOClass, kPlainAttributes, kRBOClassChildren},
    {tag::kRBOMapping, kRBOMappingAttributes, kRBOMappingChildren},
    {tag::kRBORoot, kRBORootAttributes, kRBORootChildren},
    {tag::kRBOComponent, kRBOComponentAttributes, kRBOComponentChildren},
    {tag::kRBOPathExpression, kRBOPathExpressionAttributes, {}},
};

/// The tags of tuning documents: a description of their own, where Package and Class have other children.
inline constexpr std::string_view kTuningPackageChildren[] = {tag::kClass, tag::kExtension, tag::kComment};
inline constexpr std::string_view kTuningClassChildren[] = {tag::kAttributeBlock,
                                                            tag::kAttributeBlockExtension, tag::kComment};
inline constexpr AttributeRow kTuningIdentityAttributes[] = {row::kUuid, row::kName};
inline constexpr TagRow kTuningTags[] = {
    {tag::kPackage, kTuningIdentityAttributes, kTuningPackageChildren},
    {tag::kClass, kTuningIdentityAttributes, kTuningClassChildren},
    {tag::kExtension, kTuningIdentityAttributes, kTuningClassChildren},
    {tag::kAttributeBlock, kAttributeBlockAttributes, {}},
    {tag::kAttributeBlockExtension, kAttributeBlockExtensionAttributes, {}},
    {tag::kComment, {}, {}},
};

/// \returns the row of \p tagName, or null.
constexpr const TagRow* FindTag(std::span<const TagRow> tags, std::string_view tagName) noexcept {
    for (const TagRow& tagRow : tags) {
        if (tagRow.tag == tagName) return &tagRow;
    }
    return nullptr;
}

/// \returns the row of the attribute \p name of a tag, or null.
constexpr const AttributeRow* FindAttribute(const TagRow& tagRow, std::string_view name) noexcept {
    for (const AttributeRow& attribute : tagRow.attributes) {
        if (attribute.name == name) return &attribute;
    }
    return nullptr;
}

}  // namespace ZANDicFormat

#endif
