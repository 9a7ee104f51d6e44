/// What shells and `man` are given: made from the rows of Command.h, as the help is.
#ifndef ZANDIC_TOOL_SCRIPTS_H
#define ZANDIC_TOOL_SCRIPTS_H

#include <string>
#include <string_view>

#include "Command.h"

namespace tool {

/// What a shell offers for a value.
enum class Offer { Nothing, Words, Directories, Files, Packages, Commands };

/// \returns what is offered where \p value stands in the help of an option, or as an operand: as in "DIR",
/// "text|json", "NAME ...".
Offer OfferFor(std::string_view value);

/// \returns the words of a value such as "text|json", separated by \p separator.
std::string WordsOf(std::string_view value, std::string_view separator);

/// \returns the script that completes command lines in bash.
std::string BashCompletion();

/// \returns the same for zsh: the file `_zandic`.
std::string ZshCompletion();

/// \returns the manual page, for `man`.
std::string ManualPage();

}  // namespace tool

#endif
