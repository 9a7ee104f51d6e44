/// The options of the command line as data: the reader of the command line, the help, the completion of
/// shells and the manual page are made from the rows.
#ifndef ZANDIC_TOOL_OPTION_ROW_H
#define ZANDIC_TOOL_OPTION_ROW_H

#include <limits>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "Options.h"

namespace tool {

/// The field of Options that an option sets. A text or a number that is given twice counts as given last;
/// a list adds up.
using OptionTarget = std::variant<bool Options::*, std::optional<int> Options::*,
                                  std::optional<std::string> Options::*, std::vector<std::string> Options::*>;

/// One option. A name that several commands have takes a value for all of them or for none.
struct OptionRow {
    std::string_view name;  ///< with its dashes

    /// What stands for the value in the help; empty for a flag. Words separated by "|" are the only values;
    /// " ..." at the end lets one option take several. DIR, DIRS, FILE and NAME are completed as such.
    std::string_view value;
    std::string_view help;
    OptionTarget target;
    bool isNeeded = false;  ///< the command cannot do without
    int least = 0;          ///< the smallest number
};

/// \returns whether one option takes several values.
constexpr bool TakesSeveral(const OptionRow& row) { return row.value.ends_with(" ..."); }

// Options of more than one command; they mean the same everywhere.

inline constexpr OptionRow kInOption{
    "--in", "NAME ...", "packages to load beside those that are named; without a name, the ones to work on",
    &Options::in};

inline constexpr OptionRow kJsonOption{"--json", "", "write JSON", &Options::json};

inline constexpr OptionRow kNoTimesOption{
    "--no-times", "", "without times and memory, which differ from run to run", &Options::noTimes};

/// Options that every command has.
inline constexpr OptionRow kCommonOptions[] = {
    {"--path", "DIRS",
     "directories of the documents, separated by ':', in place of the variable ZELDictionaryPath; adds up",
     &Options::path},
    {"--quiet", "", "nothing from the dictionary on standard error, and no progress", &Options::quiet},
    {"--trace-level", "N", "how much the dictionary tells, from 0, errors, to 5", &Options::traceLevel, false,
     std::numeric_limits<int>::min()},
    {"--trace-methods", "FILE", "a list of operations to be told of at any level", &Options::traceMethods},
};

/// Options that end the tool, of every command; they set nothing.
inline constexpr std::string_view kHelpOption = "--help";
inline constexpr std::string_view kHelpLetter = "-h";
inline constexpr std::string_view kVersionOption = "--version";

}  // namespace tool

#endif
