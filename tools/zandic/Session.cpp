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

bool Session::Load(const std::string& name) {
    if (_LOADED.contains(name)) return true;
    if (_REFUSED.contains(name)) return false;
    if (_Path.empty()) {
        _REFUSED.insert(name);
        Refuse(name, "there is no path to search: give --path, or set ZELDictionaryPath");
        return false;
    }

    const zandic::Result result = _Dictionary.Load(name, _Path.c_str());
    std::optional<Fault> error = _Observer.TakeFirstError();
    (result ? _LOADED : _REFUSED).insert(name);
    if (!result)
        Note(error ? std::move(*error) : Fault{name, {}, "the dictionary refuses it"}, ExitStatus::Refused);
    return static_cast<bool>(result);
}

void Session::LoadWholePath() {
    const std::vector<std::string> documents = DocumentsOf(_Path);
    if (documents.empty()) Refuse(_Path, "no *.metadata document on the path");
    for (const std::string& document : documents) Load(document);
}

void Session::Refuse(std::string subject, std::string text) {
    Note({std::move(subject), {}, std::move(text)}, ExitStatus::Refused);
}

void Session::RejectUse(std::string subject, std::string text) {
    Note({std::move(subject), {}, std::move(text)}, ExitStatus::WrongUse);
}

void Session::Note(Fault fault, ExitStatus status) {
    _FAULTS.push_back(std::move(fault));
    _Status = std::max(_Status, status);
}

ExitStatus Session::Close() {
    if (_Dictionary) _Dictionary.Manager().End();
    _Dictionary = {};
    for (const Fault& fault : _FAULTS) WriteErrorLine(FaultLine(fault));
    _FAULTS.clear();
    Lines().SetRule(LineRule::None);
    return _Status;
}

}  // namespace tool
