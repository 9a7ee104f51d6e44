#include "Faults.h"

#include <fmt/format.h>

#include <utility>

#include "Streams.h"
#include "Style.h"

namespace tool {
namespace {

void PassOn(const ZanDicDiagnostic& diagnostic) {
    if (Lines().Rule() == LineRule::None || diagnostic.Traced()) return;
    WriteErrorLine(diagnostic.TraceText());
}

/// \returns the name that leads to a file: without directories and content word.
std::string_view AskedName(std::string_view file) {
    const std::string_view name = file.substr(file.find_last_of("/\\") + 1);
    return name.substr(0, name.find('.'));
}

}  // namespace

std::string FaultLine(const Fault& fault, Gravity gravity) {
    const bool isError = gravity == Gravity::Error;
    const std::string word =
        Style::Errors().Paint(isError ? Role::Error : Role::Warning, isError ? "error:" : "warning:");
    std::string line = "zandic: ";
    if (!fault.subject.empty()) line += fault.subject + ":";
    if (fault.place.line > 0) line += fmt::format("{}:{}:", fault.place.line, fault.place.column);
    if (!fault.subject.empty()) line += " ";
    return line + word + " " + fault.text;
}

bool FaultObserver::OnDiagnostic(const ZanDicDiagnostic& diagnostic) {
    PassOn(diagnostic);
    if (diagnostic.Severity() == ZanDicSeverity::Error && !_FirstError) {
        _FirstError =
            Fault{std::string(diagnostic.File()), diagnostic.Place(), std::string(diagnostic.Reason()),
                  diagnostic.Code() == ZanDicDiagnosticCode::FileNotFound};
    }
    if (diagnostic.Code() == ZanDicDiagnosticCode::PackageNameDiffers) {
        _NAMES.insert_or_assign(std::string(AskedName(diagnostic.File())), std::string(diagnostic.Package()));
    }
    return false;
}

std::string FaultObserver::NameIn(std::string_view asked) const {
    const auto found = _NAMES.find(asked.substr(0, asked.find('.')));
    return found != _NAMES.end() ? found->second : std::string(asked);
}

std::optional<Fault> FaultObserver::TakeFirstError() { return std::exchange(_FirstError, std::nullopt); }

}  // namespace tool
