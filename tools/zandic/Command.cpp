#include "Command.h"

namespace tool {
namespace {

constexpr Command kCommands[] = {
    {"load", "load packages and say what is in them",
     "package to load, maybe with its content word, as in Items.rbodef",
     "Writes one line for each package that got loaded, those that a NAME uses included: name,\n"
     "UUID, elements by kind, its own milliseconds. The last line is the total.",
     false, false, RunLoad},
    {"show", "show a package, an element, a member of an element, or whatever has a UUID",
     "PACKAGE, PACKAGE::ELEMENT, PACKAGE::ELEMENT::MEMBER, or a UUID",
     "A UUID is looked for in the packages that --in names, else in those of every *.metadata\n"
     "document of the path. It has 32 digits of either case, with or without dashes.",
     true, false, RunShow},
    {"dump", "write the whole model", "package to load, maybe with its content word, as in Items.rbodef",
     "Writes every package that is in memory after the loads, with all that it holds, as JSON.", false, true,
     RunDump},
};

}  // namespace

std::span<const Command> Commands() { return kCommands; }

}  // namespace tool
