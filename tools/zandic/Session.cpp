#include "Session.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

#include "Names.h"
#include "Nearest.h"
#include "Streams.h"
#include "ZANDicValueWords.h"
#include "ZELEnvironment.h"
#include "ZELHash.h"
#include "ZanDicTraceSettings.h"

namespace tool {
namespace {

constexpr const char* kPathVariable = "ZELDictionaryPath";
constexpr std::string_view kNoPath = "there is no path to search: give --path, or set ZELDictionaryPath";

LineRule RuleOf(const Options& options) {
    if (options.quiet) return LineRule::None;
    return options.Traces() ? LineRule::All : LineRule::FromDocuments;
}

std::string PathOf(const Options& options) {
    if (options.path.empty()) return ZELGetEnv(kPathVariable).value_or("");
    std::string path;
    for (const std::string& directories : options.path) path += (path.empty() ? "" : ":") + directories;
    return path;
}

bool IsOfAnotherContent(const std::string& document) {
    constexpr std::string_view kWord = ZANDicFormat::kContentWords[OXMDicCONTENT_metadata].word;
    return !document.ends_with(kWord) || document.find('.') != document.size() - kWord.size() - 1;
}

/// \returns the question whether a document of the path was meant; empty when none is near.
std::string NearestDocuments(std::string_view missing, const std::string& path) {
    Nearest nearest(missing.substr(0, missing.find('.')));
    for (const std::string& document : DocumentsOf(path)) nearest.Add(document.substr(0, document.find('.')));
    return nearest.Question();
}

}  // namespace

Session::Session(const Options& options)
    : _Path(PathOf(options)), _TraceMethods(options.traceMethods.value_or("")) {
    Lines().SetRule(RuleOf(options));
    ZELSetLineSink(&Lines());
    if (!options.quiet && HasStatusLine()) _Progress.emplace(_Clock, DrawStatusLine);
    ZanDicSetProfiler(_Progress ? static_cast<ZanDicProfiler*>(&*_Progress) : &_Clock);
    ZanDicSetDiagnosticObserver(&_Observer);
    if (options.traceLevel) ZanDicSetTraceLevel(*options.traceLevel);
}

Session::~Session() {
    ZanDicSetDiagnosticObserver(nullptr);
    ZanDicSetProfiler(nullptr);
}

bool Session::Open() {
    if (!_TraceMethods.empty() && Failed(ZanDicSetTraceMethodsFile(_TraceMethods.c_str()))) {
        Refuse(_TraceMethods, "the list of traced methods cannot be read");
        return false;
    }
    _Dictionary = zandic::Dictionary::Open();
    if (!_Dictionary) Refuse("", "there is no dictionary library");
    return static_cast<bool>(_Dictionary);
}

bool Session::Load(const std::string& name) { return LoadAs(name, Gravity::Error); }

bool Session::LoadAs(const std::string& name, Gravity gravity) {
    if (_LOADED.contains(name)) return true;
    if (_REFUSED.contains(name)) return false;
    if (_Path.empty()) {
        _REFUSED.insert(name);
        Refuse(name, std::string(kNoPath));
        return false;
    }

    const zandic::Result result = _Dictionary.Load(name, _Path.c_str());
    Done();
    std::optional<Fault> error = _Observer.TakeFirstError();
    (result ? _LOADED : _REFUSED).insert(name);
    if (result) return true;
    if (!error) error = Fault{name, {}, "the dictionary refuses it"};
    if (error->isMissing) error->text += NearestDocuments(error->subject, _Path);
    Note(*error, ExitStatus::Refused, gravity);
    return false;
}

std::string Session::AskedFor(std::string_view package) const {
    for (const std::string& asked : _Clock.Finished()) {
        if (_Observer.NameIn(asked) == package) return asked.substr(0, asked.find('.'));
    }
    return std::string(package);
}

std::vector<Session::LoadOf> Session::LoadCosts() const {
    std::vector<LoadOf> costs;
    std::unordered_map<std::string, std::size_t, ZELTextHash> places;
    for (const std::string& asked : _Clock.Finished()) {
        std::string package = _Observer.NameIn(asked);
        const auto [place, isNew] = places.try_emplace(std::move(package), costs.size());
        if (isNew) costs.push_back({place->first, {}});
        costs[place->second].own += _Clock.Own(asked);
    }
    return costs;
}

std::vector<std::string> Session::LoadPath(PathDocuments which) {
    std::vector<std::string> documents = DocumentsOf(_Path);
    if (which == PathDocuments::Metadata) std::erase_if(documents, IsOfAnotherContent);
    if (_Path.empty()) {
        Refuse("", std::string(kNoPath));
    } else if (documents.empty()) {
        Refuse(_Path, "no package document on the path");
    }
    Expect("loading", documents.size());
    for (const std::string& document : documents) LoadAs(document, Gravity::Warning);
    return documents;
}

void Session::Refuse(std::string subject, std::string text) {
    Note({std::move(subject), {}, std::move(text)}, ExitStatus::Refused);
}

void Session::RejectUse(std::string subject, std::string text) {
    Note({std::move(subject), {}, std::move(text)}, ExitStatus::WrongUse);
}

void Session::Note(const Fault& fault, ExitStatus status, Gravity gravity) {
    _Status = std::max(_Status, status);
    Tell(FaultLine(fault, gravity));
}

void Session::Warn(std::string_view subject, std::string_view text) {
    Tell(FaultLine({std::string(subject), {}, std::string(text)}, Gravity::Warning));
}

void Session::Tell(std::string line) {
    // A document that several others need is refused as often, and told once.
    if (_TOLD.insert(line).second) _LINES.push_back(std::move(line));
}

ExitStatus Session::Close() {
    if (_Dictionary) _Dictionary.Manager().End();
    _Dictionary = {};
    for (const std::string& line : _LINES) WriteErrorLine(line);
    Lines().SetRule(LineRule::None);
    return _Status;
}

}  // namespace tool
