#include "Help.h"

#include <fmt/format.h>

#include <utility>

#include "Sheet.h"
#include "Style.h"

namespace tool {
namespace {

constexpr std::size_t kIndent = 2;
constexpr std::size_t kHelpColumn = 24;     // of options
constexpr std::size_t kCommandColumn = 8;   // of the list of commands
constexpr std::size_t kSummaryColumn = 20;  // of the same

std::string Heading(std::string_view text) { return Style::Output().Paint(Role::Heading, text); }

/// Appends a term and what it means, side by side; a term that is too long has its line for itself.
void AppendTerm(std::string_view term, std::string_view meaning, std::string& help) {
    std::string line = std::string(kIndent, ' ').append(term);
    if (line.size() + 1 >= kHelpColumn) {
        help += line + '\n';
        line.clear();
    }
    for (const std::string& part : Wrapped(meaning, Sheet::kWidth - kHelpColumn)) {
        help += fmt::format("{:<{}}{}\n", line, kHelpColumn, part);
        line.clear();
    }
}

void AppendParagraphs(std::string_view text, std::string& help) {
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        for (const std::string& line : Wrapped(text.substr(0, end), Sheet::kWidth)) help += line + '\n';
        text.remove_prefix(std::min(end + 1, text.size()));
    }
}

void AppendOption(const OptionRow& row, std::string& help) {
    const std::string term =
        row.value.empty() ? std::string(row.name) : fmt::format("{} {}", row.name, row.value);
    AppendTerm(term, row.help, help);
}

/// \returns what stands behind the command, as in "[NAME ...]".
std::string OperandsText(const Operands& operands) {
    if (operands.label.empty()) return "";
    const std::string text = fmt::format("{}{}", operands.label, operands.isSingle ? "" : " ...");
    return operands.isNeeded ? " " + text : fmt::format(" [{}]", text);
}

std::string WithoutAName(const Command& command) {
    const bool takesPackages = command.operands.label == "NAME" && !command.operands.isNeeded;
    return takesPackages ? "; without one, every *.metadata of the path" : "";
}

}  // namespace

std::string HelpOnTool() {
    std::string help =
        "Reads the package documents of a data dictionary and tells what they say.\n\n"
        "Usage: zandic [OPTIONS] COMMAND [NAME ...]\n\n";
    std::string_view before;
    for (const Command& command : Commands()) {
        const std::string_view group = GroupWord(command.group);
        const std::string lead = group == before ? "" : std::string(group);
        help += Heading(fmt::format("{:<{}}", lead, kCommandColumn));
        help += fmt::format("{:<{}}{}\n", command.name, kSummaryColumn - kCommandColumn, command.summary);
        before = group;
    }
    help +=
        "\nA NAME is PACKAGE, PACKAGE::CLASS or PACKAGE::CLASS::ATTRIBUTE; none means all.\n"
        "Begin with   zandic show --path DIR   then   zandic help COMMAND";
    return help + "\n";
}

std::string HelpOnCommand(const Command& command) {
    std::string help =
        fmt::format("zandic {}: {}\n\n{} zandic [OPTIONS] {}{}\n", command.name, command.summary,
                    Heading("Usage:"), command.name, OperandsText(command.operands));
    if (!command.operands.label.empty()) {
        help += "\n";
        AppendTerm(command.operands.label, std::string(command.operands.help) + WithoutAName(command), help);
    }
    if (!command.options.empty()) {
        help += fmt::format("\n{}\n", Heading("Options:"));
        for (const OptionRow& row : command.options) AppendOption(row, help);
    }
    if (!command.details.empty()) help += "\n";
    AppendParagraphs(command.details, help);
    help += "\nOptions of every command: see 'zandic help options'.\n";
    return help;
}

std::string HelpOnOptions() {
    std::string help = fmt::format("{}\n", Heading("Options of every command, before or behind it:"));
    for (const OptionRow& row : kCommonOptions) AppendOption(row, help);
    AppendTerm(fmt::format("{}, {}", kHelpLetter, kHelpOption), "show the help, or that of a command", help);
    AppendTerm(kVersionOption, "show the version", help);
    return help;
}

}  // namespace tool
