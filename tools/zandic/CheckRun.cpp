#include "CheckRun.h"

#include <algorithm>
#include <map>
#include <set>
#include <utility>

#include "DocumentRules.h"
#include "Documents.h"
#include "FindingList.h"
#include "OxmDicFromXML.h"
#include "ReaderFindings.h"

namespace tool {
namespace {

/// One round: the load, the rules, and the unloading.
class Round {
public:
    Round(const zandic::Dictionary& dictionary, const CheckRound& round)
        : _Dictionary(dictionary), _Round(round), _Reader(round.directories) {}

    /// Adds what is found. \returns the targets that were not read, since another document brought their
    /// package.
    std::vector<CheckTarget> Run(CheckResult& result);

private:
    void load();
    std::vector<CheckTarget> note_Targets();
    void check_Rules();
    void check_Document(const ReadDocument& read, const Findings& faults);
    void unload();

    const zandic::Dictionary& _Dictionary;
    const CheckRound& _Round;
    ReaderFindings _Reader;
    Documents _Documents;
    std::set<std::string, std::less<>> _WANTED;  ///< files of which warnings are told too
    Findings _FINDINGS;
};

std::vector<CheckTarget> Round::Run(CheckResult& result) {
    load();
    std::vector<CheckTarget> unread = note_Targets();
    _FINDINGS = _Reader.Take(_Documents);
    check_Rules();
    unload();

    // Of what is only used, the errors that keep it from being loaded.
    Erase(_FINDINGS, [this](const Finding& each) {
        const bool mayBeUnwanted = each.severity == ZanDicSeverity::Warning || IsTuningFile(each.at.file);
        return mayBeUnwanted && !_WANTED.contains(each.at.file);
    });
    result.documents.insert(result.documents.end(), _WANTED.begin(), _WANTED.end());
    Append(result.findings, std::move(_FINDINGS));
    return unread;
}

void Round::load() {
    std::vector<ZELString> names;
    for (const CheckTarget& target : _Round.targets) names.emplace_back(target.name);
    ZanDicDiagnosticObserver* const before = ZanDicSetDiagnosticObserver(&_Reader);
    OxmDicFromXMLAll(&_Dictionary.Manager(), names, _Round.directories.c_str());
    ZanDicSetDiagnosticObserver(before);
}

std::vector<CheckTarget> Round::note_Targets() {
    std::map<std::string_view, const ReadDocument*> read;
    for (ReadDocument& document : _Reader.Documents()) {
        if (document.end == ZanDicReading::NameTaken) continue;
        read.emplace(document.file, &document);
        if (!document.IsTuning()) _Documents.Note(document.package, document.file);
        if (document.tree) _Documents.Keep(document.file, std::move(document.tree));
    }
    std::vector<CheckTarget> unread;
    std::set<std::string_view> packages;
    for (const CheckTarget& target : _Round.targets) {
        if (target.file.empty()) continue;  // that it is missing is told
        const auto found = read.find(target.file);
        if (found == read.end()) {
            unread.push_back(target);
            continue;
        }
        if (!target.isForTuning) _WANTED.insert(target.file);
        packages.insert(found->second->package);
    }
    for (const ReadDocument& document : _Reader.Documents()) {
        if (document.IsTuning() && packages.contains(document.package)) _WANTED.insert(document.file);
    }
    return unread;
}

void Round::check_Rules() {
    std::map<std::string_view, Findings> faults;  // by file
    for (const Finding& finding : _FINDINGS) {
        const auto wanted = _WANTED.find(finding.at.file);
        if (wanted != _WANTED.end()) faults[*wanted].push_back(finding);
    }
    for (const ReadDocument& read : _Reader.Documents()) {
        if (read.end == ZanDicReading::NameTaken || !_WANTED.contains(read.file)) continue;
        check_Document(read, faults[read.file]);
    }
}

void Round::check_Document(const ReadDocument& read, const Findings& faults) {
    const DocumentPlaces* const places = _Documents.Read(read.file);
    if (places == nullptr) return;
    const bool isThere = read.end == ZanDicReading::Loaded || read.IsTuning();
    const zandic::Handle<OXMIDicPackage> package =
        isThere ? _Dictionary.Package(read.package) : zandic::Handle<OXMIDicPackage>();
    const CheckedDocument checked{read.file, *places, _Documents, _Dictionary, package.Get(), faults};
    if (!read.IsTuning()) {
        CheckDocument(checked, _FINDINGS);
    } else if (package) {
        CheckTuningDocument(checked, _FINDINGS);
    }
}

/// What was loaded last may use what was loaded before.
void Round::unload() {
    const std::vector<ReadDocument>& documents = _Reader.Documents();
    for (auto document = documents.rbegin(); document != documents.rend(); ++document) {
        if (document->end == ZanDicReading::Loaded && !document->IsTuning())
            _Dictionary.Unload(document->package);
    }
}

}  // namespace

CheckResult Check(const zandic::Dictionary& dictionary, CheckPlan plan) {
    CheckResult result;
    result.findings = std::move(plan.findings);
    for (const CheckRound& round : plan.rounds) {
        for (CheckTarget& unread : Round(dictionary, round).Run(result)) {
            const CheckRound alone{round.directories, {std::move(unread)}};
            Round(dictionary, alone).Run(result);
        }
    }
    std::sort(result.documents.begin(), result.documents.end());
    result.documents.erase(std::unique(result.documents.begin(), result.documents.end()),
                           result.documents.end());
    Arrange(result.findings);
    return result;
}

}  // namespace tool
