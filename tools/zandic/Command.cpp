#include "Command.h"

namespace tool {
namespace {

constexpr Command kCommands[] = {
    {"load", "load packages and say what is in them",
     "packages, maybe with a content word, as in Items.rbodef",
     "Writes one line for each package that got loaded, those that a NAME uses included:\n"
     "name, UUID, elements by kind, its own milliseconds. The last line is the total.",
     false, false, RunLoad},
    {"show", "show a package, an element, a member, or what has a UUID",
     "PACKAGE, PACKAGE::ELEMENT,\nPACKAGE::ELEMENT::MEMBER, or a UUID",
     "A UUID has 32 digits of either case, with or without dashes. It is looked for in\n"
     "the packages that --in names, else in every *.metadata document of the path.",
     true, false, RunShow},
    {"dump", "write the whole model as JSON (--json)",
     "packages, maybe with a content word, as in Items.rbodef",
     "Writes every package that is in memory after the loads, with all that it holds.\n"
     "There is no form but JSON yet: give --json.",
     false, true, RunDump},
};

}  // namespace

std::span<const Command> Commands() { return kCommands; }

}  // namespace tool
