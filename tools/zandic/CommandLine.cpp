#include "CommandLine.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "Faults.h"
#include "Glob.h"
#include "Help.h"
#include "Nearest.h"
#include "Streams.h"
#include "zandic.hpp"

namespace tool {
namespace {

constexpr std::string_view kEndOfOptions = "--";

/// The rows of \p command and the common ones. \p command may be null.
template <class Visit>
void ForEachRow(const Command* command, Visit&& visit) {
    for (const OptionRow& row : kCommonOptions) visit(row);
    if (command == nullptr) return;
    for (const OptionRow& row : command->options) visit(row);
}

/// \returns the row of an option as it stands on the command line, whichever command has it; null when none
/// has.
const OptionRow* FindRow(std::string_view argument) {
    const std::string_view name = argument.substr(0, argument.find('='));
    const OptionRow* found = nullptr;
    const auto look = [&](const OptionRow& row) { found = row.name == name ? &row : found; };
    ForEachRow(nullptr, look);
    for (const Command& command : Commands()) ForEachRow(&command, look);
    return found;
}

/// Whether an argument is an option, though it stands where a value may stand. A number below zero is none.
bool IsOption(std::string_view argument) { return argument.starts_with("--") || argument == kHelpLetter; }

/// \returns the first argument that is neither an option nor the value of one: the command.
std::string_view CommandWord(std::span<const std::string> arguments) {
    for (std::size_t index = 0; index < arguments.size(); ++index) {
        const std::string_view argument = arguments[index];
        if (argument == kEndOfOptions) continue;
        if (!argument.starts_with('-')) return argument;
        const OptionRow* const row = FindRow(argument);
        if (row == nullptr || row->value.empty() || argument.find('=') != argument.npos) continue;
        ++index;
        if (!TakesSeveral(*row)) continue;
        while (index + 1 < arguments.size() && !arguments[index + 1].starts_with('-') &&
               FindCommand(arguments[index + 1]) == nullptr) {
            ++index;
        }
    }
    return {};
}

std::string WrongValue(const OptionRow& row, const std::string& value) {
    return fmt::format("{} cannot be '{}'", row.name, value);
}

std::string SetNumber(const OptionRow& row, const std::string& value, std::optional<int>& field) {
    int number = 0;
    const auto [end, fault] = std::from_chars(value.data(), value.data() + value.size(), number);
    if (fault != std::errc() || end != value.data() + value.size() || number < row.least) {
        return WrongValue(row, value);
    }
    field = number;
    return "";
}

/// Whether \p value is one of the words of the row, where it lists some.
bool IsWordOf(const OptionRow& row, std::string_view value) {
    if (row.value.find('|') == row.value.npos) return true;
    std::string_view words = row.value;
    while (!words.empty()) {
        const std::size_t end = std::min(words.find('|'), words.size());
        if (words.substr(0, end) == value) return true;
        words.remove_prefix(std::min(end + 1, words.size()));
    }
    return false;
}

std::string SetText(const OptionRow& row, const std::string& value, std::optional<std::string>& field) {
    if (!IsWordOf(row, value)) return fmt::format("{}: it is one of {}", WrongValue(row, value), row.value);
    field = value;
    return "";
}

/// Reads one command line, which is that of a known command or of none.
class Reader {
public:
    Reader(const Command* command, std::span<const std::string> arguments)
        : _Command(command), _Arguments(arguments) {}

    /// \returns what does not fit, said so that its author finds it there; empty when all does.
    std::string Read();

    bool WantsHelp() const { return _WantsHelp; }
    bool WantsVersion() const { return _WantsVersion; }
    const Options& Result() const { return _Options; }

private:
    std::string ReadOption(std::string_view argument);
    std::string ReadValue(const OptionRow& row, std::optional<std::string> given);
    std::string Set(const OptionRow& row, const std::string& value);
    const OptionRow* Find(std::string_view name) const;
    std::string Unknown(std::string_view argument) const;

    /// \returns whether the next argument is a value of a list that has one already.
    bool GoesOn() const {
        return _Next < _Arguments.size() && !_Arguments[_Next].starts_with('-') &&
               (_HasCommand || FindCommand(_Arguments[_Next]) != _Command);
    }

    const Command* _Command;
    std::span<const std::string> _Arguments;
    std::size_t _Next = 0;  ///< index of the argument that is read next
    bool _HasCommand = false;
    bool _WantsHelp = false;
    bool _WantsVersion = false;
    Options _Options;
};

const OptionRow* Reader::Find(std::string_view name) const {
    const OptionRow* found = nullptr;
    ForEachRow(_Command, [&](const OptionRow& row) { found = row.name == name ? &row : found; });
    return found;
}

std::string Reader::Unknown(std::string_view argument) const {
    Nearest nearest(argument.substr(0, argument.find('=')));
    nearest.Add(kHelpOption);
    nearest.Add(kVersionOption);
    ForEachRow(_Command, [&](const OptionRow& row) { nearest.Add(row.name); });
    return fmt::format("there is no option '{}'{}", argument, nearest.Question());
}

/// Sets the field of an option. \returns what is wrong with its value; empty when nothing is.
std::string Reader::Set(const OptionRow& row, const std::string& value) {
    if (const auto* const flag = std::get_if<bool Options::*>(&row.target)) {
        _Options.*(*flag) = true;
        return "";
    }
    if (const auto* const number = std::get_if<std::optional<int> Options::*>(&row.target)) {
        return SetNumber(row, value, _Options.*(*number));
    }
    if (const auto* const text = std::get_if<std::optional<std::string> Options::*>(&row.target)) {
        return SetText(row, value, _Options.*(*text));
    }
    (_Options.*std::get<std::vector<std::string> Options::*>(row.target)).push_back(value);
    return "";
}

std::string Reader::ReadValue(const OptionRow& row, std::optional<std::string> given) {
    if (!given && _Next < _Arguments.size() && !IsOption(_Arguments[_Next])) given = _Arguments[_Next++];
    if (!given) return fmt::format("{} needs a value", row.name);
    std::string fault = Set(row, *given);
    while (fault.empty() && TakesSeveral(row) && GoesOn()) fault = Set(row, _Arguments[_Next++]);
    return fault;
}

std::string Reader::ReadOption(std::string_view argument) {
    if (argument == kHelpLetter || argument == kHelpOption) {
        _WantsHelp = true;
        return "";
    }
    if (argument == kVersionOption) {
        _WantsVersion = true;
        return "";
    }
    const std::size_t end = argument.find('=');
    const OptionRow* const row = Find(argument.substr(0, end));
    if (row == nullptr) return Unknown(argument);
    std::optional<std::string> value;
    if (end != argument.npos) value = argument.substr(end + 1);
    if (!row->value.empty()) return ReadValue(*row, std::move(value));
    return value ? fmt::format("{} takes no value", row->name) : Set(*row, "");
}

std::string Reader::Read() {
    bool isOver = false;  // no option follows
    while (_Next < _Arguments.size()) {
        const std::string& argument = _Arguments[_Next++];
        if (!isOver && argument == kEndOfOptions) {
            isOver = true;
        } else if (!isOver && argument.size() > 1 && argument.starts_with('-')) {
            if (std::string fault = ReadOption(argument); !fault.empty()) return fault;
        } else if (!_HasCommand) {
            _HasCommand = true;
        } else {
            _Options.names.push_back(argument);
        }
    }
    return "";
}

/// An option that takes several values takes all that follow. A UUID and a pattern cannot be loaded: where
/// one stands among them, the operands begin. Where a command needs an operand and has none, it is the last
/// of them.
void EndInAtOperands(const Command& command, Options& options) {
    auto first = std::find_if(options.in.begin(), options.in.end(), [](const std::string& value) {
        return zandic::ParseUuid(value).has_value() || Glob::IsPattern(value);
    });
    const bool isLast = first == options.in.end() && command.operands.isNeeded && options.names.empty() &&
                        options.in.size() > 1;
    if (isLast) --first;
    options.names.insert(options.names.begin(), first, options.in.end());
    options.in.erase(first, options.in.end());
}

/// \returns what is wrong with the options of this command; empty when nothing is.
std::string WrongOptions(const Command& command, const Options& options) {
    const Operands& operands = command.operands;
    if (options.names.empty() && operands.isNeeded) return fmt::format("{} is missing", operands.label);
    if (!options.names.empty() && operands.label.empty()) {
        return fmt::format("{} takes nothing, and there is '{}'", command.name, options.names.front());
    }
    if (options.names.size() > 1 && operands.isSingle) {
        return fmt::format("{} takes one {}, and there is '{}' as well", command.name, operands.label,
                           options.names[1]);
    }
    for (const OptionRow& row : command.options) {
        const auto isSet = [&](const auto field) {
            if constexpr (std::is_same_v<decltype(field), bool Options::*const>) {
                return options.*field;
            } else if constexpr (std::is_same_v<decltype(field), std::vector<std::string> Options::*const>) {
                return !(options.*field).empty();
            } else {
                return (options.*field).has_value();
            }
        };
        if (row.isNeeded && !std::visit(isSet, row.target)) {
            return fmt::format("{} needs {}", command.name, row.name);
        }
    }
    return command.wrong != nullptr ? std::string(command.wrong(options)) : "";
}

ExitStatus RejectUse(const std::string& fault, const Command* command) {
    const std::string help =
        command != nullptr ? fmt::format("zandic {} --help", command->name) : "zandic --help";
    WriteErrorLine(FaultLine({"", {}, fmt::format("{} (see '{}')", fault, help)}));
    return ExitStatus::WrongUse;
}

ExitStatus Print(const std::string& text) {
    Output output;
    output.Write(text);
    output.Flush();
    if (!output.Fault()) return ExitStatus::Done;
    WriteErrorLine(FaultLine({"standard output", {}, *output.Fault()}));
    return ExitStatus::Refused;
}

}  // namespace

std::variant<Invocation, ExitStatus> ReadCommandLine(int argc, char** argv) {
    const std::vector<std::string> arguments(argv + std::min(argc, 1), argv + argc);
    const std::string_view word = CommandWord(arguments);
    const Command* const command = FindCommand(word);
    if (command == nullptr && !word.empty()) {
        Nearest nearest(word);
        for (const Command& each : Commands()) nearest.Add(each.name);
        return RejectUse(fmt::format("there is no command '{}'{}", word, nearest.Question()), nullptr);
    }

    Reader reader(command, arguments);
    if (const std::string fault = reader.Read(); !fault.empty()) return RejectUse(fault, command);
    if (reader.WantsVersion()) return Print("zandic " ZANDIC_VERSION "\n");
    if (reader.WantsHelp()) return Print(command != nullptr ? HelpOnCommand(*command) : HelpOnTool());
    if (command == nullptr) return RejectUse("a command is missing", nullptr);

    Options options = reader.Result();
    EndInAtOperands(*command, options);
    if (const std::string fault = WrongOptions(*command, options); !fault.empty())
        return RejectUse(fault, command);
    return Invocation{command, std::move(options)};
}

}  // namespace tool
