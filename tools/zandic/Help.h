/// What the tool says of itself, made from the rows of Command.h.
#ifndef ZANDIC_TOOL_HELP_H
#define ZANDIC_TOOL_HELP_H

#include <string>

#include "Command.h"

namespace tool {

/// The operand of `help` that leads to HelpOnOptions.
inline constexpr std::string_view kOptionsTopic = "options";

/// \returns the help on one screen of 24 lines: what there is to do, and how to go on.
std::string HelpOnTool();

/// \returns the help of a command.
std::string HelpOnCommand(const Command& command);

/// \returns the options of every command.
std::string HelpOnOptions();

}  // namespace tool

#endif
