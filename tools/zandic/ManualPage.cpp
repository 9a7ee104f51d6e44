#include <fmt/format.h>

#include "Scripts.h"

namespace tool {
namespace {

/// \returns the text with what means something to the formatter made harmless.
std::string Roff(std::string_view text) {
    std::string safe;
    for (const char c : text) {
        if (c == '\\') {
            safe += "\\e";
        } else if (c == '-') {
            safe += "\\-";
        } else if (c == '\'' || c == '.') {
            safe += (safe.empty() || safe.back() == '\n') ? std::string("\\&") + c : std::string(1, c);
        } else {
            safe += c;
        }
    }
    return safe;
}

std::string Bold(std::string_view text) { return "\\fB" + Roff(text) + "\\fR"; }
std::string Italic(std::string_view text) { return "\\fI" + Roff(text) + "\\fR"; }

std::string Term(const std::string& term, std::string_view meaning) {
    return fmt::format(".TP\n{}\n{}\n", term, Roff(meaning));
}

std::string OptionTerm(const OptionRow& row) {
    std::string term = Bold(row.name);
    if (!row.value.empty()) term += " " + Italic(row.value);
    return Term(term, row.help);
}

/// Paragraphs of the help, a line each.
std::string Paragraphs(std::string_view text) {
    std::string page;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        page += ".PP\n" + Roff(text.substr(0, end)) + "\n";
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return page;
}

std::string CommandSection(const Command& command) {
    const Operands& operands = command.operands;
    std::string page = fmt::format(".SS {}\n{}.\n", Roff(command.name), Roff(command.summary));
    page += ".PP\n" + Bold("zandic") + " [" + Italic("OPTIONS") + "] " + Bold(command.name);
    if (!operands.label.empty()) {
        const std::string text = Italic(operands.label) + (operands.isSingle ? "" : " ...");
        page += operands.isNeeded ? " " + text : " [" + text + "]";
    }
    page += "\n";
    if (!operands.label.empty()) page += Term(Italic(operands.label), operands.help);
    for (const OptionRow& row : command.options) page += OptionTerm(row);
    return page + Paragraphs(command.details);
}

constexpr std::string_view kHead =
    ".SH NAME\n"
    "zandic \\- reads the package documents of a data dictionary and tells what they say\n"
    ".SH SYNOPSIS\n"
    "\\fBzandic\\fR [\\fIOPTIONS\\fR] \\fICOMMAND\\fR [\\fINAME\\fR ...]\n"
    ".SH DESCRIPTION\n"
    "A NAME is PACKAGE, PACKAGE::CLASS, PACKAGE::CLASS::ATTRIBUTE or a UUID. Without one, a command works "
    "on\n"
    "what \\fB\\-\\-in\\fR names, else on every document of the path that ends in .metadata; there one that "
    "does\n"
    "not load costs a warning and exit status 1, not the answer. The same documents give the same bytes,\n"
    "whatever the locale and the day. Options stand before or behind the command.\n";

constexpr std::string_view kTail =
    ".SH EXIT STATUS\n"
    ".TP\n0\nAll went well.\n"
    ".TP\n1\nThe dictionary refused something, something was not found, documents have errors, or input or\n"
    "output failed.\n"
    ".TP\n2\nThe command line is wrong.\n"
    ".SH ENVIRONMENT\n"
    ".TP\n\\fBZELDictionaryPath\\fR\nDirectories of the documents, separated by colons, where "
    "\\fB\\-\\-path\\fR "
    "gives none.\n"
    ".TP\n\\fBNO_COLOR\\fR\nWhere it is set to something, there are no colours on a terminal either.\n"
    ".SH EXAMPLES\n"
    ".EX\n"
    "zandic tree \\-\\-path samples\n"
    "zandic \\-\\-path samples find '*part*'\n"
    "zandic \\-\\-path samples show BomItems::BomPart\n"
    ".EE\n";

}  // namespace

std::string ManualPage() {
    std::string page = ".\\\" Made by 'zandic completion man'.\n";
    page += ".TH ZANDIC 1 \"\" \"zandic " ZANDIC_VERSION "\" \"User Commands\"\n";
    page += kHead;
    page += ".SH OPTIONS\n";
    for (const OptionRow& row : kCommonOptions) page += OptionTerm(row);
    page += Term(Bold(kHelpLetter) + ", " + Bold(kHelpOption), "show the help, or that of a command");
    page += Term(Bold(kVersionOption), "show the version");
    page += ".SH COMMANDS\n";
    for (const Command& command : Commands()) page += CommandSection(command);
    return page.append(kTail);
}

}  // namespace tool
