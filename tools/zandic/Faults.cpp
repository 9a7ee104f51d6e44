#include "Faults.h"

#include <fmt/format.h>

#include <utility>

#include "Streams.h"

namespace tool {
namespace {

void PassOn(const ZanDicDiagnostic& diagnostic) {
    if (Lines().Rule() == LineRule::None || diagnostic.Traced()) return;
    WriteErrorLine(diagnostic.TraceText());
}

}  // namespace

std::string FaultLine(const Fault& fault) {
    std::string line = "zandic: ";
    if (!fault.subject.empty()) line += fault.subject + ":";
    if (fault.place.line > 0) line += fmt::format("{}:{}:", fault.place.line, fault.place.column);
    if (!fault.subject.empty()) line += " ";
    return line + "error: " + fault.text;
}

bool FaultObserver::OnDiagnostic(const ZanDicDiagnostic& diagnostic) {
    PassOn(diagnostic);
    if (diagnostic.Severity() == ZanDicSeverity::Error && !_FirstError) {
        _FirstError =
            Fault{std::string(diagnostic.File()), diagnostic.Place(), std::string(diagnostic.Reason())};
    }
    return false;
}

std::optional<Fault> FaultObserver::TakeFirstError() { return std::exchange(_FirstError, std::nullopt); }

}  // namespace tool
