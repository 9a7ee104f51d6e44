#include "Scripts.h"

#include <fmt/format.h>

#include <algorithm>

#include "Help.h"

namespace tool {
namespace {

/// The names of all options that \p test chooses, each once, separated by "|".
template <class Test>
std::string OptionNames(const Test& test) {
    std::vector<std::string> names;
    const auto add = [&](const OptionRow& row) {
        const std::string name(row.name);
        if (test(row) && std::find(names.begin(), names.end(), name) == names.end()) names.push_back(name);
    };
    for (const OptionRow& row : kCommonOptions) add(row);
    for (const Command& command : Commands()) {
        for (const OptionRow& row : command.options) add(row);
    }
    return fmt::format("{}", fmt::join(names, "|"));
}

std::string CommandNames() {
    std::string names;
    for (const Command& command : Commands())
        names += std::string(names.empty() ? "" : " ").append(command.name);
    return names;
}

std::string CommonNames() {
    std::string names;
    for (const OptionRow& row : kCommonOptions) names += std::string(row.name) + " ";
    return fmt::format("{}{} {} {}", names, kHelpLetter, kHelpOption, kVersionOption);
}

/// \returns the call that completes a value in bash; empty where nothing can be offered.
std::string BashOffer(std::string_view value) {
    switch (OfferFor(value)) {
        case Offer::Words:
            return fmt::format("_zandic_words \"{}\"", WordsOf(value, " "));
        case Offer::Directories:
            return "_zandic_paths -d";
        case Offer::Files:
            return "_zandic_paths -f";
        case Offer::Packages:
            return "_zandic_packages";
        case Offer::Commands:
            return fmt::format("_zandic_words \"{} {}\"", CommandNames(), kOptionsTopic);
        case Offer::Nothing:
            break;
    }
    return ":";
}

constexpr std::string_view kBashHead =
    R"SCRIPT(# Completion of zandic for bash; made by 'zandic completion bash'.

_zandic_words() { COMPREPLY=($(compgen -W "$1" -- "$cur")); }

_zandic_paths() {
    compopt -o filenames 2>/dev/null
    COMPREPLY=($(compgen "$1" -- "$cur"))
}

# The packages whose documents lie in the directories of --path, else of the variable.
_zandic_packages() {
    local path=$ZELDictionaryPath directory document names=
    local -i index
    for ((index = 1; index < COMP_CWORD; ++index)); do
        [[ ${COMP_WORDS[index]} == --path ]] || continue
        path=${COMP_WORDS[index + 1]}
        [[ $path == = ]] && path=${COMP_WORDS[index + 2]}
    done
    local IFS=:
    for directory in $path; do
        for document in "$directory"/*.metadata "$directory"/*.rbodef "$directory"/*.rbomap "$directory"/*.metaplm; do
            [[ -f $document ]] || continue
            document=${document##*/}
            names+="${document%.metadata} "
        done
    done
    IFS=$' \t\n'
    _zandic_words "$names"
}
)SCRIPT";

/// What zsh shows beside a word: without the signs that mean something there.
std::string ZshText(std::string_view text) {
    std::string quoted;
    for (const char c : text) {
        if (c == '\'') {
            quoted += "'\\''";
            continue;
        }
        if (c == '[' || c == ']' || c == ':' || c == '\\') quoted += '\\';
        quoted += c;
    }
    return quoted;
}

std::string ZshOffer(std::string_view value) {
    switch (OfferFor(value)) {
        case Offer::Words:
            return fmt::format("({})", WordsOf(value, " "));
        case Offer::Directories:
            return "_files -/";
        case Offer::Files:
            return "_files";
        case Offer::Packages:
            return "_zandic_packages";
        case Offer::Commands:
            return fmt::format("({} {})", CommandNames(), kOptionsTopic);
        case Offer::Nothing:
            break;
    }
    return "";
}

std::string ZshOption(const OptionRow& row) {
    std::string offer = fmt::format("'*{}[{}]", row.name, ZshText(row.help));
    if (row.value.empty()) return offer + "'";
    if (TakesSeveral(row)) return offer + ":*-*:" + ZshText(row.value) + ":" + ZshOffer(row.value) + "'";
    return offer + ":" + ZshText(row.value) + ":" + ZshOffer(row.value) + "'";
}

constexpr std::string_view kZshHead = R"SCRIPT(#compdef zandic
# Completion of zandic for zsh; made by 'zandic completion zsh'.

# The packages whose documents lie in the directories of --path, else of the variable.
_zandic_packages() {
    local path_of_documents=$ZELDictionaryPath directory
    local -a all=(${(z)BUFFER}) names
    local -i place=${all[(I)--path]}
    ((place)) && path_of_documents=${all[place + 1]}
    for directory in ${(s.:.)path_of_documents}; do
        names+=(${directory}/*.(metadata|rbodef|rbomap|metaplm)(N:t))
    done
    names=(${names%.metadata})
    compadd -a names
}
)SCRIPT";

}  // namespace

Offer OfferFor(std::string_view value) {
    if (value.starts_with("DIR")) return Offer::Directories;
    if (value.starts_with("FILE")) return Offer::Files;
    if (value.starts_with("NAME")) return Offer::Packages;
    if (value.starts_with("COMMAND")) return Offer::Commands;
    return value.find('|') != value.npos ? Offer::Words : Offer::Nothing;
}

std::string WordsOf(std::string_view value, std::string_view separator) {
    std::string words;
    for (const char c : value) {
        if (c == '|') {
            words += separator;
        } else {
            words += c;
        }
    }
    return words;
}

std::string BashCompletion() {
    std::string script(kBashHead);
    const auto takesValue = [](const OptionRow& row) { return !row.value.empty() && !TakesSeveral(row); };
    script += fmt::format(R"SCRIPT(
_zandic() {{
    local cur=${{COMP_WORDS[COMP_CWORD]}} prev=${{COMP_WORDS[COMP_CWORD - 1]}} command= word
    local -i index
    COMPREPLY=()
    [[ $cur == = ]] && cur=
    [[ $prev == = ]] && prev=${{COMP_WORDS[COMP_CWORD - 2]}}
    for ((index = 1; index < COMP_CWORD; ++index)); do
        word=${{COMP_WORDS[index]}}
        case $word in
        {}) ((++index)) ;;
        -*|=) ;;
        *)
            case " {} " in
            *" $word "*) command=$word; break ;;
            esac
            ;;
        esac
    done
)SCRIPT",
                          OptionNames(takesValue), CommandNames());
    script += "    case $command:$prev in\n";
    for (const OptionRow& row : kCommonOptions) {
        if (!row.value.empty())
            script += fmt::format("    *:{}) {}; return ;;\n", row.name, BashOffer(row.value));
    }
    for (const Command& command : Commands()) {
        for (const OptionRow& row : command.options) {
            if (row.value.empty()) continue;
            script += fmt::format("    {}:{}) {}; return ;;\n", command.name, row.name, BashOffer(row.value));
        }
    }
    script += fmt::format("    esac\n    local options=\"{}\"\n    case $command in\n", CommonNames());
    for (const Command& command : Commands()) {
        std::string own;
        for (const OptionRow& row : command.options) own += " " + std::string(row.name);
        script += fmt::format(
            "    {})\n        options+=\"{}\"\n        [[ $cur == -* ]] || {{ {}; return; }}\n"
            "        ;;\n",
            command.name, own, BashOffer(command.operands.label));
    }
    script += fmt::format(
        "    *) [[ $cur == -* ]] || {{ _zandic_words \"{}\"; return; }} ;;\n    esac\n"
        "    _zandic_words \"$options\"\n}}\ncomplete -F _zandic zandic\n",
        CommandNames());
    return script;
}

std::string ZshCompletion() {
    std::string script(kZshHead);
    script +=
        "\n_zandic() {\n    local curcontext=$curcontext state line\n    typeset -A opt_args\n"
        "    local -a common commands\n    common=(\n";
    for (const OptionRow& row : kCommonOptions) script += "        " + ZshOption(row) + "\n";
    script += fmt::format(
        "        '({0} {1})'{{{0},{1}}}'[show the help]'\n        '{2}[show the version]'\n    )\n"
        "    commands=(\n",
        kHelpLetter, kHelpOption, kVersionOption);
    for (const Command& command : Commands()) {
        script += fmt::format("        '{}:{}'\n", command.name, ZshText(command.summary));
    }
    script +=
        "    )\n"
        "    _arguments -C $common '1:command:->command' '*::operand:->operand'\n"
        "    case $state in\n"
        "    command) _describe command commands ;;\n"
        "    operand)\n"
        "        case $line[1] in\n";
    for (const Command& command : Commands()) {
        script += fmt::format("        {})\n            _arguments $common", command.name);
        for (const OptionRow& row : command.options) script += " \\\n                " + ZshOption(row);
        const Operands& operands = command.operands;
        if (!operands.label.empty()) {
            script += fmt::format(" \\\n                '{}:{}:{}'", operands.isSingle ? "1" : "*",
                                  ZshText(operands.label), ZshOffer(operands.label));
        }
        script += "\n            ;;\n";
    }
    script += "        esac\n        ;;\n    esac\n}\n\n_zandic \"$@\"\n";
    return script;
}

}  // namespace tool
