#include "Session.h"

#include <algorithm>
#include <utility>

#include "Names.h"
#include "Streams.h"
#include "ZELEnvironment.h"
#include "ZanDicTraceSettings.h"

namespace tool {
namespace {

constexpr const char* kPathVariable = "ZELDictionaryPath";

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

}  // namespace

Session::Session(const Options& options)
    : _Path(PathOf(options)), _TraceMethods(options.traceMethods.value_or("")) {
    Lines().SetRule(RuleOf(options));
    ZELSetLineSink(&Lines());
    ZanDicSetProfiler(&_Clock);
    ZanDicSetDiagnosticObserver(&_Observer);
    if (options.traceLevel) ZanDicSetTraceLevel(std::stoi(*options.traceLevel));
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

bool Session::Load(const std::string& name) {
    if (_LOADED.contains(name)) return true;
    if (_REFUSED.contains(name)) return false;
    if (_Path.empty()) {
        _REFUSED.insert(name);
        Refuse(name, "there is no path to search: give --path, or set ZELDictionaryPath");
        return false;
    }

    const zandic::Result result = _Dictionary.Load(name, _Path.c_str());
    const std::optional<Fault> error = _Observer.TakeFirstError();
    (result ? _LOADED : _REFUSED).insert(name);
    if (!result) Note(error ? *error : Fault{name, {}, "the dictionary refuses it"}, ExitStatus::Refused);
    return static_cast<bool>(result);
}

std::vector<Session::LoadTime> Session::LoadTimes() const {
    std::vector<LoadTime> times;
    for (const std::string& asked : _Clock.Finished()) {
        const std::string package = _Observer.NameIn(asked);
        const auto same = std::find_if(times.begin(), times.end(),
                                       [&](const LoadTime& time) { return time.package == package; });
        if (same == times.end()) {
            times.push_back({package, _Clock.Own(asked)});
        } else {
            same->own += _Clock.Own(asked);
        }
    }
    return times;
}

void Session::LoadWholePath() {
    const std::vector<std::string> documents = DocumentsOf(_Path);
    if (documents.empty()) Refuse(_Path, "no package document on the path");
    for (const std::string& document : documents) Load(document);
}

void Session::Refuse(std::string subject, std::string text) {
    Note({std::move(subject), {}, std::move(text)}, ExitStatus::Refused);
}

void Session::RejectUse(std::string subject, std::string text) {
    Note({std::move(subject), {}, std::move(text)}, ExitStatus::WrongUse);
}

void Session::Note(const Fault& fault, ExitStatus status) {
    _Status = std::max(_Status, status);
    Tell(FaultLine(fault));
}

void Session::Warn(std::string_view subject, std::string_view text) { Tell(WarningLine(subject, text)); }

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
