// What the reader refuses or passes over: one row for each of its codes, and the rows of the search for
// documents.
#include "Rules.h"

namespace tool {
namespace {

using enum ZanDicSeverity;

constexpr Rule kRules[] = {
    {"file-not-found", Error, "a document is not there",
     "The package that is asked for, or that a document names in UseNames or\n"
     "UseScopes, has no document in the directories that are searched. Correct\n"
     "the name, or add the directory to the path.",
     "<Package Name=\"Parts\" Uuid=\"10000000-0000-0000-0000000000000001\"\n"
     "         UseNames=\"Peopel\"/>",
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
    {"invalid-file-extension", Error, "a package is asked for with a word that is no kind of document",
     "Behind the first dot of a package's name stands the kind of its document:\n"
     "metadata, tuning, rbodef, rbomap or metaplm. Without a dot it is metadata.",
     "<Package Name=\"Parts\" Uuid=\"10000000-0000-0000-0000000000000001\"\n"
     "         UseNames=\"People.xml\"/>",
     "== Parts.metadata\n"
     "<Package Name=\"Parts\" Uuid=\"10000000-0000-0000-0000000000000001\"\n"
     "         UseNames=\"People.metadata\">\n"
     "  <Class Name=\"Buyer\" Uuid=\"10000000-0000-0000-0000000000000002\"\n"
     "         SuperRef=\"20000000-0000-0000-0000000000000002\" Persistent=\"Yes\"/>\n"
     "</Package>\n"
     "== People.metadata\n"
     "<Package Name=\"People\" Uuid=\"20000000-0000-0000-0000000000000001\">\n"
     "  <Class Name=\"Person\" Uuid=\"20000000-0000-0000-0000000000000002\"\n"
     "         Persistent=\"Yes\"/>\n"
     "</Package>"},
    {"invalid-package-name", Error, "a package cannot have that name",
     "Documents are found by the names of their packages, and never outside the\n"
     "directories that are searched: a name holds no \"/\", \"\\\" or \"..\".",
     "<Package Name=\"My/Parts\" Uuid=\"10000000-0000-0000-0000000000000001\"/>",
     "<Package Name=\"Parts\" Uuid=\"10000000-0000-0000-0000000000000001\"/>"},
    {"document-not-readable", Error, "a document cannot be read, or is not well-formed XML",
     "The place is the one at which reading ended. Nothing else is said of such a\n"
     "document, since all that stands behind could be meant in another way.",
     "<Class Name=\"Part\" Uuid=\"10000000-0000-0000-0000000000000002\"\n"
     "       Persistent=Yes/>",
     "<Class Name=\"Part\" Uuid=\"10000000-0000-0000-0000000000000002\"\n"
     "       Persistent=\"Yes\"/>"},
    {"no-package-tag", Error, "a document has no Package tag",
     "The root of a document is the tag Package, or the first of its children\n"
     "that is one.",
     "== Parts.metadata\n"
     "<package Name=\"Parts\" Uuid=\"10000000-0000-0000-0000000000000001\"/>",
     "<Package Name=\"Parts\" Uuid=\"10000000-0000-0000-0000000000000001\"/>"},
    {"package-name-differs", Warning, "a document names its package otherwise than its file does",
     "The package gets the name in the document. It is found under the name of\n"
     "the file all the same, but nobody who reads the one expects the other.",
     "<Package Name=\"Part\" Uuid=\"10000000-0000-0000-0000000000000001\"/>",
     "<Package Name=\"Parts\" Uuid=\"10000000-0000-0000-0000000000000001\"/>"},
    {"invalid-domain", Error, "a Domain is no domain",
     "There are two, VALKOR and DUVRA, in capitals. Without Domain it is VALKOR.",
     "<Package Name=\"Parts\" Uuid=\"10000000-0000-0000-0000000000000001\"\n"
     "         Domain=\"Valkor\"/>",
     "<Package Name=\"Parts\" Uuid=\"10000000-0000-0000-0000000000000001\"\n"
     "         Domain=\"VALKOR\"/>"},
    {"prerequisite-failed", Error, "a package that this one uses could not be loaded",
     "This follows from the errors of the other document, which stand there: mend\n"
     "them, and this goes away. It is told by --all-faults.",
     "== Parts.metadata\n"
     "<Package Name=\"Parts\" Uuid=\"10000000-0000-0000-0000000000000001\"\n"
     "         UseNames=\"People\">\n"
     "  <Class Name=\"Buyer\" Uuid=\"10000000-0000-0000-0000000000000002\"\n"
     "         SuperRef=\"20000000-0000-0000-0000000000000002\" Persistent=\"Yes\"/>\n"
     "</Package>\n"
     "== People.metadata\n"
     "<Package Name=\"People\">\n"
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
    {"package-not-created", Error, "the dictionary refuses to make a package",
     "Nothing in the document is at fault by itself: the dictionary already holds\n"
     "something that a program has made and that stands in the way.",
     "", ""},
    {"tuning-failed", Error, "a tuning document is at fault as a whole",
     "This follows from the errors in the document, which are told by themselves.\n"
     "A load goes on without the attribute blocks. It is told by --all-faults.",
     "== Parts.metadata\n"
     "<Package Name=\"Parts\" Uuid=\"10000000-0000-0000-0000000000000001\"/>\n"
     "== Parts.tuning\n"
     "<Package Name=\"Parts\"/>",
     "== Parts.metadata\n"
     "<Package Name=\"Parts\" Uuid=\"10000000-0000-0000-0000000000000001\"/>\n"
     "== Parts.tuning\n"
     "<Package Name=\"Parts\" Uuid=\"10000000-0000-0000-0000000000000001\"/>"},
    {"missing-attribute", Error, "an attribute that a tag needs is missing",
     "Every element needs a Name and a Uuid, a class Persistent, a mapping\n"
     "ApplyToRBOClassRef, a path expression TargetRef, a block AttributeUuids. A\n"
     "package without Name gets that of its file, which is a warning.",
     "<Class Name=\"Part\" Uuid=\"10000000-0000-0000-0000000000000002\"/>",
     "<Class Name=\"Part\" Uuid=\"10000000-0000-0000-0000000000000002\"\n"
     "       Persistent=\"Yes\"/>"},
    {"invalid-value", Error, "an attribute has a value that it cannot have",
     "Persistent is Yes or No; the Type and Kind of a parameter have the words of\n"
     "their lists; in a tuning document Uuid and Name repeat those of the package\n"
     "and its classes.",
     "<Class Name=\"Part\" Uuid=\"10000000-0000-0000-0000000000000002\"\n"
     "       Persistent=\"yes\"/>",
     "<Class Name=\"Part\" Uuid=\"10000000-0000-0000-0000000000000002\"\n"
     "       Persistent=\"Yes\"/>"},
    {"invalid-number", Warning, "a number is none, or does not fit",
     "MaxLength, Lower, Upper and Value are signed decimal numbers of 32 bits.\n"
     "What stands behind the digits is passed over, and what has no digits\n"
     "altogether.",
     "<Class Name=\"Part\" Uuid=\"10000000-0000-0000-0000000000000002\"\n"
     "       Persistent=\"Yes\">\n"
     "  <Simple Name=\"Label\" Uuid=\"10000000-0000-0000-0000000000000003\"\n"
     "          Type=\"String\" MaxLength=\"80 characters\"/>\n"
     "</Class>",
     "<Class Name=\"Part\" Uuid=\"10000000-0000-0000-0000000000000002\"\n"
     "       Persistent=\"Yes\">\n"
     "  <Simple Name=\"Label\" Uuid=\"10000000-0000-0000-0000000000000003\"\n"
     "          Type=\"String\" MaxLength=\"80\"/>\n"
     "</Class>"},
    {"unknown-word", Warning, "a value is none of the words of its attribute",
     "Words are compared letter for letter, case included. A word that is not in\n"
     "the list counts as if the attribute were not there, or as its default.",
     "<Class Name=\"Part\" Uuid=\"10000000-0000-0000-0000000000000002\"\n"
     "       Persistent=\"Yes\">\n"
     "  <Simple Name=\"Label\" Uuid=\"10000000-0000-0000-0000000000000003\"\n"
     "          Type=\"String\" CaseMode=\"upper\"/>\n"
     "</Class>",
     "<Class Name=\"Part\" Uuid=\"10000000-0000-0000-0000000000000002\"\n"
     "       Persistent=\"Yes\">\n"
     "  <Simple Name=\"Label\" Uuid=\"10000000-0000-0000-0000000000000003\"\n"
     "          Type=\"String\" CaseMode=\"Upper\"/>\n"
     "</Class>"},
    {"unknown-attribute", Warning, "a tag does not know an attribute",
     "It is kept as a free attribute of the element, and saved with it. Where it\n"
     "is meant for one that the tag knows, it has no effect.",
     "<Class Name=\"Part\" Uuid=\"10000000-0000-0000-0000000000000002\"\n"
     "       Persistent=\"Yes\" Abstrakt=\"Yes\"/>",
     "<Class Name=\"Part\" Uuid=\"10000000-0000-0000-0000000000000002\"\n"
     "       Persistent=\"Yes\" Abstract=\"Yes\"/>"},
    {"unknown-tag", Warning, "a tag is unknown where it stands",
     "It is passed over with all that is inside, and is not saved.",
     "<Klass Name=\"Part\" Uuid=\"10000000-0000-0000-0000000000000002\"\n"
     "       Persistent=\"Yes\"/>",
     "<Class Name=\"Part\" Uuid=\"10000000-0000-0000-0000000000000002\"\n"
     "       Persistent=\"Yes\"/>"},
    {"deprecated-tag", Error, "a tag is not supported any more",
     "Command and BObject were read once. Remove them.",
     "<Command Name=\"Print\" Uuid=\"10000000-0000-0000-0000000000000002\"/>",
     "<Comment>Print was a command.</Comment>"},
    {"unsupported-tag", Error, "a tag is known and not supported",
     "The tags Implement and Security inside a class make its load fail, and so\n"
     "does every other tag in a tuning document than Class, Extension, their\n"
     "blocks and Comment. A Simple inside a mapping has no effect, which is a\n"
     "warning.",
     "<Class Name=\"Part\" Uuid=\"10000000-0000-0000-0000000000000002\"\n"
     "       Persistent=\"Yes\">\n"
     "  <Security Name=\"Open\" Uuid=\"10000000-0000-0000-0000000000000003\"/>\n"
     "</Class>",
     "<Class Name=\"Part\" Uuid=\"10000000-0000-0000-0000000000000002\"\n"
     "       Persistent=\"Yes\"/>"},
    {"repeated-attribute", Warning, "an attribute is given more than once in a tag",
     "In the tags of mappings the last one counts.",
     "== Parts.metadata\n"
     "<Package Name=\"Parts\" Uuid=\"10000000-0000-0000-0000000000000001\">\n"
     "  <RBOClass Name=\"Row\" Uuid=\"10000000-0000-0000-0000000000000002\"/>\n"
     "  <RBOMapping Name=\"Rows\" Uuid=\"10000000-0000-0000-0000000000000003\"\n"
     "      Alias=\"A\" Alias=\"B\" ApplyToRBOClass=\"Row\"\n"
     "      ApplyToRBOClassRef=\"10000000-0000-0000-0000000000000002\"/>\n"
     "</Package>",
     "== Parts.metadata\n"
     "<Package Name=\"Parts\" Uuid=\"10000000-0000-0000-0000000000000001\">\n"
     "  <RBOClass Name=\"Row\" Uuid=\"10000000-0000-0000-0000000000000002\"/>\n"
     "  <RBOMapping Name=\"Rows\" Uuid=\"10000000-0000-0000-0000000000000003\"\n"
     "      Alias=\"B\" ApplyToRBOClass=\"Row\"\n"
     "      ApplyToRBOClassRef=\"10000000-0000-0000-0000000000000002\"/>\n"
     "</Package>"},
    {"not-created", Error, "the dictionary refuses to make an element",
     "Nothing in the document is at fault by itself: the dictionary already holds\n"
     "something that a program has made and that stands in the way.",
     "", ""},
    {"duplicate-name", Error, "two elements of one owner have the same name",
     "Names are looked up in their owner: two elements of a package, two members\n"
     "of a class, two enumerators of an enumeration need two names. The note says\n"
     "where the first one stands.",
     "<Class Name=\"Part\" Uuid=\"10000000-0000-0000-0000000000000002\"\n"
     "       Persistent=\"Yes\"/>\n"
     "<Class Name=\"Part\" Uuid=\"10000000-0000-0000-0000000000000003\"\n"
     "       Persistent=\"Yes\"/>",
     "<Class Name=\"Part\" Uuid=\"10000000-0000-0000-0000000000000002\"\n"
     "       Persistent=\"Yes\"/>\n"
     "<Class Name=\"Tool\" Uuid=\"10000000-0000-0000-0000000000000003\"\n"
     "       Persistent=\"Yes\"/>"},
    {"duplicate-uuid", Error, "two elements have the same UUID",
     "A UUID belongs to one element of the whole dictionary. The usual cause is a\n"
     "copied element: give the copy a UUID of its own, as uuidgen makes them. The\n"
     "note says where the owner stands.",
     "<Class Name=\"Part\" Uuid=\"10000000-0000-0000-0000000000000002\"\n"
     "       Persistent=\"Yes\"/>\n"
     "<Class Name=\"Tool\" Uuid=\"10000000-0000-0000-0000000000000002\"\n"
     "       Persistent=\"Yes\"/>",
     "<Class Name=\"Part\" Uuid=\"10000000-0000-0000-0000000000000002\"\n"
     "       Persistent=\"Yes\"/>\n"
     "<Class Name=\"Tool\" Uuid=\"10000000-0000-0000-0000000000000003\"\n"
     "       Persistent=\"Yes\"/>"},
    {"reference-not-found", Error, "a reference points at nothing",
     "No element that is loaded has the UUID. It has to stand in this package, or\n"
     "in one that is loaded with it: name that in UseNames.",
     "<Class Name=\"Part\" Uuid=\"10000000-0000-0000-0000000000000002\"\n"
     "       SuperRef=\"10000000-0000-0000-00000000000000FF\" Persistent=\"Yes\"/>",
     "<Class Name=\"Item\" Uuid=\"10000000-0000-0000-00000000000000FF\"\n"
     "       Persistent=\"Yes\"/>\n"
     "<Class Name=\"Part\" Uuid=\"10000000-0000-0000-0000000000000002\"\n"
     "       SuperRef=\"10000000-0000-0000-00000000000000FF\" Persistent=\"Yes\"/>"},
    {"reference-of-wrong-kind", Error, "a reference points at something of another kind",
     "A SuperRef points at a class, the TargetRef of a Simple at an enumeration,\n"
     "that of a relationship at a class, InverseOfRef at a relationship,\n"
     "CategoryRefs at categories. The note says where the element stands that is\n"
     "meant.",
     "<Enum Name=\"Colour\" Uuid=\"10000000-0000-0000-0000000000000002\"/>\n"
     "<Class Name=\"Part\" Uuid=\"10000000-0000-0000-0000000000000003\"\n"
     "       SuperRef=\"10000000-0000-0000-0000000000000002\" Persistent=\"Yes\"/>",
     "<Class Name=\"Item\" Uuid=\"10000000-0000-0000-0000000000000002\"\n"
     "       Persistent=\"Yes\"/>\n"
     "<Class Name=\"Part\" Uuid=\"10000000-0000-0000-0000000000000003\"\n"
     "       SuperRef=\"10000000-0000-0000-0000000000000002\" Persistent=\"Yes\"/>"},
    {"cross-domain-reference", Error, "a reference leads into another domain",
     "An element refers to elements of packages of its own domain only.",
     "== Parts.metadata\n"
     "<Package Name=\"Parts\" Uuid=\"10000000-0000-0000-0000000000000001\"\n"
     "         Domain=\"DUVRA\" UseNames=\"People\">\n"
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
     "         Domain=\"VALKOR\" UseNames=\"People\">\n"
     "  <Class Name=\"Buyer\" Uuid=\"10000000-0000-0000-0000000000000002\"\n"
     "         SuperRef=\"20000000-0000-0000-0000000000000002\" Persistent=\"Yes\"/>\n"
     "</Package>\n"
     "== People.metadata\n"
     "<Package Name=\"People\" Uuid=\"20000000-0000-0000-0000000000000001\">\n"
     "  <Class Name=\"Person\" Uuid=\"20000000-0000-0000-0000000000000002\"\n"
     "         Persistent=\"Yes\"/>\n"
     "</Package>"},
    {"reference-refused", Error, "an element refuses what it is to refer to",
     "The two exist and are of the right kinds, but a rule of the model is in the\n"
     "way: a class is no super class of itself, a class that is extended has\n"
     "Extensible, an attribute is in a unique key once.",
     "<Class Name=\"Part\" Uuid=\"10000000-0000-0000-0000000000000002\"\n"
     "       SuperRef=\"10000000-0000-0000-0000000000000002\" Persistent=\"Yes\"/>",
     "<Class Name=\"Part\" Uuid=\"10000000-0000-0000-0000000000000002\"\n"
     "       Persistent=\"Yes\"/>"},
    {"invalid-redefinition", Error, "a relationship does not redefine the inherited one",
     "A relationship that has the name of an inherited one points at a class\n"
     "below the target of that, or at the same class where it has no super class.\n"
     "The note says where the inherited one stands.",
     "<Class Name=\"Person\" Uuid=\"10000000-0000-0000-0000000000000002\"\n"
     "       Persistent=\"Yes\"/>\n"
     "<Class Name=\"Machine\" Uuid=\"10000000-0000-0000-0000000000000003\"\n"
     "       Persistent=\"Yes\"/>\n"
     "<Class Name=\"Task\" Uuid=\"10000000-0000-0000-0000000000000004\"\n"
     "       Persistent=\"Yes\">\n"
     "  <Relationship Name=\"Owner\" Uuid=\"10000000-0000-0000-0000000000000005\"\n"
     "                TargetRef=\"10000000-0000-0000-0000000000000002\"/>\n"
     "</Class>\n"
     "<Class Name=\"Milling\" Uuid=\"10000000-0000-0000-0000000000000006\"\n"
     "       SuperRef=\"10000000-0000-0000-0000000000000004\" Persistent=\"Yes\">\n"
     "  <Relationship Name=\"Owner\" Uuid=\"10000000-0000-0000-0000000000000007\"\n"
     "                TargetRef=\"10000000-0000-0000-0000000000000003\"/>\n"
     "</Class>",
     "<Class Name=\"Person\" Uuid=\"10000000-0000-0000-0000000000000002\"\n"
     "       Persistent=\"Yes\"/>\n"
     "<Class Name=\"Miller\" Uuid=\"10000000-0000-0000-0000000000000003\"\n"
     "       SuperRef=\"10000000-0000-0000-0000000000000002\" Persistent=\"Yes\"/>\n"
     "<Class Name=\"Task\" Uuid=\"10000000-0000-0000-0000000000000004\"\n"
     "       Persistent=\"Yes\">\n"
     "  <Relationship Name=\"Owner\" Uuid=\"10000000-0000-0000-0000000000000005\"\n"
     "                TargetRef=\"10000000-0000-0000-0000000000000002\"/>\n"
     "</Class>\n"
     "<Class Name=\"Milling\" Uuid=\"10000000-0000-0000-0000000000000006\"\n"
     "       SuperRef=\"10000000-0000-0000-0000000000000004\" Persistent=\"Yes\">\n"
     "  <Relationship Name=\"Owner\" Uuid=\"10000000-0000-0000-0000000000000007\"\n"
     "                TargetRef=\"10000000-0000-0000-0000000000000003\"/>\n"
     "</Class>"},
    {"invalid-block", Error, "an attribute block of a tuning document is at fault",
     "A block is described once, holds attributes of its own class, each once,\n"
     "and extends no block that leads back to it. Where the blocks of a class and\n"
     "of its super classes are brought together, no attribute is in two of them,\n"
     "and a name stands for one. A load goes on without the blocks of the\n"
     "package.",
     "== Parts.metadata\n"
     "<Package Name=\"Parts\" Uuid=\"10000000-0000-0000-0000000000000001\">\n"
     "  <Class Name=\"Part\" Uuid=\"10000000-0000-0000-0000000000000002\"\n"
     "         Persistent=\"Yes\">\n"
     "    <Simple Name=\"Mass\" Uuid=\"10000000-0000-0000-0000000000000003\"\n"
     "            Type=\"Double\"/>\n"
     "  </Class>\n"
     "</Package>\n"
     "== Parts.tuning\n"
     "<Package Name=\"Parts\" Uuid=\"10000000-0000-0000-0000000000000001\">\n"
     "  <Class Name=\"Part\" Uuid=\"10000000-0000-0000-0000000000000002\">\n"
     "    <AttributeBlock Name=\"Shape\"\n"
     "        Uuid=\"10000000-0000-0000-0000000000000004\"\n"
     "        AttributeUuids=\"10000000-0000-0000-0000000000000003\n"
     "                        10000000-0000-0000-0000000000000003\"/>\n"
     "  </Class>\n"
     "</Package>",
     "== Parts.metadata\n"
     "<Package Name=\"Parts\" Uuid=\"10000000-0000-0000-0000000000000001\">\n"
     "  <Class Name=\"Part\" Uuid=\"10000000-0000-0000-0000000000000002\"\n"
     "         Persistent=\"Yes\">\n"
     "    <Simple Name=\"Mass\" Uuid=\"10000000-0000-0000-0000000000000003\"\n"
     "            Type=\"Double\"/>\n"
     "  </Class>\n"
     "</Package>\n"
     "== Parts.tuning\n"
     "<Package Name=\"Parts\" Uuid=\"10000000-0000-0000-0000000000000001\">\n"
     "  <Class Name=\"Part\" Uuid=\"10000000-0000-0000-0000000000000002\">\n"
     "    <AttributeBlock Name=\"Shape\"\n"
     "        Uuid=\"10000000-0000-0000-0000000000000004\"\n"
     "        AttributeUuids=\"10000000-0000-0000-0000000000000003\"/>\n"
     "  </Class>\n"
     "</Package>"},

    // of the search for documents
    {"shadowed-document", Warning, "a document is never found behind another of its name",
     "Two directories of the path hold a document of the same name and kind. The\n"
     "one in the directory that comes first is read, the other never: remove it\n"
     "or rename it, or change the order of the path.",
     "== Parts.metadata\n"
     "<Package Name=\"Parts\" Uuid=\"10000000-0000-0000-0000000000000001\"/>\n"
     "== old/Parts.metadata\n"
     "<Package Name=\"Parts\" Uuid=\"10000000-0000-0000-0000000000000001\"/>",
     "== Parts.metadata\n"
     "<Package Name=\"Parts\" Uuid=\"10000000-0000-0000-0000000000000001\"/>\n"
     "== old/Tools.metadata\n"
     "<Package Name=\"Tools\" Uuid=\"20000000-0000-0000-0000000000000001\"/>"},
};

}  // namespace

std::span<const Rule> RulesOfReading() { return kRules; }

}  // namespace tool
