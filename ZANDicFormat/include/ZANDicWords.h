/// The names of tags and attributes, and the few values that stand for themselves. Each word of the
/// documents is typed here or in ZANDicValueWords.h, once.
#ifndef ZAN_DIC_WORDS_H
#define ZAN_DIC_WORDS_H

#include <string_view>

namespace ZANDicFormat {

/// Names of tags.
namespace tag {
inline constexpr std::string_view kPackage = "Package";
inline constexpr std::string_view kComment = "Comment";
inline constexpr std::string_view kKVAComment = "KVAComment";
inline constexpr std::string_view kClass = "Class";
inline constexpr std::string_view kInstance = "Instance";
inline constexpr std::string_view kExtension = "Extension";
inline constexpr std::string_view kSimple = "Simple";
inline constexpr std::string_view kRelationship = "Relationship";
inline constexpr std::string_view kInverse = "Inverse";
inline constexpr std::string_view kUnique = "Unique";
inline constexpr std::string_view kImplement = "Implement";
inline constexpr std::string_view kSecurity = "Security";
inline constexpr std::string_view kInterface = "Interface";
inline constexpr std::string_view kMethod = "Method";
inline constexpr std::string_view kParameter = "Parameter";
inline constexpr std::string_view kEnum = "Enum";
inline constexpr std::string_view kEnumerator = "Enumerator";
inline constexpr std::string_view kCategory = "Category";
inline constexpr std::string_view kCommand = "Command";
inline constexpr std::string_view kBObject = "BObject";
inline constexpr std::string_view kRBOClass = "RBOClass";
inline constexpr std::string_view kRBOMapping = "RBOMapping";
inline constexpr std::string_view kRBORoot = "RBORoot";
inline constexpr std::string_view kRBOComponent = "RBOComponent";
inline constexpr std::string_view kRBOPathExpression = "RBOPathExpression";
inline constexpr std::string_view kAttributeBlock = "AttributeBlock";
inline constexpr std::string_view kAttributeBlockExtension = "AttributeBlockExtension";
}  // namespace tag

/// Names of attributes.
namespace word {
inline constexpr std::string_view kName = "Name";
inline constexpr std::string_view kUuid = "Uuid";
inline constexpr std::string_view kAlias = "Alias";
inline constexpr std::string_view kExpositionLevel = "ExpositionLevel";
inline constexpr std::string_view kVisibility = "Visibility";

inline constexpr std::string_view kDomain = "Domain";
inline constexpr std::string_view kUseNames = "UseNames";
inline constexpr std::string_view kUseScopes = "UseScopes";
inline constexpr std::string_view kVersion = "Version";
inline constexpr std::string_view kCommandRefs = "CommandRefs";

inline constexpr std::string_view kPersistent = "Persistent";
inline constexpr std::string_view kKVADerivable = "KVA_Derivable";
inline constexpr std::string_view kAbstract = "Abstract";
inline constexpr std::string_view kExtensible = "Extensible";
inline constexpr std::string_view kLateType = "LateType";
inline constexpr std::string_view kApplicationName = "ApplicationName";
inline constexpr std::string_view kSuperRef = "SuperRef";
inline constexpr std::string_view kSuperName = "SuperName";
inline constexpr std::string_view kReferenceRef = "ReferenceRef";
inline constexpr std::string_view kScopeRefs = "ScopeRefs";
inline constexpr std::string_view kScopeNames = "ScopeNames";
inline constexpr std::string_view kInterfaceRefs = "InterfaceRefs";

inline constexpr std::string_view kType = "Type";
inline constexpr std::string_view kTargetRef = "TargetRef";
inline constexpr std::string_view kTargetName = "TargetName";
inline constexpr std::string_view kCategoryRefs = "CategoryRefs";
inline constexpr std::string_view kAccessMode = "AccessMode";
inline constexpr std::string_view kMandatory = "Mandatory";
inline constexpr std::string_view kMultiValuated = "MultiValuated";
inline constexpr std::string_view kCaseMode = "CaseMode";
inline constexpr std::string_view kMaxLength = "MaxLength";
inline constexpr std::string_view kSensitive = "Sensitive";
inline constexpr std::string_view kUpdateFacet = "UpdateFacet";
inline constexpr std::string_view kDefault = "Default";
inline constexpr std::string_view kMagnitude = "Magnitude";
inline constexpr std::string_view kDBFormat = "DBFormat";
inline constexpr std::string_view kLower = "Lower";
inline constexpr std::string_view kUpper = "Upper";
inline constexpr std::string_view kCollectionType = "CollectionType";
inline constexpr std::string_view kAggregation = "Aggregation";
inline constexpr std::string_view kScope = "Scope";
inline constexpr std::string_view kInjective = "Injective";
inline constexpr std::string_view kInverseOfRef = "InverseOfRef";
inline constexpr std::string_view kUniqueRefs = "UniqueRefs";

inline constexpr std::string_view kIOMode = "IOMode";
inline constexpr std::string_view kSecured = "Secured";
inline constexpr std::string_view kEventType = "EventType";
inline constexpr std::string_view kEventMode = "EventMode";

inline constexpr std::string_view kTypeRef = "TypeRef";
inline constexpr std::string_view kClassRef = "ClassRef";
inline constexpr std::string_view kKind = "Kind";
inline constexpr std::string_view kValue = "Value";
inline constexpr std::string_view kGroup = "Group";

inline constexpr std::string_view kApplyToRBOClass = "ApplyToRBOClass";
inline constexpr std::string_view kApplyToRBOClassRef = "ApplyToRBOClassRef";
inline constexpr std::string_view kBaseClass = "BaseClass";
inline constexpr std::string_view kBaseClassRef = "BaseClassRef";
inline constexpr std::string_view kValidityRule = "ValidityRule";
inline constexpr std::string_view kSubType = "SubType";

inline constexpr std::string_view kAttributeUuids = "AttributeUuids";
inline constexpr std::string_view kExtents = "Extents";
}  // namespace word

/// Values that stand for themselves.
namespace value {
inline constexpr std::string_view kYes = "Yes";  ///< the only word that makes a flag true
inline constexpr std::string_view kNo = "No";
inline constexpr std::string_view kAnyObject = "AnyObject";         ///< in place of the UUID of a target
inline constexpr std::string_view kRelationType = "OXMTPRelation";  ///< `Type` of a path expression
inline constexpr std::string_view kDefaultDomain = "VALKOR";
inline constexpr std::string_view kOtherDomain = "DUVRA";
}  // namespace value

/// The domains that a package may be in.
inline constexpr std::string_view kDomains[] = {value::kDefaultDomain, value::kOtherDomain};

}  // namespace ZANDicFormat

#endif
