#include "FormatMeanings.h"

#include "ZANDicTags.h"

using namespace ZANDicFormat;

namespace documents {
namespace {

constexpr TagMeaning kTagMeanings[] = {
    {tag::kPackage,
     "The document: what is loaded, saved and unloaded as one. It is the root, or a child of the root."},
    {tag::kClass, "A class: one super class, attributes of its own, unique keys."},
    {tag::kInstance,
     "A class whose objects are instances; read as `Class`, but redefinitions are not checked."},
    {tag::kExtension, "Adds attributes to extensible classes: those of `ScopeRefs`."},
    {tag::kSimple, "An attribute of a primitive type or of an enumeration."},
    {tag::kRelationship,
     "An attribute that refers to objects of a class. Attributes that the table lacks are not looked at; of "
     "one given twice the first counts."},
    {tag::kInverse,
     "The other side of a relationship. Attributes that the table lacks are not looked at; of one given "
     "twice "
     "the first counts."},
    {tag::kUnique, "A key: attributes whose values together are found once."},
    {tag::kImplement, "Not supported: a fault."},
    {tag::kSecurity, "Not supported: a fault."},
    {tag::kInterface, "A named set of methods."},
    {tag::kMethod, "A method of an interface."},
    {tag::kParameter, "A parameter of a method, or what it returns."},
    {tag::kEnum, "An enumeration."},
    {tag::kEnumerator, "A named number of an enumeration."},
    {tag::kCategory, "A label that attributes may bear."},
    {tag::kCommand, "Not supported any more: a fault."},
    {tag::kBObject, "Not supported any more: a fault."},
    {tag::kComment, "Passed over with all that it holds."},
    {tag::kKVAComment, "Passed over with all that it holds."},
    {tag::kRBOClass,
     "A class of the relational side, such as a table. Its free attributes are its properties."},
    {tag::kRBOMapping, "How an RBO class is made of classes."},
    {tag::kRBORoot, "A class that a mapping starts from."},
    {tag::kRBOComponent, "A part of a root or of another component, to any depth."},
    {tag::kRBOPathExpression, "The way from a component to an element. A component has one at most."},
    {tag::kAttributeBlock, "A group of attributes of the class."},
    {tag::kAttributeBlockExtension, "A block that adds attributes to another, the one that `Extents` names."},
};

constexpr AttributeMeaning kAttributeMeanings[] = {
    // identity
    {tag::kPackage, word::kName,
     "The package's name. Without it the name of the file stands in, with a warning."},
    {tag::kAttributeBlockExtension, word::kName,
     "Accepted; the block bears the name of the one that it extends."},
    {{}, word::kName, "The name, unique in its owner."},
    {{}, word::kUuid, "The identity, unique in the process."},
    {{}, word::kAlias, "A name for people."},
    {{}, word::kExpositionLevel, "A text for programs to use as they like."},
    {{}, word::kVisibility, "Who sees it."},
    {{}, word::kDefault, "The value of an object that has none yet."},

    // packages
    {{},
     word::kDomain,
     "The domain; `VALKOR` unless given. What refers to an element of another domain is a fault."},
    {{},
     word::kUseNames,
     "Packages that are loaded first. A name may have a content word, as in `Items.rbodef`."},
    {{}, word::kUseScopes, "Packages that are loaded after the package's own elements were read."},
    {{}, word::kVersion, "Kept as a free attribute."},
    {tag::kPackage, word::kCommandRefs, "Commands that the program made and registered before the load."},
    {{}, word::kCommandRefs, "Resolved, without effect: a class takes no commands."},

    // classes
    {{}, word::kPersistent, "Whether objects are stored. Anything but `Yes` and `No` is a fault."},
    {{}, word::kKVADerivable, "Whether classes may be derived at run time; inherited unless given."},
    {{}, word::kAbstract, "Whether there are no objects of the class itself."},
    {{}, word::kExtensible, "Whether extensions may extend it; inherited unless given."},
    {{}, word::kLateType, "A text for programs to use as they like."},
    {{}, word::kApplicationName, "A text for programs to use as they like."},
    {tag::kInterface, word::kSuperRef, "The super interface."},
    {{}, word::kSuperRef, "The super class. An extension cannot be that of a class."},
    {{}, word::kSuperName, "The super class's name."},
    {{}, word::kReferenceRef, "A class that this one refers to."},
    {tag::kRelationship, word::kScopeRefs, "Classes to which the attribute applies, with all below them."},
    {{}, word::kScopeRefs, "The classes that an extension extends; of others without effect."},
    {{}, word::kScopeNames, "The names of those classes."},
    {{}, word::kInterfaceRefs, "Interfaces of the class."},

    // attributes
    {tag::kSimple, word::kType, "The primitive type. `TargetRef` wins over it."},
    {tag::kSimple, word::kTargetRef, "The enumeration that types the attribute."},
    {tag::kRelationship, word::kType, "A primitive in place of a class, for targets outside."},
    {tag::kInverse, word::kType, "A primitive in place of a class."},
    {tag::kRelationship, word::kTargetRef, "The target class, or `AnyObject`."},
    {tag::kInverse, word::kTargetRef, "The target class, or `AnyObject`."},
    {{}, word::kCategoryRefs, "Categories of the attribute."},
    {{}, word::kAccessMode, "How values may be used; `Read` unless given."},
    {{}, word::kMandatory, "Whether an object must have a value."},
    {{}, word::kMultiValuated, "Whether an object may have several values."},
    {{}, word::kCaseMode, "The case of the letters of a text; `Mixed` unless given."},
    {{}, word::kMaxLength, "The longest value; -1, no limit, unless given."},
    {{}, word::kSensitive, "Whether values are confidential."},
    {{},
     word::kUpdateFacet,
     "Which way updates go between the attribute and its storage; `NEUTRAL` unless given."},
    {{}, word::kMagnitude, "What is measured, such as `MASS`."},
    {{}, word::kDBFormat, "The type of a column."},
    {{}, word::kLower, "The fewest values of a collection; 0 unless given."},
    {{}, word::kUpper, "The most values of a collection; 0 unless given."},
    {{}, word::kCollectionType, "The collection of several values; `List` unless given."},
    {{}, word::kAggregation, "How tightly targets are held; `Shared` unless given."},
    {{}, word::kScope, "Where targets live; nowhere in particular unless given."},
    {{}, word::kInjective, "Whether two objects may not share a target."},
    {{}, word::kInverseOfRef, "The relationship whose other side this is."},
    {{}, word::kUniqueRefs, "The attributes of the key."},
    {{}, word::kIOMode, "Without effect."},
    {{}, word::kSecured, "Without effect."},
    {{}, word::kEventType, "Without effect."},
    {{}, word::kEventMode, "Without effect."},

    // parameters, enumerations, categories
    {tag::kParameter, word::kType, "The primitive type."},
    {{}, word::kTypeRef, "The element that types the parameter."},
    {{}, word::kClassRef, "The same, where there is no `TypeRef`."},
    {{}, word::kKind, "The direction."},
    {{}, word::kValue, "The number."},
    {{}, word::kGroup, "Whatever categories have in common."},

    // mappings
    {{}, word::kApplyToRBOClass, "The RBO class's name."},
    {{}, word::kApplyToRBOClassRef, "The RBO class. Stored as it stands, and resolved."},
    {{}, word::kBaseClass, "The base class's name."},
    {{}, word::kBaseClassRef, "The class that it is based on. Stored as it stands, and resolved."},
    {{}, word::kValidityRule, "A condition, for programs to read."},
    {tag::kRBOPathExpression, word::kType, "What kind of step it is, such as `OXMTPRelation`."},
    {{}, word::kSubType, "More of that."},
    {tag::kRBOPathExpression, word::kTargetName, "The target's name."},
    {{}, word::kTargetName, "The target's name."},
    {tag::kRBOPathExpression, word::kTargetRef,
     "The element that it leads to. Stored as it stands, and resolved."},

    // blocks
    {{}, word::kAttributeUuids, "Attributes of the class, perhaps none."},
    {{}, word::kExtents, "The block that this one extends."},
};

/// Of tuning documents, where they differ.
constexpr TagMeaning kTuningTagMeanings[] = {
    {tag::kPackage, "The package that was loaded under the document's name."},
    {tag::kClass, "A class that is loaded."},
    {tag::kExtension, "An extension that is loaded."},
};
constexpr AttributeMeaning kTuningAttributeMeanings[] = {
    {tag::kPackage, word::kUuid, "The package's own; another is a fault."},
    {tag::kPackage, word::kName, "The package's own; another is a fault."},
    {tag::kClass, word::kUuid, "The class's own."},
    {tag::kClass, word::kName, "The class's own; another is a fault."},
    {tag::kExtension, word::kUuid, "The extension's own."},
    {tag::kExtension, word::kName, "The extension's own; another is a fault."},
};

constexpr OtherWords kOtherWords[] = {
    {kVisibilityWords, "Visibility", "stands for `Public`"},
    {kAccessModeSimpleWords, "AccessMode of Simple", "stands for `ReadWrite`"},
    {kAccessModeRelationWords, "AccessMode of Relationship and Inverse", "stands for `ReadWrite`"},
    {kCaseModeWords, "CaseMode", "changes nothing; a warning"},
    {kUpdateFacetWords, "UpdateFacet", "changes nothing; a warning"},
    {kCollectionWords, "CollectionType", "changes nothing; a warning"},
    {kAggregationWords, "Aggregation", "stands for `None`"},
    {kScopeWords, "Scope", "stands for no place in particular, 1"},
    {kKVADerivableWords, "KVA_Derivable", "stands for inherited, 1"},
    {kSimpleTypeWords, "Type of Simple and Parameter",
     "is kept as a free attribute by Simple, with a warning; of Parameter it is a fault"},
    {kRelationTypeWords, "Type of Relationship and Inverse", "stands for `Binary`"},
    {kTargetWords, "TargetRef of Relationship and Inverse", "is a UUID"},
    {kKindWords, "Kind", "is a fault"},
    {kIOModeWords, "IOMode", "never read"},
    {kSecuredWords, "Secured", "never read"},
    {kEventTypeWords, "EventType", "never read"},
    {kEventModeWords, "EventMode", "never read"},
};

constexpr ContentMeaning kContentMeanings[] = {
    {"metadata", "A package. What `LoadPackageFromDir` reads unless told otherwise."},
    {"tuning", "The attribute blocks of a package. Read after the package of that name, where there is one."},
    {"rbodef", "A package of RBO classes."},
    {"rbomap", "A package of mappings."},
    {"metaplm", "A package, read as one in `metadata` is."},
};

}  // namespace

std::span<const TagMeaning> TagMeanings() { return kTagMeanings; }
std::span<const AttributeMeaning> AttributeMeanings() { return kAttributeMeanings; }
std::span<const TagMeaning> TuningTagMeanings() { return kTuningTagMeanings; }
std::span<const AttributeMeaning> TuningAttributeMeanings() { return kTuningAttributeMeanings; }
std::span<const OtherWords> OtherWordMeanings() { return kOtherWords; }
std::span<const ContentMeaning> ContentMeanings() { return kContentMeanings; }

}  // namespace documents
