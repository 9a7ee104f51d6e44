#include "Command.h"

namespace tool {
namespace {

constexpr Command kCommands[] = {
    {"load", "load packages and say what is in them",
     "packages, maybe with a content word, as in Items.rbodef",
     "Writes one line for each package that got loaded, those that a NAME uses included:\n"
     "name, UUID, elements by kind, its own milliseconds. The last line is the total.",
     false, false, Files::None, RunLoad},
    {"show", "show a package, an element, a member, or what has a UUID",
     "PACKAGE, PACKAGE::ELEMENT,\nPACKAGE::ELEMENT::MEMBER, or a UUID",
     "A MEMBER is an attribute, a unique key, a block, an enumerator, a method or a\n"
     "root. The name may go on: METHOD::PARAMETER, ROOT::COMPONENT::COMPONENT.\n"
     "A UUID has 32 digits of either case, with or without dashes. It is looked for in\n"
     "the packages that --in names, else in every package document of the path.",
     true, false, Files::None, RunShow},
    {"blocks", "show the attribute blocks of a class or of a package",
     "PACKAGE or PACKAGE::CLASS, the package maybe\nwith a content word",
     "Shows the blocks that a class declares, those that it inherits, and its default\n"
     "block: the attributes that no other block holds. That is made for this answer, in\n"
     "the memory of this run only. Of a package, classes without blocks are only named.",
     false, false, Files::None, RunBlocks},
    {"dump", "write the whole model as JSON (--json)",
     "packages, maybe with a content word, as in Items.rbodef",
     "Writes every package that is in memory after the loads, with all that it holds.\n"
     "There is no form but JSON yet: give --json.",
     false, true, Files::None, RunDump},
    {"save", "write packages as documents (--to)", "packages, maybe with a content word, as in Items.rbodef",
     "Writes each NAME, and with it its tuning document, into the directory: under the\n"
     "package's own name and as the kind of document that it was loaded from. Files of\n"
     "these names are replaced; what the packages use is not written. Another process\n"
     "then loads what was saved, and the rest from the path: the model has to be the\n"
     "same. Writes one line for each file.",
     false, false, Files::ToDirectory, RunSave},
    {"express", "write packages as EXPRESS schemas",
     "packages, maybe with a content word, as in Items.rbodef",
     "Writes NAME.express for each NAME, and a line for each file. The first class that\n"
     "is an instance, or neither persistent nor a super class, ends its schema: then a\n"
     "warning tells how many classes are not written.",
     false, false, Files::ToAnywhere, RunExpress},
};

}  // namespace

std::span<const Command> Commands() { return kCommands; }

}  // namespace tool
