#include "Command.h"

#include <algorithm>
#include <iterator>

namespace tool {
namespace {

constexpr Operands kPackages{"NAME",
                             "packages, maybe with a content word, as in Items.rbodef; or their UUIDs"};
constexpr Operands kAnything{"NAME", "PACKAGE, PACKAGE::ELEMENT, PACKAGE::ELEMENT::MEMBER, or a UUID"};
constexpr Operands kClasses{
    "NAME", "PACKAGE or PACKAGE::CLASS, the package maybe with a content word; or the UUID of either"};

constexpr OptionRow kTreeOptions[] = {
    kInOption,
    {"--attributes", "", "with the own attributes of each class", &Options::attributes},
    {"--depth", "N", "how many levels below the first, from 0", &Options::depth},
    kJsonOption,
};
constexpr OptionRow kFindOptions[] = {
    kInOption,
    {"--kind", "KIND", "only objects of this tag, as Class or Simple; Attribute is all three",
     &Options::kind},
    {"--type", "PATTERN", "only attributes and parameters of such a type", &Options::type},
    {"--refers-to", "NAME", "only what refers to this object, with how it does", &Options::refersTo},
    kJsonOption,
};

std::string_view WrongSearch(const Options& options) {
    const bool isAnything = !options.names.empty() || options.kind || options.type || options.refersTo;
    return isAnything ? "" : "PATTERN is missing";
}

constexpr OptionRow kLoadOptions[] = {kInOption, kNoTimesOption, kJsonOption};
constexpr OptionRow kStatsOptions[] = {
    kInOption,
    {"--top", "N", "how many of each list, 10 unless told", &Options::top},
    kNoTimesOption,
    kJsonOption,
};
constexpr OptionRow kListOptions[] = {kInOption, kJsonOption};
constexpr OptionRow kCheckOptions[] = {
    {"--all", "", "every document of every kind on the path", &Options::all},
    {"--all-faults", "", "also the faults that only follow from others", &Options::allFaults},
    {"--strict", "", "warnings fail the check as errors do", &Options::strict},
    {"--format", "text|json|sarif|junit", "the form of the answer; text, if nothing is said",
     &Options::format},
    kJsonOption,
    {"--baseline", "FILE", "accept the faults that the file records; only new ones count",
     &Options::baseline},
    {"--write-baseline", "FILE", "record today's faults in the file, and accept them",
     &Options::writeBaseline},
    {"--in", "NAME ...", "without a name: the packages to check", &Options::in},
};
constexpr OptionRow kExplainOptions[] = {kJsonOption};
constexpr OptionRow kDumpOptions[] = {
    kInOption,
    {"--json", "", "the only form there is, and needed", &Options::json, true},
};
constexpr OptionRow kSaveOptions[] = {
    kInOption,
    {"--to", "DIR", "the directory for the documents", &Options::to, true},
    kJsonOption,
};
constexpr OptionRow kExpressOptions[] = {
    kInOption,
    {"--to", "DIR", "the directory for the schemas, else the present one", &Options::to},
    {"--stdout", "", "write the schemas to standard output", &Options::toOutput},
    kJsonOption,
};

constexpr OptionRow kWhyOptions[] = {
    {"--in", "NAME ...", "packages to load beside: their extensions count too", &Options::in},
    kJsonOption,
};
constexpr OptionRow kGraphOptions[] = {
    kInOption,
    {"--format", "svg|dot|mermaid", "what is written; svg unless given", &Options::format},
    {"--around", "CLASS", "the class and those near it, as PACKAGE::CLASS or, of what is loaded, CLASS",
     &Options::around},
    {"--depth", "N", "with --around: how many steps away; 1 unless given", &Options::depth},
    {"--max-boxes", "N", "how many classes get a box; 40 unless given", &Options::maxBoxes, false, 1},
    {"--max-rows", "N", "how many attributes a box lists; 12 unless given", &Options::maxRows},
    kJsonOption,
};
constexpr OptionRow kFmtOptions[] = {
    {"--check", "", "write nothing; exit status 1 where something would be written", &Options::check},
    kJsonOption,
};

std::string_view WrongPicture(const Options& options) {
    if (options.json && options.format) return "--json and --format exclude each other";
    return options.depth && !options.around ? "--depth needs --around" : "";
}

std::string_view WrongPlaces(const Options& options) {
    if (options.to && options.toOutput) return "--to and --stdout exclude each other";
    return options.json && options.toOutput ? "--json and --stdout exclude each other" : "";
}

constexpr Command kCommands[] = {
    {"tree", Group::Look, "the hierarchy of classes", kClasses, kTreeOptions,
     "Of a class: what it is derived from, and all that is derived from it in the loaded packages. Of a "
     "package: the hierarchies that begin in it. Of all packages: each hierarchy once, where it begins. "
     "Names of other packages stand with them.",
     RunTree},
    {"find",
     Group::Look,
     "objects by name, UUID, kind, or by whom they refer to",
     {"PATTERN",
      "a name of any case, with *, ? and [a-z]; with '::' one with its owners; or at least four "
      "digits that a UUID begins with",
      false, true},
     kFindOptions,
     "Looks in the packages that --in names, else in every *.metadata of the path. One line for each object: "
     "its name, its kind, and what there is to say of it. What refers to NAME: subclasses, attributes, "
     "inverses, scopes, extensions, mappings, parameters, blocks, keys, and packages that use it.\n"
     "The exit status is 1 when nothing was found.",
     RunFind,
     WrongSearch},
    {"show", Group::Look, "all about a package, an element or a member", kAnything, kListOptions,
     "A MEMBER is an attribute, a unique key, a block, an enumerator, a method or a root. The name may go "
     "on: "
     "METHOD::PARAMETER, ROOT::COMPONENT::COMPONENT.\n"
     "A UUID has 32 digits of either case, with or without dashes. It is looked for in the packages that "
     "--in names, else in every package document of the path.",
     RunShow},
    {"blocks", Group::Look, "the attribute blocks of classes", kClasses, kListOptions,
     "Shows the blocks that a class declares, those that it inherits, and its default block: the attributes "
     "that no other block holds. That is made for this answer, in the memory of this run only. Of a package, "
     "classes without blocks are only named.",
     RunBlocks},
    {"why",
     Group::Look,
     "where an attribute comes from, file and line",
     {"NAME", "PACKAGE::CLASS::ATTRIBUTE, own or inherited, or the UUID of an attribute", true},
     kWhyOptions,
     "Says where the attribute is declared and how it comes to the class, what it redefines and what that "
     "changes, which attribute block it is in and why, what extends the class, and to which classes a "
     "relationship applies: each with file, line and column.",
     RunWhy},
    {"stats", Group::Look, "how many, how deep, how wide, and what a load takes", kPackages, kStatsOptions,
     "Counts what is loaded, those packages that a NAME uses included. Deepest: the classes on the way from "
     "a "
     "root down, both included. Widest: own and inherited attributes. Referred to: by everything but "
     "redefinitions, primitives left out. Memory is what a load leaves on the heap.",
     RunStats},
    {"check",
     Group::Check,
     "every fault in documents, at its place",
     {"NAME", "packages, or files: what holds a separator or ends in a content word"},
     kCheckOptions,
     "Reads each document with its tuning document and writes a line for each fault, sorted by "
     "place: FILE:LINE:COLUMN: error[CODE]: TEXT, with a note for whatever else takes part in it. "
     "Errors are what makes a load fail, or costs a package its attribute blocks; warnings are what "
     "a load accepts and its author would want to know. Nothing stays loaded. What a file needs is "
     "looked for in its own directory, then on the path. The exit status is 1 when there are errors.\n"
     "'zandic explain CODE' tells the rule.",
     RunCheck,
     WrongCheck},
    {"explain",
     Group::Check,
     "what a fault's code means",
     {"CODE", "codes of faults; without one, the list of all"},
     kExplainOptions,
     "Writes the rule in words, with an example that breaks it and one that keeps it.",
     RunExplain},
    {"load", Group::Check, "load packages, and count what is in them", kPackages, kLoadOptions,
     "Writes one line for each package that got loaded, those that a NAME uses included: name, UUID, "
     "elements by kind, its own milliseconds. The last line is the total.",
     RunLoad},
    {"graph", Group::Draw, "a class diagram: SVG, DOT or Mermaid", kClasses, kGraphOptions,
     "Draws classes with their attributes, what inherits, extends and refers to what, and a cluster for each "
     "package. What a named package refers to elsewhere stands beside it, by name only; of a named class all "
     "that is joined to it does.\n"
     "Where there are more classes than boxes, those that hold the schema together are drawn. A line on "
     "standard error and below the picture says what is left out.\n"
     "SVG is drawn by 'dot' of Graphviz.",
     RunGraph, WrongPicture},
    {"dump", Group::Write, "the whole model as JSON (--json)", kPackages, kDumpOptions,
     "Writes every package that is in memory after the loads, with all that it holds.", RunDump},
    {"save", Group::Write, "packages as documents (--to DIR)", kPackages, kSaveOptions,
     "Writes each NAME, and with it its tuning document, into the directory: under the package's own name "
     "and as the kind of document that it was loaded from. Files of these names are replaced; what the "
     "packages use is not written. Another process then loads what was saved, and the rest from the path: "
     "the model has to be the same. Writes one line for each file.",
     RunSave},
    {"express", Group::Write, "packages as EXPRESS schemas", kPackages, kExpressOptions,
     "Writes NAME.express for each NAME, and a line for each file. The first class that is an instance, or "
     "neither persistent nor a super class, ends its schema: then a warning tells how many classes are not "
     "written.",
     RunExpress, WrongPlaces},
    {"fmt",
     Group::Write,
     "documents in the layout of save",
     {"FILE", "documents of any kind, loaded or not", true},
     kFmtOptions,
     "Writes each FILE again in the layout of 'save': line breaks, indentation, quotes and escapes, in "
     "UTF-8. "
     "Elements and attributes stay in their order; comments, processing instructions, texts, unknown content "
     "and attributes given twice are kept. Nothing is loaded. A file is replaced as durably as by 'save', or "
     "left as it is: so is one that is not well formed. Writes the name of each file that changed.",
     RunFmt},
    {"help",
     Group::Help,
     "the help of a command",
     {"COMMAND", "a command, or 'options' for those that every command has", false, true},
     {},
     "",
     RunHelp},
    {"completion",
     Group::Help,
     "the script by which a shell completes, and the manual page",
     {"bash|zsh|man", "what it is for", true, true},
     {},
     "Installing the tool installs them as well. For the present bash alone: source <(zandic completion "
     "bash).",
     RunCompletion},
};

constexpr std::string_view kGroupWords[] = {"Look", "Check", "Draw", "Write", "Help"};

}  // namespace

std::span<const Command> Commands() { return kCommands; }

const Command* FindCommand(std::string_view name) {
    const auto* const found = std::find_if(std::begin(kCommands), std::end(kCommands),
                                           [&](const Command& each) { return each.name == name; });
    return found != std::end(kCommands) ? found : nullptr;
}

std::string_view GroupWord(Group group) { return kGroupWords[static_cast<std::size_t>(group)]; }

}  // namespace tool
