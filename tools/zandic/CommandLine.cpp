#include "CommandLine.h"

#include <fmt/format.h>
#include <getopt.h>

#include <algorithm>
#include <charconv>
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

/// The rows of \p command and the common ones. \p command may be null.
template <class Visit>
void ForEachRow(const Command* command, Visit&& visit) {
    for (const OptionRow& row : kCommonOptions) visit(row);
    if (command == nullptr) return;
    for (const OptionRow& row : command->options) visit(row);
}

/// Whether an argument is an option, though it stands where a value may stand. A number below zero is none.
bool IsOption(std::string_view argument) { return argument.starts_with("--") || argument == kHelpLetter; }

/// One thing that the command line says.
struct Word {
    enum class Kind {
        Operand,
        LastOperand,  ///< behind "--": whatever it looks like
        Option,
        Help,
        Version,
        UnknownOption,
        NoValue,        ///< an option that needs a value has none
        NeedlessValue,  ///< one that takes none has one
    };
    Kind kind;
    std::string text;              ///< an operand, a value, or an unknown option as it stands there
    std::string_view option = {};  ///< the name
};

/// The names of all options of all commands for the C library. One that several commands have takes a value
/// for all of them or for none, so the words can be told apart before the command is known.
class OptionTable {
public:
    static constexpr int kFirstCode = 256;  ///< above every letter
    static constexpr int kHelp = 'h';

    OptionTable() {
        Add(kHelpOption, false, kHelp);
        Add(kVersionOption, false);
        const auto add = [this](const OptionRow& row) { Add(row.name, !row.value.empty()); };
        ForEachRow(nullptr, add);
        for (const Command& command : Commands()) {
            for (const OptionRow& row : command.options) add(row);
        }
        _ROWS.push_back({});
    }

    const option* Rows() const { return _ROWS.data(); }
    bool IsOption(int code) const { return code >= kFirstCode; }
    std::string_view NameOf(int code) const { return _NAMES[static_cast<std::size_t>(code - kFirstCode)]; }

private:
    /// \param name ends in a zero, as all literals do.
    void Add(std::string_view name, bool takesValue, int code = 0) {
        if (std::find(_NAMES.begin(), _NAMES.end(), name) != _NAMES.end()) return;
        if (code == 0) code = kFirstCode + static_cast<int>(_NAMES.size());
        _NAMES.push_back(name);
        _ROWS.push_back({name.data() + 2, takesValue ? required_argument : no_argument, nullptr, code});
    }

    std::vector<option> _ROWS;
    std::vector<std::string_view> _NAMES;
};

/// Splits the command line into its words.
std::vector<Word> Split(int argc, char** argv) {
    using Kind = Word::Kind;
    const OptionTable table;
    std::vector<Word> words;
    opterr = 0;
    optind = 0;
    for (;;) {
        const int at = std::max(optind, 1);
        // Operands in their order, and a missing value told from an unknown option.
        const int code = getopt_long(argc, argv, "-:h", table.Rows(), nullptr);
        if (code == -1) break;
        if (code == 1) {
            words.push_back({Kind::Operand, optarg});
        } else if (code == OptionTable::kHelp) {
            words.push_back({Kind::Help, ""});
        } else if (code == ':') {
            words.push_back({Kind::NoValue, "", table.NameOf(optopt)});
        } else if (code == '?' && table.IsOption(optopt)) {
            words.push_back({Kind::NeedlessValue, "", table.NameOf(optopt)});
        } else if (code == '?') {
            words.push_back({Kind::UnknownOption, argv[at]});
        } else if (const std::string_view name = table.NameOf(code); name == kVersionOption) {
            words.push_back({Kind::Version, ""});
        } else if (optarg != nullptr && optarg == argv[optind - 1] && IsOption(optarg)) {
            words.push_back({Kind::NoValue, "", name});  // the C library would take any argument for one
        } else {
            words.push_back({Kind::Option, optarg != nullptr ? optarg : "", name});
        }
    }
    for (; optind < argc; ++optind) words.push_back({Kind::LastOperand, argv[optind]});
    return words;
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

/// Reads the words of a command line.
class Reader {
public:
    explicit Reader(std::vector<Word> words) : _Words(std::move(words)) { FindOperands(); }

    /// \returns the word that stands for the command; empty when there is none.
    const std::string& CommandWord() const { return _CommandWord; }

    /// \param command the one of that word; null for none. \returns what does not fit, said so that its
    /// author finds it there; empty when all does.
    std::string Read(const Command* command);

    bool WantsHelp() const { return _WantsHelp; }
    bool WantsVersion() const { return _WantsVersion; }
    const Options& Result() const { return _Options; }

private:
    void FindOperands();
    std::string ReadWord(const Word& word);
    std::string Set(std::string_view option, const std::string& value);
    const OptionRow* Find(std::string_view name) const;
    std::string Unknown(std::string_view argument) const;

    const Command* _Command = nullptr;
    std::vector<Word> _Words;
    std::string _CommandWord;
    bool _WantsHelp = false;
    bool _WantsVersion = false;
    Options _Options;
};

/// \returns a row of that name, whichever command has it: whether it takes one value or several is the same
/// for all.
const OptionRow* AnyRow(std::string_view name) {
    const OptionRow* found = nullptr;
    const auto look = [&](const OptionRow& row) { found = row.name == name ? &row : found; };
    ForEachRow(nullptr, look);
    for (const Command& command : Commands()) ForEachRow(&command, look);
    return found;
}

/// Tells the command's word, the values of an option that takes several, and the other operands from each
/// other.
void Reader::FindOperands() {
    std::string_view list;  // the option whose values may go on
    std::vector<Word> words;
    for (Word& word : _Words) {
        if (word.kind == Word::Kind::Option) {
            const OptionRow* const row = AnyRow(word.option);
            list = row != nullptr && TakesSeveral(*row) ? word.option : std::string_view();
        } else if (word.kind != Word::Kind::Operand) {
            list = {};
        }
        const bool isOperand = word.kind == Word::Kind::Operand || word.kind == Word::Kind::LastOperand;
        const bool mayBeCommand = isOperand && _CommandWord.empty();
        if (!list.empty() && isOperand && !(mayBeCommand && FindCommand(word.text) != nullptr)) {
            words.push_back({Word::Kind::Option, std::move(word.text), list});
        } else if (mayBeCommand) {
            _CommandWord = std::move(word.text);
            list = {};
        } else {
            words.push_back(std::move(word));
        }
    }
    _Words = std::move(words);
}

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
std::string Reader::Set(std::string_view option, const std::string& value) {
    const OptionRow* const row = Find(option);
    if (row == nullptr) return Unknown(option);
    if (const auto* const flag = std::get_if<bool Options::*>(&row->target)) {
        _Options.*(*flag) = true;
        return "";
    }
    if (const auto* const number = std::get_if<std::optional<int> Options::*>(&row->target)) {
        return SetNumber(*row, value, _Options.*(*number));
    }
    if (const auto* const text = std::get_if<std::optional<std::string> Options::*>(&row->target)) {
        return SetText(*row, value, _Options.*(*text));
    }
    (_Options.*std::get<std::vector<std::string> Options::*>(row->target)).push_back(value);
    return "";
}

std::string Reader::ReadWord(const Word& word) {
    switch (word.kind) {
        case Word::Kind::Operand:
        case Word::Kind::LastOperand:
            _Options.names.push_back(word.text);
            return "";
        case Word::Kind::Option:
            return Set(word.option, word.text);
        case Word::Kind::Help:
            _WantsHelp = true;
            return "";
        case Word::Kind::Version:
            _WantsVersion = true;
            return "";
        case Word::Kind::UnknownOption:
            return Unknown(word.text);
        case Word::Kind::NoValue:
            return fmt::format("{} needs a value", word.option);
        case Word::Kind::NeedlessValue:
            return fmt::format("{} takes no value", word.option);
    }
    return "";
}

std::string Reader::Read(const Command* command) {
    _Command = command;
    for (const Word& word : _Words) {
        if (std::string fault = ReadWord(word); !fault.empty()) return fault;
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
    Reader reader(Split(argc, argv));
    const std::string& word = reader.CommandWord();
    const Command* const command = FindCommand(word);
    if (command == nullptr && !word.empty()) {
        Nearest nearest(word);
        for (const Command& each : Commands()) nearest.Add(each.name);
        return RejectUse(fmt::format("there is no command '{}'{}", word, nearest.Question()), nullptr);
    }

    if (const std::string fault = reader.Read(command); !fault.empty()) return RejectUse(fault, command);
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
