#ifndef ZANDIC_TOOL_COMMAND_LINE_H
#define ZANDIC_TOOL_COMMAND_LINE_H

#include <variant>

#include "Command.h"
#include "Options.h"

namespace tool {

/// A command with its options.
struct Invocation {
    const Command* command = nullptr;
    Options options;
};

/// Reads the command line. Help and version are written to standard output, what is wrong to standard error.
/// \returns what to run, or, when there is nothing to run, the exit status.
std::variant<Invocation, ExitStatus> ReadCommandLine(int argc, char** argv);

}  // namespace tool

#endif
