// The answer of `check` for programs that read the results of tests.
#include <fmt/format.h>

#include <map>

#include "CheckReport.h"

namespace tool {
namespace {

/// \returns \p text as it stands in an attribute or between tags. What no XML document may hold becomes "?".
std::string Escaped(std::string_view text) {
    std::string escaped;
    for (const char c : text) {
        switch (c) {
            case '&':
                escaped += "&amp;";
                break;
            case '<':
                escaped += "&lt;";
                break;
            case '>':
                escaped += "&gt;";
                break;
            case '"':
                escaped += "&quot;";
                break;
            case '\n':
                escaped += "&#10;";
                break;
            default:
                escaped += static_cast<unsigned char>(c) < 0x20 ? '?' : c;
        }
    }
    return escaped;
}

std::string Place(const FilePlace& at) {
    if (at.place.line == 0) return at.file;
    return fmt::format("{}:{}:{}", at.file, at.place.line, at.place.column);
}

std::string CaseName(const Finding& finding) {
    if (finding.at.place.line == 0) return std::string(finding.code);
    return fmt::format("{} at {}:{}", finding.code, finding.at.place.line, finding.at.place.column);
}

std::string WholeText(const Finding& finding) {
    std::string text = fmt::format("{}: {}[{}]: {}", Place(finding.at), SeverityWord(finding.severity),
                                   finding.code, finding.text);
    for (const FindingNote& note : finding.notes) {
        text += fmt::format("\n{}: note: {}", Place(note.at.file.empty() ? finding.at : note.at), note.text);
    }
    return text;
}

struct Suite {
    std::vector<const Finding*> findings;
    std::size_t failures = 0;
};

void WriteCase(const CheckReport& report, const Finding& finding, Output& output) {
    output.Write(fmt::format("    <testcase classname=\"{}\" name=\"{}\">\n", Escaped(finding.at.file),
                             Escaped(CaseName(finding))));
    if (report.IsFailure(finding)) {
        output.Write(fmt::format("      <failure type=\"{}\" message=\"{}\">{}</failure>\n", finding.code,
                                 Escaped(finding.text), Escaped(WholeText(finding))));
    } else {
        output.Write(fmt::format("      <system-out>{}</system-out>\n", Escaped(WholeText(finding))));
    }
    output.Write("    </testcase>\n");
}

void WriteSuite(const CheckReport& report, const std::string& file, const Suite& suite, Output& output) {
    const std::size_t tests = suite.findings.empty() ? 1 : suite.findings.size();
    output.Write(
        fmt::format("  <testsuite name=\"{}\" tests=\"{}\" failures=\"{}\" errors=\"0\" skipped=\"0\">\n",
                    Escaped(file), tests, suite.failures));
    if (suite.findings.empty()) {
        output.Write(fmt::format("    <testcase classname=\"{}\" name=\"check\"/>\n", Escaped(file)));
    }
    for (const Finding* const finding : suite.findings) WriteCase(report, *finding, output);
    output.Write("  </testsuite>\n");
}

}  // namespace

void WriteJunit(const CheckReport& report, Output& output) {
    std::map<std::string, Suite> suites;
    for (const std::string& document : report.documents) suites.try_emplace(document);
    std::size_t tests = 0;
    std::size_t failures = 0;
    for (const Finding& finding : report.findings) {
        if (!report.IsTold(finding)) continue;
        Suite& suite = suites[finding.at.file];
        suite.findings.push_back(&finding);
        suite.failures += report.IsFailure(finding) ? 1 : 0;
    }
    for (const auto& [file, suite] : suites) {
        tests += suite.findings.empty() ? 1 : suite.findings.size();
        failures += suite.failures;
    }
    output.Write("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n");
    output.Write(fmt::format("<testsuites name=\"zandic check\" tests=\"{}\" failures=\"{}\" errors=\"0\">\n",
                             tests, failures));
    for (const auto& [file, suite] : suites) WriteSuite(report, file, suite, output);
    output.Write("</testsuites>\n");
}

}  // namespace tool
