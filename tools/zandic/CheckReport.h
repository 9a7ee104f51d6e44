/// The answer of `check`, and its forms.
#ifndef ZANDIC_TOOL_CHECK_REPORT_H
#define ZANDIC_TOOL_CHECK_REPORT_H

#include <cstddef>
#include <string>
#include <vector>

#include "Finding.h"
#include "Output.h"

namespace tool {

/// What is told of a check.
struct CheckReport {
    std::vector<std::string> documents;  ///< sorted
    Findings findings;                   ///< arranged, those that are accepted left out
    bool tellsConsequences = false;      ///< also what only follows from other findings
    bool isStrict = false;               ///< a warning fails the check too
    std::size_t accepted = 0;            ///< findings that a baseline accepts
    std::size_t gone = 0;                ///< findings of the baseline that are there no more

    /// Of the findings that stand for themselves.
    std::size_t Errors() const;
    std::size_t Warnings() const;

    /// Whether the check fails.
    bool IsFailed() const { return Errors() > 0 || (isStrict && Warnings() > 0); }

    /// Whether this finding fails it.
    bool IsFailure(const Finding& finding) const {
        return isStrict || finding.severity == ZanDicSeverity::Error;
    }

    /// Whether this finding is told by itself.
    bool IsTold(const Finding& finding) const { return tellsConsequences || finding.cause == Finding::kNone; }
};

/// \returns "error" or "warning".
std::string_view SeverityWord(ZanDicSeverity severity);

/// A line a finding, "FILE:LINE:COLUMN: error[CODE]: TEXT", and one for each note; the last line counts.
void WriteText(const CheckReport& report, Output& output);

/// docs/schemas/check.schema.json
void WriteJson(const CheckReport& report, Output& output);

/// SARIF 2.1.0: the parts of docs/schemas/sarif.schema.json.
void WriteSarif(const CheckReport& report, Output& output);

/// JUnit's XML, a suite for each document: docs/schemas/junit.xsd.
void WriteJunit(const CheckReport& report, Output& output);

}  // namespace tool

#endif
