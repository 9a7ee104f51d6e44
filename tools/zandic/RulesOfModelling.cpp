// What a load accepts and a modeller would want to know: the rows of the rules that `check` has beside the
// reader.
#include "RuleCodes.h"
#include "Rules.h"

namespace tool {
namespace {

using enum ZanDicSeverity;

constexpr Rule kRules[] = {
    {rule::kContradictoryBounds, Warning, "the lower bound of an attribute is above its upper bound",
     "No collection can have that many values. An Upper of 0 or below stands for\n"
     "no bound.",
     "<Class Name=\"Part\" Uuid=\"10000000-0000-0000-0000000000000002\"\n"
     "       Persistent=\"Yes\">\n"
     "  <Simple Name=\"Colours\" Uuid=\"10000000-0000-0000-0000000000000003\"\n"
     "          Type=\"String\" MultiValuated=\"Yes\" Lower=\"5\" Upper=\"2\"/>\n"
     "</Class>",
     "<Class Name=\"Part\" Uuid=\"10000000-0000-0000-0000000000000002\"\n"
     "       Persistent=\"Yes\">\n"
     "  <Simple Name=\"Colours\" Uuid=\"10000000-0000-0000-0000000000000003\"\n"
     "          Type=\"String\" MultiValuated=\"Yes\" Lower=\"2\" Upper=\"5\"/>\n"
     "</Class>"},
    {rule::kEmptyBlock, Warning, "an attribute block covers no attribute",
     "Neither the block nor one that it extends names an attribute, so whoever\n"
     "asks for it finds nothing.",
     "== Parts.metadata\n"
     "<Package Name=\"Parts\" Uuid=\"10000000-0000-0000-0000000000000001\">\n"
     "  <Class Name=\"Part\" Uuid=\"10000000-0000-0000-0000000000000002\"\n"
     "         Persistent=\"Yes\">\n"
     "    <Simple Name=\"Label\" Uuid=\"10000000-0000-0000-0000000000000003\"\n"
     "            Type=\"String\"/>\n"
     "  </Class>\n"
     "</Package>\n"
     "== Parts.tuning\n"
     "<Package Name=\"Parts\" Uuid=\"10000000-0000-0000-0000000000000001\">\n"
     "  <Class Name=\"Part\" Uuid=\"10000000-0000-0000-0000000000000002\">\n"
     "    <AttributeBlock Name=\"Sheet\"\n"
     "      Uuid=\"10000000-0000-0000-0000000000000004\"\n"
     "      AttributeUuids=\"\"/>\n"
     "  </Class>\n"
     "</Package>",
     "== Parts.metadata\n"
     "<Package Name=\"Parts\" Uuid=\"10000000-0000-0000-0000000000000001\">\n"
     "  <Class Name=\"Part\" Uuid=\"10000000-0000-0000-0000000000000002\"\n"
     "         Persistent=\"Yes\">\n"
     "    <Simple Name=\"Label\" Uuid=\"10000000-0000-0000-0000000000000003\"\n"
     "            Type=\"String\"/>\n"
     "  </Class>\n"
     "</Package>\n"
     "== Parts.tuning\n"
     "<Package Name=\"Parts\" Uuid=\"10000000-0000-0000-0000000000000001\">\n"
     "  <Class Name=\"Part\" Uuid=\"10000000-0000-0000-0000000000000002\">\n"
     "    <AttributeBlock Name=\"Sheet\"\n"
     "      Uuid=\"10000000-0000-0000-0000000000000004\"\n"
     "      AttributeUuids=\"10000000-0000-0000-0000000000000003\"/>\n"
     "  </Class>\n"
     "</Package>"},
    {rule::kHiddenFromExpress, Warning, "a class ends the EXPRESS schema before others are written",
     "The export walks over the classes in the order of the document. It ends at\n"
     "the first instance, and at the first class that is neither persistent nor a\n"
     "super class: that class and all behind it are missing in the schema. Move it\n"
     "behind the others, or make it persistent.",
     "<Class Name=\"Draft\" Uuid=\"10000000-0000-0000-0000000000000002\"\n"
     "       Persistent=\"No\"/>\n"
     "<Class Name=\"Part\" Uuid=\"10000000-0000-0000-0000000000000003\"\n"
     "       Persistent=\"Yes\"/>",
     "<Class Name=\"Part\" Uuid=\"10000000-0000-0000-0000000000000003\"\n"
     "       Persistent=\"Yes\"/>\n"
     "<Class Name=\"Draft\" Uuid=\"10000000-0000-0000-0000000000000002\"\n"
     "       Persistent=\"No\"/>"},
    {rule::kMalformedUuid, Warning, "a UUID is none",
     "A UUID has 32 hexadecimal digits; single dashes may stand in front and\n"
     "behind any byte. The reader takes what it can: a byte without its digits\n"
     "counts as FF, and what is left over is passed over. Two such texts may mean\n"
     "the same UUID.",
     "<Class Name=\"Part\" Uuid=\"Part-0001\" Persistent=\"Yes\"/>",
     "<Class Name=\"Part\" Uuid=\"10000000-0000-0000-0000000000000002\"\n"
     "       Persistent=\"Yes\"/>"},
    {rule::kMandatoryCycle, Warning, "classes need each other, so that no object can be made first",
     "Every relationship of a cycle is mandatory: an object of each class needs\n"
     "one of the next, and the last needs the first. What a class inherits counts.\n"
     "A collection whose Lower is 0 may be empty and needs nothing. Let one of the\n"
     "relationships be optional.",
     "<Class Name=\"Order\" Uuid=\"10000000-0000-0000-0000000000000002\"\n"
     "       Persistent=\"Yes\">\n"
     "  <Relationship Name=\"Invoice\" Uuid=\"10000000-0000-0000-0000000000000003\"\n"
     "    TargetRef=\"10000000-0000-0000-0000000000000004\"\n"
     "    Mandatory=\"Yes\"/>\n"
     "</Class>\n"
     "<Class Name=\"Invoice\" Uuid=\"10000000-0000-0000-0000000000000004\"\n"
     "       Persistent=\"Yes\">\n"
     "  <Relationship Name=\"Order\" Uuid=\"10000000-0000-0000-0000000000000005\"\n"
     "    TargetRef=\"10000000-0000-0000-0000000000000002\"\n"
     "    Mandatory=\"Yes\"/>\n"
     "</Class>",
     "<Class Name=\"Order\" Uuid=\"10000000-0000-0000-0000000000000002\"\n"
     "       Persistent=\"Yes\">\n"
     "  <Relationship Name=\"Invoice\" Uuid=\"10000000-0000-0000-0000000000000003\"\n"
     "    TargetRef=\"10000000-0000-0000-0000000000000004\"\n"
     "    Mandatory=\"Yes\"/>\n"
     "</Class>\n"
     "<Class Name=\"Invoice\" Uuid=\"10000000-0000-0000-0000000000000004\"\n"
     "       Persistent=\"Yes\">\n"
     "  <Relationship Name=\"Order\" Uuid=\"10000000-0000-0000-0000000000000005\"\n"
     "    TargetRef=\"10000000-0000-0000-0000000000000002\"\n"
     "    Mandatory=\"No\"/>\n"
     "</Class>"},
    {rule::kNameDisagrees, Warning, "a name says something else than the reference beside it",
     "SuperName, TargetName, ScopeNames, BaseClass and ApplyToRBOClass are there\n"
     "for people: what counts is the UUID of the reference. Where both differ, one\n"
     "of them was forgotten when the other was changed. ScopeNames may have\n"
     "another order than ScopeRefs.",
     "<Class Name=\"Item\" Uuid=\"10000000-0000-0000-0000000000000002\"\n"
     "       Persistent=\"Yes\"/>\n"
     "<Class Name=\"Part\" Uuid=\"10000000-0000-0000-0000000000000003\"\n"
     "       Persistent=\"Yes\"\n"
     "       SuperName=\"Itme\"\n"
     "       SuperRef=\"10000000-0000-0000-0000000000000002\"/>",
     "<Class Name=\"Item\" Uuid=\"10000000-0000-0000-0000000000000002\"\n"
     "       Persistent=\"Yes\"/>\n"
     "<Class Name=\"Part\" Uuid=\"10000000-0000-0000-0000000000000003\"\n"
     "       Persistent=\"Yes\"\n"
     "       SuperName=\"Item\"\n"
     "       SuperRef=\"10000000-0000-0000-0000000000000002\"/>"},
    {rule::kOneSidedInverse, Warning, "an inverse and its relationship do not lead to each other",
     "An inverse names a relationship in InverseOfRef. The relationship belongs to\n"
     "the class that the inverse leads to, and leads back to the class of the\n"
     "inverse, or to one that is related to it by inheritance. Otherwise only one\n"
     "of the two sides knows the other, and nothing is ever found there.",
     "<Class Name=\"Part\" Uuid=\"10000000-0000-0000-0000000000000002\"\n"
     "       Persistent=\"Yes\">\n"
     "  <Inverse Name=\"UsedBy\" Uuid=\"10000000-0000-0000-0000000000000003\"\n"
     "    TargetRef=\"10000000-0000-0000-0000000000000004\"\n"
     "    InverseOfRef=\"10000000-0000-0000-0000000000000005\"/>\n"
     "</Class>\n"
     "<Class Name=\"Usage\" Uuid=\"10000000-0000-0000-0000000000000004\"\n"
     "       Persistent=\"Yes\">\n"
     "  <Relationship Name=\"Component\" Uuid=\"10000000-0000-0000-0000000000000005\"\n"
     "    TargetRef=\"10000000-0000-0000-0000000000000004\"/>\n"
     "</Class>",
     "<Class Name=\"Part\" Uuid=\"10000000-0000-0000-0000000000000002\"\n"
     "       Persistent=\"Yes\">\n"
     "  <Inverse Name=\"UsedBy\" Uuid=\"10000000-0000-0000-0000000000000003\"\n"
     "    TargetRef=\"10000000-0000-0000-0000000000000004\"\n"
     "    InverseOfRef=\"10000000-0000-0000-0000000000000005\"/>\n"
     "</Class>\n"
     "<Class Name=\"Usage\" Uuid=\"10000000-0000-0000-0000000000000004\"\n"
     "       Persistent=\"Yes\">\n"
     "  <Relationship Name=\"Component\" Uuid=\"10000000-0000-0000-0000000000000005\"\n"
     "    TargetRef=\"10000000-0000-0000-0000000000000002\"/>\n"
     "</Class>"},
    {rule::kRepeatedReference, Warning, "a list names the same thing more than once",
     "It counts once. As a rule something else was meant.",
     "== Parts.metadata\n"
     "<Package Name=\"Parts\" Uuid=\"10000000-0000-0000-0000000000000001\"\n"
     "         UseNames=\"People People\">\n"
     "  <Class Name=\"Buyer\" Uuid=\"10000000-0000-0000-0000000000000002\"\n"
     "         SuperRef=\"20000000-0000-0000-0000000000000002\" Persistent=\"Yes\"/>\n"
     "</Package>\n"
     "== People.metadata\n"
     "<Package Name=\"People\" Uuid=\"20000000-0000-0000-0000000000000001\">\n"
     "  <Class Name=\"Person\" Uuid=\"20000000-0000-0000-0000000000000002\"\n"
     "         Persistent=\"Yes\"/>\n"
     "</Package>",
     "== Parts.metadata\n"
     "<Package Name=\"Parts\" Uuid=\"10000000-0000-0000-0000000000000001\"\n"
     "         UseNames=\"People\">\n"
     "  <Class Name=\"Buyer\" Uuid=\"10000000-0000-0000-0000000000000002\"\n"
     "         SuperRef=\"20000000-0000-0000-0000000000000002\" Persistent=\"Yes\"/>\n"
     "</Package>\n"
     "== People.metadata\n"
     "<Package Name=\"People\" Uuid=\"20000000-0000-0000-0000000000000001\">\n"
     "  <Class Name=\"Person\" Uuid=\"20000000-0000-0000-0000000000000002\"\n"
     "         Persistent=\"Yes\"/>\n"
     "</Package>"},
    {rule::kReservedInExpress, Warning, "a name is a reserved word of EXPRESS",
     "The export writes names as they are, and no program reads a schema in which\n"
     "a class, an attribute, a unique key or the package is called like a keyword\n"
     "or a built-in function. Capitals and small letters are the same there.",
     "<Class Name=\"Part\" Uuid=\"10000000-0000-0000-0000000000000002\"\n"
     "       Persistent=\"Yes\">\n"
     "  <Simple Name=\"Type\" Uuid=\"10000000-0000-0000-0000000000000003\"\n"
     "          Type=\"String\"/>\n"
     "</Class>",
     "<Class Name=\"Part\" Uuid=\"10000000-0000-0000-0000000000000002\"\n"
     "       Persistent=\"Yes\">\n"
     "  <Simple Name=\"PartType\" Uuid=\"10000000-0000-0000-0000000000000003\"\n"
     "          Type=\"String\"/>\n"
     "</Class>"},
    {rule::kSameNameInScope, Warning, "a scope holds two classes of the same name",
     "Classes of different packages may be called the same, and the scope keeps\n"
     "them apart by their UUIDs. Whoever looks at names, as in ScopeNames, cannot.",
     "== Parts.metadata\n"
     "<Package Name=\"Parts\" Uuid=\"10000000-0000-0000-0000000000000001\"\n"
     "         UseNames=\"People\">\n"
     "  <Class Name=\"Person\" Uuid=\"10000000-0000-0000-0000000000000002\"\n"
     "         Persistent=\"Yes\" Extensible=\"Yes\"/>\n"
     "  <Extension Name=\"Address\" Uuid=\"10000000-0000-0000-0000000000000003\"\n"
     "    Persistent=\"Yes\"\n"
     "    ScopeRefs=\"10000000-0000-0000-0000000000000002\n"
     "               20000000-0000-0000-0000000000000002\"/>\n"
     "</Package>\n"
     "== People.metadata\n"
     "<Package Name=\"People\" Uuid=\"20000000-0000-0000-0000000000000001\">\n"
     "  <Class Name=\"Person\" Uuid=\"20000000-0000-0000-0000000000000002\"\n"
     "         Persistent=\"Yes\" Extensible=\"Yes\"/>\n"
     "</Package>",
     "== Parts.metadata\n"
     "<Package Name=\"Parts\" Uuid=\"10000000-0000-0000-0000000000000001\"\n"
     "         UseNames=\"People\">\n"
     "  <Class Name=\"Buyer\" Uuid=\"10000000-0000-0000-0000000000000002\"\n"
     "         Persistent=\"Yes\" Extensible=\"Yes\"/>\n"
     "  <Extension Name=\"Address\" Uuid=\"10000000-0000-0000-0000000000000003\"\n"
     "    Persistent=\"Yes\"\n"
     "    ScopeRefs=\"10000000-0000-0000-0000000000000002\n"
     "               20000000-0000-0000-0000000000000002\"/>\n"
     "</Package>\n"
     "== People.metadata\n"
     "<Package Name=\"People\" Uuid=\"20000000-0000-0000-0000000000000001\">\n"
     "  <Class Name=\"Person\" Uuid=\"20000000-0000-0000-0000000000000002\"\n"
     "         Persistent=\"Yes\" Extensible=\"Yes\"/>\n"
     "</Package>"},
    {rule::kSkippedMember, Warning, "a member of a class has no Name and is skipped",
     "The reader passes over it without a word, whatever else it says.",
     "<Class Name=\"Part\" Uuid=\"10000000-0000-0000-0000000000000002\"\n"
     "       Persistent=\"Yes\">\n"
     "  <Simple Uuid=\"10000000-0000-0000-0000000000000003\"\n"
     "          Type=\"String\"/>\n"
     "</Class>",
     "<Class Name=\"Part\" Uuid=\"10000000-0000-0000-0000000000000002\"\n"
     "       Persistent=\"Yes\">\n"
     "  <Simple Name=\"Label\" Uuid=\"10000000-0000-0000-0000000000000003\"\n"
     "          Type=\"String\"/>\n"
     "</Class>"},
    {rule::kTooLongForExpress, Warning, "a name is too long for EXPRESS",
     "Names of classes, attributes, unique keys and packages with more than 128\n"
     "characters are cut or refused by programs that read schemas. EXPRESS itself\n"
     "sets no limit.",
     "<Class Name=\"Part\" Uuid=\"10000000-0000-0000-0000000000000002\"\n"
     "       Persistent=\"Yes\">\n"
     "  <Simple Type=\"String\" Uuid=\"10000000-0000-0000-0000000000000003\"\n"
     "    Name=\""
     "a_name_that_nobody_can_remember_and_a_name_that_nobody_can_r"
     "emember_and_a_name_that_nobody_can_remember_and_a_name_that_"
     "nobody_can_remember"
     "\"/>\n"
     "</Class>",
     "<Class Name=\"Part\" Uuid=\"10000000-0000-0000-0000000000000002\"\n"
     "       Persistent=\"Yes\">\n"
     "  <Simple Name=\"Label\" Uuid=\"10000000-0000-0000-0000000000000003\"\n"
     "          Type=\"String\"/>\n"
     "</Class>"},
    {rule::kUnnamedPackage, Warning, "a package is used without being named",
     "The reference finds its target only since something else has loaded that\n"
     "package before: a package that this one uses, or the program. Name it in\n"
     "UseNames, so that the document can be loaded by itself tomorrow too.",
     "== Parts.metadata\n"
     "<Package Name=\"Parts\" Uuid=\"10000000-0000-0000-0000000000000001\"\n"
     "         UseNames=\"People\">\n"
     "  <Class Name=\"Office\" Uuid=\"10000000-0000-0000-0000000000000002\"\n"
     "         SuperRef=\"20000000-0000-0000-0000000000000005\" Persistent=\"Yes\"/>\n"
     "  <Class Name=\"Buyer\" Uuid=\"10000000-0000-0000-0000000000000003\"\n"
     "         SuperRef=\"20000000-0000-0000-0000000000000002\" Persistent=\"Yes\"/>\n"
     "</Package>\n"
     "== People.metadata\n"
     "<Package Name=\"People\" Uuid=\"20000000-0000-0000-0000000000000001\"\n"
     "         UseNames=\"Places\">\n"
     "  <Class Name=\"Person\" Uuid=\"20000000-0000-0000-0000000000000002\"\n"
     "         Persistent=\"Yes\">\n"
     "    <Relationship Name=\"Home\"\n"
     "      Uuid=\"20000000-0000-0000-0000000000000003\"\n"
     "      TargetRef=\"20000000-0000-0000-0000000000000005\"/>\n"
     "  </Class>\n"
     "</Package>\n"
     "== Places.metadata\n"
     "<Package Name=\"Places\" Uuid=\"20000000-0000-0000-0000000000000004\">\n"
     "  <Class Name=\"Place\" Uuid=\"20000000-0000-0000-0000000000000005\"\n"
     "         Persistent=\"Yes\"/>\n"
     "</Package>",
     "== Parts.metadata\n"
     "<Package Name=\"Parts\" Uuid=\"10000000-0000-0000-0000000000000001\"\n"
     "         UseNames=\"People Places\">\n"
     "  <Class Name=\"Office\" Uuid=\"10000000-0000-0000-0000000000000002\"\n"
     "         SuperRef=\"20000000-0000-0000-0000000000000005\" Persistent=\"Yes\"/>\n"
     "  <Class Name=\"Buyer\" Uuid=\"10000000-0000-0000-0000000000000003\"\n"
     "         SuperRef=\"20000000-0000-0000-0000000000000002\" Persistent=\"Yes\"/>\n"
     "</Package>\n"
     "== People.metadata\n"
     "<Package Name=\"People\" Uuid=\"20000000-0000-0000-0000000000000001\"\n"
     "         UseNames=\"Places\">\n"
     "  <Class Name=\"Person\" Uuid=\"20000000-0000-0000-0000000000000002\"\n"
     "         Persistent=\"Yes\">\n"
     "    <Relationship Name=\"Home\"\n"
     "      Uuid=\"20000000-0000-0000-0000000000000003\"\n"
     "      TargetRef=\"20000000-0000-0000-0000000000000005\"/>\n"
     "  </Class>\n"
     "</Package>\n"
     "== Places.metadata\n"
     "<Package Name=\"Places\" Uuid=\"20000000-0000-0000-0000000000000004\">\n"
     "  <Class Name=\"Place\" Uuid=\"20000000-0000-0000-0000000000000005\"\n"
     "         Persistent=\"Yes\"/>\n"
     "</Package>"},
    {rule::kUnreadAttribute, Warning, "an attribute is never read",
     "Of relationships, inverses and everything in tuning documents the reader\n"
     "asks for the attributes that it knows, and for no others: what else stands\n"
     "there is lost, and a save does not write it. Only an extension has ScopeRefs\n"
     "to extend something.",
     "<Class Name=\"Part\" Uuid=\"10000000-0000-0000-0000000000000002\"\n"
     "       Persistent=\"Yes\">\n"
     "  <Relationship Name=\"Whole\" Uuid=\"10000000-0000-0000-0000000000000003\"\n"
     "    TargetRef=\"10000000-0000-0000-0000000000000002\"\n"
     "    MultiValued=\"Yes\"/>\n"
     "</Class>",
     "<Class Name=\"Part\" Uuid=\"10000000-0000-0000-0000000000000002\"\n"
     "       Persistent=\"Yes\">\n"
     "  <Relationship Name=\"Whole\" Uuid=\"10000000-0000-0000-0000000000000003\"\n"
     "    TargetRef=\"10000000-0000-0000-0000000000000002\"\n"
     "    MultiValuated=\"Yes\"/>\n"
     "</Class>"},
    {rule::kUntyped, Warning, "an attribute or a parameter has no type",
     "A simple attribute needs a Type, or the TargetRef of an enumeration; a\n"
     "relationship or inverse a TargetRef or, where it leads out of the\n"
     "dictionary, a Type; a parameter a Type or a TypeRef. Without, whoever reads\n"
     "it cannot know what its values are.",
     "<Class Name=\"Part\" Uuid=\"10000000-0000-0000-0000000000000002\"\n"
     "       Persistent=\"Yes\">\n"
     "  <Simple Name=\"Label\"\n"
     "          Uuid=\"10000000-0000-0000-0000000000000003\"/>\n"
     "</Class>",
     "<Class Name=\"Part\" Uuid=\"10000000-0000-0000-0000000000000002\"\n"
     "       Persistent=\"Yes\">\n"
     "  <Simple Name=\"Label\"\n"
     "          Uuid=\"10000000-0000-0000-0000000000000003\"\n"
     "          Type=\"String\"/>\n"
     "</Class>"},
    {rule::kUnusedPackage, Warning, "a package is named in UseNames and not used",
     "No element refers to anything in it, nor does the tuning document. It is\n"
     "loaded all the same, each time. A package need not name itself.",
     "== Parts.metadata\n"
     "<Package Name=\"Parts\" Uuid=\"10000000-0000-0000-0000000000000001\"\n"
     "         UseNames=\"People\">\n"
     "  <Class Name=\"Buyer\" Uuid=\"10000000-0000-0000-0000000000000002\"\n"
     "         Persistent=\"Yes\"/>\n"
     "</Package>\n"
     "== People.metadata\n"
     "<Package Name=\"People\" Uuid=\"20000000-0000-0000-0000000000000001\">\n"
     "  <Class Name=\"Person\" Uuid=\"20000000-0000-0000-0000000000000002\"\n"
     "         Persistent=\"Yes\"/>\n"
     "</Package>",
     "== Parts.metadata\n"
     "<Package Name=\"Parts\" Uuid=\"10000000-0000-0000-0000000000000001\"\n"
     "         UseNames=\"People\">\n"
     "  <Class Name=\"Buyer\" Uuid=\"10000000-0000-0000-0000000000000002\"\n"
     "         SuperRef=\"20000000-0000-0000-0000000000000002\"\n"
     "         Persistent=\"Yes\"/>\n"
     "</Package>\n"
     "== People.metadata\n"
     "<Package Name=\"People\" Uuid=\"20000000-0000-0000-0000000000000001\">\n"
     "  <Class Name=\"Person\" Uuid=\"20000000-0000-0000-0000000000000002\"\n"
     "         Persistent=\"Yes\"/>\n"
     "</Package>"},
};

}  // namespace

std::span<const Rule> RulesOfModelling() { return kRules; }

}  // namespace tool
