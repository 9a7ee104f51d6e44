#include "SaveLosses.h"

#include <algorithm>
#include <iterator>

#include "ZANDicTags.h"

namespace {

using namespace ZANDicFormat;

constexpr std::string_view kObjects[] = {
    tag::kPackage,      tag::kClass,   tag::kInstance,     tag::kExtension,         tag::kSimple,
    tag::kRelationship, tag::kInverse, tag::kUnique,       tag::kInterface,         tag::kMethod,
    tag::kParameter,    tag::kEnum,    tag::kEnumerator,   tag::kCategory,          tag::kRBOClass,
    tag::kRBOMapping,   tag::kRBORoot, tag::kRBOComponent, tag::kRBOPathExpression,
};
/// All but packages.
constexpr std::span<const std::string_view> kElements = std::span(kObjects).subspan(1);
/// Every attribute answers the interfaces of all three kinds.
constexpr std::string_view kAttributes[] = {tag::kSimple, tag::kRelationship, tag::kInverse};
/// An interface answers that of a class.
constexpr std::string_view kClasses[] = {tag::kClass, tag::kInstance, tag::kExtension, tag::kInterface};

/// A property that callers can set, and the kinds that have it.
struct Property {
    std::string_view name;  ///< in the guide
    std::string_view word;  ///< as for IsSaved
    std::span<const std::string_view> tags;
};

constexpr Property kProperties[] = {
    {"alias", word::kAlias, kObjects},
    {"exposition level", word::kExpositionLevel, kObjects},
    {"visibility", word::kVisibility, kElements},
    {"categories", word::kCategoryRefs, kObjects},
    {"free attributes", kFreeProperty, kObjects},
    {"super class, super interface", word::kSuperRef, kClasses},
    {"reference class", word::kReferenceRef, kClasses},
    {"persistence", word::kPersistent, kClasses},
    {"abstractness", word::kAbstract, kClasses},
    {"extensibility", word::kExtensible, kClasses},
    {"derivability at run time", word::kKVADerivable, kClasses},
    {"late type", word::kLateType, kClasses},
    {"application name", word::kApplicationName, kClasses},
    {"attributes", tag::kSimple, kClasses},
    {"unique keys", tag::kUnique, kClasses},
    {"methods", tag::kMethod, kClasses},
    {"access mode", word::kAccessMode, kAttributes},
    {"mandatory flag", word::kMandatory, kAttributes},
    {"sensitivity", word::kSensitive, kAttributes},
    {"multiple values", word::kMultiValuated, kAttributes},
    {"maximum length", word::kMaxLength, kAttributes},
    {"bounds", word::kLower, kAttributes},
    {"collection type", word::kCollectionType, kAttributes},
    {"update facet", word::kUpdateFacet, kAttributes},
    {"default", word::kDefault, kAttributes},
    {"case mode", word::kCaseMode, kAttributes},
    {"magnitude", word::kMagnitude, kAttributes},
    {"database format", word::kDBFormat, kAttributes},
    {"aggregation", word::kAggregation, kAttributes},
    {"injective flag", word::kInjective, kAttributes},
    {"scope", word::kScope, kAttributes},
    {"classes of the scope", word::kScopeRefs, kAttributes},
    {"inverted relationship", word::kInverseOfRef, kAttributes},
};

constexpr LossRow kLossRows[] = {
    {Loss::AccessModeNone, true, true, "the access mode None of a relationship or inverse", "Read"},
    {Loss::NumberWithoutWord, true, true,
     "a number that has no word, set as a visibility, mode, kind, facet, collection type or derivability",
     "the initial value"},
    {Loss::TypeWithoutWord, true, true,
     "a Simple typed URL, AnyObject or by a class, a parameter typed URL or AnyObject, a relationship or "
     "inverse typed by another primitive than AnyObject, Binary, String and URL, by an enumeration or by an "
     "interface",
     "no type; of the Simple, the name of the primitive as a free attribute `Type`"},
    {Loss::HalfInverse, true, true, "the link of an inverse that is set on one side only or listed twice",
     "both sides, once, when the inverse has it; else none"},
    {Loss::LateInjective, true, true, "an injective flag that was set after the target",
     "the flag; and the relationship counts among those that point on the target"},
    {Loss::ForbiddenCharacter, true, true, "characters that XML does not allow, and broken UTF-8",
     "U+FFFD, and a warning"},
    {Loss::UnlistedPackage, true, true,
     "a used or scope package whose name holds a blank, or is none that a document can have",
     "nothing, and a warning"},
    {Loss::FreeName, true, true,
     "a free attribute whose name is no XML name or belongs to the kind's own attributes (`Version` of a "
     "package, and a `Type` that names no primitive of a Simple that none types, are kept)",
     "nothing, and a warning"},
    {Loss::StoredReference, true, true,
     "a name or UUID stored with an RBO mapping, root, component or path expression that is not that of the "
     "linked object",
     "those of the linked object; without one, the object of that UUID"},
    {Loss::InstanceFlag, true, false, "the instance flag of an extension or interface", "not set"},
    {Loss::LostLink, true, false, "a link to what is no longer loaded",
     "nothing, and a warning; of RBO objects, what they store"},
    {Loss::Command, true, false, "commands of a package", "none: such a document loads nowhere else"},
    {Loss::Block, true, false, "attribute blocks that a caller made", "those of the tuning document"},
    {Loss::Comment, true, false,
     "comments of the document, unknown attributes of its relationships and inverses", "nothing"},

    {Loss::PackageName, false, true, "a package whose name is empty or holds a slash, a backslash or a \".\"",
     "not saved: the call fails and writes a line"},
    {Loss::Domain, false, true, "a domain other than VALKOR and DUVRA, a link between domains",
     "does not load"},
    {Loss::EmptyName, false, true, "an element without name", "does not load"},
    {Loss::SameName, false, true, "elements that bear one name since one was renamed", "do not load"},
    {Loss::UnusedPackage, false, true, "a link into a package that is neither used nor a scope package",
     "does not load by itself"},
    {Loss::UnextensibleScope, false, true, "an extension of a class that is not extensible", "does not load"},
    {Loss::RedefinedTarget, false, true,
     "a relationship that redefines another whose target it does not derive from", "does not load"},
    {Loss::MissingReference, false, true, "a mapping without RBO class, a path expression without target",
     "does not load"},
    {Loss::OddLink, false, true,
     "a unique key with a member that is no attribute, a parameter as a type or as the target of a path, an "
     "interface as super class, reference, scope or base class of what is none",
     "does not load"},
};

std::string Joined(const std::string& list, std::string_view item) {
    return list.empty() ? std::string(item) : list + ", " + std::string(item);
}

std::string Row(std::string_view first, std::string_view second) {
    return std::string("| ").append(first).append(" | ").append(second).append(" |\n");
}

}  // namespace

std::span<const LossRow> LossRows() { return kLossRows; }

bool IsSaved(std::string_view tag, std::string_view property) {
    if (property == kFreeProperty) return tag != tag::kRelationship && tag != tag::kInverse;
    const TagRow* const row = FindTag(kTags, tag);
    return FindAttribute(*row, property) != nullptr ||
           std::find(row->children.begin(), row->children.end(), property) != row->children.end();
}

std::string TableOfProperties() {
    std::string table = Row("property", "not kept of") + "|---|---|\n";
    for (const Property& property : kProperties) {
        std::string tags;
        for (const std::string_view tag : property.tags) {
            if (!IsSaved(tag, property.word)) tags = Joined(tags, tag);
        }
        if (!tags.empty()) table += Row(property.name, tags);
    }
    return table;
}

std::string TableOfLosses(bool loads) {
    std::string table = loads ? Row("lost", "what comes back") : Row("model", "what happens");
    table += "|---|---|\n";
    for (const LossRow& row : kLossRows) {
        if (row.loads == loads) table += Row(row.what, row.instead);
    }
    return table;
}
