#include "ReaderFindings.h"

#include <fmt/format.h>

#include <algorithm>
#include <utility>

#include "CheckPlan.h"
#include "Names.h"
#include "Nearest.h"
#include "RuleSuggestions.h"
#include "ZANDicValueWords.h"

namespace tool {
namespace {

using enum ZanDicDiagnosticCode;

/// What is wrong, with the element's name in it: reasons that are about an attribute do not say it.
std::string TextOf(const ZanDicDiagnostic& fault) {
    std::string reason(fault.Reason());
    const std::string element = fmt::format("\"{}\"", fault.Element());
    if (fault.Tag().empty() || fault.Element().empty() || reason.find(element) != reason.npos) return reason;
    const std::string subject = fmt::format("{} {}", fault.Tag(), element);
    if (reason.starts_with(std::string(fault.Tag()) + " "))
        return subject + reason.substr(fault.Tag().size());
    return subject + ": " + reason;
}

/// \returns "Package::Class::attribute" of what is at fault.
std::string ElementOf(const ZanDicDiagnostic& fault) {
    std::string element(fault.Package());
    const bool isPackage = fault.Tag() == ZANDicFormat::tag::kPackage || fault.Tag().empty();
    if (!isPackage && !fault.Element().empty()) element.append("::").append(fault.Element());
    return element;
}

/// What the other party has to do with the fault.
std::string PartyText(const ZanDicDiagnostic& fault) {
    const std::string_view other = fault.OtherParty();
    switch (fault.Code()) {
        case DuplicateUuid:
            return fmt::format("{} has this UUID", other);
        case DuplicateName:
            return fmt::format("{}::{} has this name", fault.Package(), fault.Element());
        case InvalidRedefinition:
            return fmt::format("{} is the inherited one", other);
        default:
            return fmt::format("{} stands here", other);
    }
}

}  // namespace

bool IsTuningFile(std::string_view file) {
    constexpr std::string_view kTuning = ZANDicFormat::kContentWords[OXMDicCONTENT_tuning].word;
    return file.size() > kTuning.size() && file.ends_with(kTuning) &&
           file[file.size() - kTuning.size() - 1] == '.';
}

bool ReaderFindings::OnDiagnostic(const ZanDicDiagnostic& diagnostic) {
    Finding finding;
    finding.code = ZanDicDiagnosticName(diagnostic.Code());
    finding.at = {ShownFile(diagnostic.File()), diagnostic.Place()};
    // A load goes on without a faulty tuning document; whoever wrote it wants it to count.
    finding.severity = IsTuningFile(finding.at.file) ? ZanDicSeverity::Error : diagnostic.Severity();
    finding.text = TextOf(diagnostic) + SuggestionFor(diagnostic);
    finding.element = ElementOf(diagnostic);
    if (diagnostic.Cause() > 0)
        finding.cause = _BY_NUMBER.at(static_cast<std::size_t>(diagnostic.Cause()) - 1);
    _BY_NUMBER.resize(static_cast<std::size_t>(diagnostic.Number()), Finding::kNone);
    _BY_NUMBER.back() = _FINDINGS.size();
    note_Party(diagnostic);
    if (diagnostic.Code() == FileNotFound) tell_Missing(diagnostic, finding);
    _FINDINGS.push_back(std::move(finding));
    return true;
}

void ReaderFindings::note_Party(const ZanDicDiagnostic& diagnostic) {
    if (diagnostic.OtherUuid().IsEmpty()) return;
    _PARTIES.push_back({_FINDINGS.size(), std::string(diagnostic.OtherPackage()), diagnostic.OtherUuid(),
                        PartyText(diagnostic)});
}

/// Which directories there are differs from one machine to the next: it is a note. What was meant may be
/// among what is there.
void ReaderFindings::tell_Missing(const ZanDicDiagnostic& diagnostic, Finding& finding) {
    constexpr std::string_view kIn = " in ";
    const std::string_view missing =
        diagnostic.OtherParty().empty() ? diagnostic.Element() : diagnostic.OtherParty();
    if (_NAMES.empty()) {
        for (const std::string& document : DocumentsOf(_Directories)) {
            _NAMES.push_back(document.substr(0, document.find('.')));
        }
    }
    finding.text.resize(std::min(finding.text.size(), finding.text.rfind(std::string(kIn) + _Directories)));
    finding.text += Nearest(missing.substr(0, missing.find('.')), _NAMES).Question();
    finding.notes.push_back(
        {{}, _Directories.empty() ? "no directory is searched" : "searched is " + _Directories});
}

void ReaderFindings::OnDocument(ZanDicReadDocument document) {
    _DOCUMENTS.push_back(
        {ShownFile(document.file), std::string(document.package), document.end, std::move(document.tree)});
}

Findings ReaderFindings::Take(class Documents& documents) {
    for (Party& party : _PARTIES) {
        _FINDINGS[party.finding].notes.push_back(
            {documents.PlaceOf(party.package, party.uuid), std::move(party.text)});
    }
    _PARTIES.clear();
    return std::exchange(_FINDINGS, {});
}

}  // namespace tool
