#include "CheckReport.h"

#include <fmt/format.h>

#include <algorithm>

#include "FindingList.h"
#include "Style.h"

namespace tool {
namespace {

std::size_t CountOf(const Findings& findings, ZanDicSeverity severity) {
    return static_cast<std::size_t>(std::count_if(findings.begin(), findings.end(), [&](const Finding& each) {
        return each.cause == Finding::kNone && each.severity == severity;
    }));
}

std::string Number(std::size_t count, std::string_view thing) {
    return fmt::format("{} {}{}", count, thing, count == 1 ? "" : "s");
}

/// "FILE:LINE:COLUMN: ", without the parts that there are not.
std::string Place(const FilePlace& at) {
    std::string text;
    if (at.file.empty()) return text;
    text = at.file + ":";
    if (at.place.line > 0) text += fmt::format("{}:{}:", at.place.line, at.place.column);
    return text + " ";
}

/// Names and values may hold line ends, which would break the form of the answer.
std::string OneLine(std::string_view text) {
    std::string line;
    for (const char c : text) {
        if (static_cast<unsigned char>(c) < 0x20) {
            line += fmt::format("\\x{:02X}", static_cast<unsigned char>(c));
        } else {
            line += c;
        }
    }
    return line;
}

std::string NoteLine(const FilePlace& at, std::string_view text) {
    return fmt::format("{}{} {}\n", Place(at), Style::Output().Paint(Role::Faint, "note:"), OneLine(text));
}

void WriteFinding(const Finding& finding, Output& output) {
    const bool isError = finding.severity == ZanDicSeverity::Error;
    const std::string label = fmt::format("{}[{}]:", SeverityWord(finding.severity), finding.code);
    output.Write(fmt::format("{}{} {}\n", Place(finding.at),
                             Style::Output().Paint(isError ? Role::Error : Role::Warning, label),
                             OneLine(finding.text)));
    for (const FindingNote& note : finding.notes) {
        // A note without a place of its own belongs to the place of its finding.
        output.Write(NoteLine(note.at.file.empty() ? finding.at : note.at, note.text));
    }
}

std::string Summary(const CheckReport& report) {
    std::string text = Number(report.documents.size(), "document") + ": ";
    const std::size_t errors = report.Errors();
    const std::size_t warnings = report.Warnings();
    if (errors + warnings == 0) text += "nothing to report";
    if (errors > 0) text += Number(errors, "error");
    if (errors > 0 && warnings > 0) text += ", ";
    if (warnings > 0) text += Number(warnings, "warning");
    if (report.accepted > 0) text += fmt::format("; {} accepted by the baseline", report.accepted);
    if (report.gone > 0) text += fmt::format("; {} of the baseline gone, so write it again", report.gone);
    return text + "\n";
}

}  // namespace

std::string_view SeverityWord(ZanDicSeverity severity) {
    return severity == ZanDicSeverity::Error ? "error" : "warning";
}

std::size_t CheckReport::Errors() const { return CountOf(findings, ZanDicSeverity::Error); }

std::size_t CheckReport::Warnings() const { return CountOf(findings, ZanDicSeverity::Warning); }

void WriteText(const CheckReport& report, Output& output) {
    const std::vector<std::size_t> folded = CountConsequences(report.findings);
    for (std::size_t number = 0; number < report.findings.size(); ++number) {
        const Finding& finding = report.findings[number];
        if (!report.IsTold(finding)) continue;
        WriteFinding(finding, output);
        if (finding.cause != Finding::kNone) {
            const Finding& cause = report.findings[finding.cause];
            output.Write(NoteLine(cause.at, fmt::format("it follows from this {}", cause.code)));
        } else if (folded[number] > 0 && !report.tellsConsequences) {
            output.Write(NoteLine(
                finding.at,
                fmt::format("{} from it: see --all-faults",
                            folded[number] == 1 ? "one more fault follows"
                                                : fmt::format("{} more faults follow", folded[number]))));
        }
    }
    output.Write(Summary(report));
}

}  // namespace tool
