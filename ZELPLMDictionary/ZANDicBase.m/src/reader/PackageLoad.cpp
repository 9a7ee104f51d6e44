#include "PackageLoad.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "HexToBinary.h"
#include "OxmBuildFileName.h"
#include "OxmDicFromXMLCheck.h"
#include "OxmDicFromXMLComplete.h"
#include "OxmDicFromXMLElements.h"
#include "OxmDicFromXMLFill.h"
#include "ReaderTexts.h"
#include "WordList.h"
#include "ZANDicValueWords.h"
#include "ZELUuid.h"
#include "ZanDicProfiling.h"

using namespace ZANDicFormat;
using enum ZanDicDiagnosticCode;

namespace {

constexpr ZanDicTraceScope kTrace(text::kDriver, "RC=");

std::string_view BeforeFirstDot(std::string_view name) { return name.substr(0, name.find('.')); }

/// Whether a package may bear a name: documents are found by it, and never outside their directories.
bool IsPackageName(std::string_view name) {
    return !name.empty() && name.find_first_of("/\\") == std::string_view::npos &&
           name.find("..") == std::string_view::npos;
}

/// The file that the manager's search path has for a package and a content word; empty when none.
std::string FindFile(const char* dirNames, const ZELString& package, const ZELString& extension,
                     HRESULT* result = nullptr) {
    char* fullName = nullptr;
    const HRESULT rc =
        OxmBuildFileName('r', dirNames, package.ConvertToChar(), extension.ConvertToChar(), &fullName);
    const std::unique_ptr<char, decltype(&std::free)> owner(fullName, &std::free);
    if (result != nullptr) *result = rc;
    return Succeeded(rc) && fullName != nullptr ? std::string(fullName) : std::string();
}

/// What a later pass meets, at the level of tags.
void TraceTag(std::size_t pass, const ZELVBTXMLNode& node) {
    if (auto line = kTrace.Line(TraceLevel::Tag)) {
        line << text::kPassTags[pass] << node.getTag() << "[" << NameOf(node) << "]";
    }
}

}  // namespace

const PackageLoad::Step PackageLoad::kSteps[] = {
    &PackageLoad::open_Document,      &PackageLoad::read_Identity,    &PackageLoad::load_UsedPackages,
    &PackageLoad::create_Package,     &PackageLoad::add_UsedPackages, &PackageLoad::fill_Elements,
    &PackageLoad::load_ScopePackages, &PackageLoad::add_Commands,     &PackageLoad::complete_Elements,
    &PackageLoad::check_Classes,
};

PackageLoad::PackageLoad(LoadRun& run, PackageRequest request) : _Run(run), _Request(std::move(request)) {
    _Place.file = _Request.name.View();
    _Place.package = BeforeFirstDot(_Request.name.View());
}

PackageLoad::~PackageLoad() { leave_Names(); }

bool PackageLoad::Advance() {
    _Run.faults.Enter(_Place);
    while (!_IsOver) {
        StepResult result = StepResult::Finished;
        if (_Step < std::size(kSteps)) {
            const ZanDicTrace::DocumentScope document;
            const auto step = kSteps[_Step];  // on its own, or the sanitizer takes the pointer for the index
            result = (this->*step)();
        }
        if (result == StepResult::NeedsPackage) return false;
        if (result == StepResult::Next) ++_Step;
        if (result == StepResult::Finished) finish();
    }
    return true;
}

void PackageLoad::Deliver(HRESULT rc) {
    _IsWaiting = false;
    _Run.faults.Enter(_Place);
    if (auto line = kTrace.Line(TraceLevel::Information)) {
        line << text::kCallResult << _Needed.name << "))=" << ZanDicTraceScope::Word(rc);
    }
    ZanDicProfiling::StepIn(text::kPhase, _Request.name.View());
    if (Failed(rc)) {
        _Result = rc;
        _FAILED.push_back(ZELString(BeforeFirstDot(_Needed.name.View())));
    }
}

void PackageLoad::Abandon() {
    if (_IsOver) return;
    _Result = E_FAIL;
    finish();
}

// The document.

PackageLoad::StepResult PackageLoad::open_Document() {
    kTrace.Start();
    if (auto line = kTrace.Line(TraceLevel::Detail)) line << text::kPackFileName << _Request.name;
    if (auto line = kTrace.Line(TraceLevel::Detail)) {
        line << text::kDirNames << std::string_view(_Run.dirNames);
    }
    if (auto line = kTrace.Line(TraceLevel::Detail))
        line << text::kContent << static_cast<int>(_Request.content);
    ZanDicProfiling::StepIn(text::kPhase, _Request.name.View());

    if (!split_Name()) return StepResult::Finished;
    enter_Name(_AskedName);
    if (is_Loaded(_AskedName)) {
        kTrace.Say(TraceLevel::Information, text::kAlreadyLoaded);
        _IsPassedOver = true;
        return StepResult::Finished;
    }
    if (!find_Document() || !parse_Document() || !find_PackageNode()) return StepResult::Finished;
    return StepResult::Next;
}

Fault PackageLoad::package_Fault(ZanDicDiagnosticCode code) const {
    Fault fault{code};
    fault.node = _Node;
    fault.element = (_Node && !NameOf(_Node).empty()) ? std::string(NameOf(_Node)) : _Place.package;
    return fault;
}

/// A fault of the name that was asked for: it stands in the document that asks.
Fault PackageLoad::request_Fault(ZanDicDiagnosticCode code) const {
    Fault fault{code};
    if (_Request.document == nullptr) {
        fault.element = _Place.package;
        return fault;
    }
    fault.node = _Request.node;
    fault.attribute = _Request.attribute;
    fault.file = _Request.document->file;
    fault.element = _Request.document->package;
    fault.otherParty = _Request.name.View();
    return fault;
}

bool PackageLoad::split_Name() {
    const std::string_view whole = _Request.name.View();
    const std::string_view name = BeforeFirstDot(whole);
    const CodeWord* const content = FindCode(kContentWords, _Request.content);
    std::string_view extension = content != nullptr ? content->word : std::string_view();
    if (name.size() < whole.size()) extension = whole.substr(name.size() + 1);
    _AskedName = ZELString(name);
    _Extension = ZELString(extension);
    if (auto line = kTrace.Line(TraceLevel::Detail)) line << text::kExtensionLength << extension.size();
    if (auto line = kTrace.Line(TraceLevel::Detail)) line << text::kPackName << _AskedName;
    if (auto line = kTrace.Line(TraceLevel::Detail)) line << text::kPackFileExtension << _Extension;

    const bool isName = IsPackageName(whole);
    if (isName && !name.empty() && FindWord(kContentWords, extension) != nullptr) return true;
    const bool isNameAtFault = !isName || name.empty();
    Fault fault = request_Fault(isNameAtFault ? InvalidPackageName : InvalidFileExtension);
    fault.detail = isNameAtFault ? whole : extension;
    fault.lines.push_back(
        {kTrace, Joined({isNameAtFault ? text::kInvalidName : text::kInvalidExtension, fault.detail})});
    goes_On(_Run.faults.Report(fault));
    return false;
}

bool PackageLoad::find_Document() {
    HRESULT rc = E_FAIL;
    std::string file = FindFile(_Run.dirNames, _AskedName, _Extension, &rc);
    if (auto line = kTrace.Line(TraceLevel::Information)) {
        line << text::kBuildFileNameResult << ZanDicTraceScope::Word(rc) << ", " << _AskedName;
    }
    if (!file.empty()) {
        if (auto line = kTrace.Line(TraceLevel::Information))
            line << text::kFileName << std::string_view(file);
        _Place.file = std::move(file);
        return true;
    }
    Fault fault = request_Fault(FileNotFound);
    fault.detail = Joined({_AskedName.View(), ".", _Extension.View(), text::kIn, _Run.dirNames});
    fault.lines.push_back({kTrace, Joined({text::kDocumentNotFound, fault.detail})});
    goes_On(_Run.faults.Report(fault));
    return false;
}

bool PackageLoad::parse_Document() {
    ZELVBTXMLError error;
    _Document = ZELVBTXMLDocument::CreateFromFile(_Place.file.c_str(), &error);
    if (_Document != nullptr) return true;
    Fault fault{DocumentNotReadable};
    fault.place = {error.line, error.column};
    fault.detail = error.reason;
    fault.lines.push_back({kTrace, std::string(text::kParserReturnedNull)});
    fault.lines.push_back({kTrace, Joined({text::kDocument, _AskedName.View(), ".", _Extension.View(),
                                           text::kLine, std::to_string(error.line), text::kColumn,
                                           std::to_string(error.column), ": ", error.reason})});
    goes_On(_Run.faults.Report(fault));
    return false;
}

bool PackageLoad::find_PackageNode() {
    const ZELVBTXMLNode root = _Document->Root();
    if (root.getTag() == tag::kPackage) {
        _Node = root;
        return true;
    }
    for (const ZELVBTXMLNode child : root.Children()) {
        if (child.getTag() != tag::kPackage) continue;
        _Node = child;
        return true;
    }
    Fault fault{NoPackageTag};
    fault.node = root;
    fault.element = _Place.package;
    fault.lines.push_back({kTrace, Joined({text::kErrorWhenSearching, tag::kPackage, text::kTag})});
    fault.lines.push_back({kTrace, Joined({text::kCouldNotFind, tag::kPackage, text::kTagInMetadata,
                                           _AskedName.View(), ".", _Extension.View()})});
    goes_On(_Run.faults.Report(fault));
    return false;
}

// The package's identity.

PackageLoad::StepResult PackageLoad::read_Identity() {
    read_Name();
    if (_Run.faults.IsStopped()) return StepResult::Finished;
    read_Uuid();
    if (_Run.faults.IsStopped()) return StepResult::Finished;
    read_Domain();
    if (_Run.faults.IsStopped()) return StepResult::Finished;

    if (_Name != _AskedName) {
        if (is_Loaded(_Name)) {
            kTrace.Say(TraceLevel::Information, text::kAlreadyLoaded);
            _IsPassedOver = true;
            return StepResult::Finished;
        }
        enter_Name(_Name);
    }
    _NAMES = read_Names(word::kUseNames, false);
    _NextName = 0;
    return StepResult::Next;
}

void PackageLoad::read_Name() {
    const std::string_view name = NameOf(_Node);
    _Name = name.empty() ? _AskedName : ZELString(name);
    if (name.empty()) {
        Fault fault = package_Fault(MissingAttribute);
        fault.severity = ZanDicSeverity::Warning;
        fault.attributeName = word::kName;
        fault.lines.push_back({kTrace, Joined({text::kMissingMandatoryWarning, word::kName, text::kForPackage,
                                               _AskedName.View()})});
        fault.lines.push_back({kTrace, Joined({text::kInputArgument, _AskedName.View(), text::kIsAssumed})});
        _Run.faults.Report(fault);
        return;
    }
    _Place.package = name;
    if (!IsPackageName(name)) {
        Fault fault = package_Fault(InvalidPackageName);
        fault.attribute = _Node.getAttribute(word::kName);
        fault.detail = name;
        fault.lines.push_back({kTrace, Joined({text::kInvalidName, name})});
        goes_On(_Run.faults.Report(fault));
        _Name = _AskedName;
    } else if (_Name != _AskedName) {
        Fault fault = package_Fault(PackageNameDiffers);
        fault.severity = ZanDicSeverity::Warning;
        fault.attribute = _Node.getAttribute(word::kName);
        fault.detail = _AskedName.View();
        fault.lines.push_back(
            {kTrace, Joined({text::kNameDiffers, name, text::kNameDiffersFrom, _AskedName.View()})});
        _Run.faults.Report(fault);
    }
}

void PackageLoad::read_Uuid() {
    if (const auto uuid = _Node.getAttributeValue(word::kUuid)) {
        _Uuid = UuidFromText(*uuid);
        return;
    }
    Fault fault = package_Fault(MissingAttribute);
    fault.attributeName = word::kUuid;
    fault.lines.push_back(
        {kTrace, Joined({text::kMissingMandatory, word::kUuid, text::kForPackage, _Name.View()})});
    goes_On(_Run.faults.Report(fault));
    _Uuid = getuuid();  // the load has failed; what else is at fault can still be told
}

void PackageLoad::read_Domain() {
    _Domain = ZELString(value::kDefaultDomain);
    const ZELVBTXMLAttribute domain = _Node.getAttribute(word::kDomain);
    if (!domain) return;
    if (std::find(std::begin(kDomains), std::end(kDomains), domain.Value()) != std::end(kDomains)) {
        _Domain = ZELString(domain.Value());
        return;
    }
    Fault fault = package_Fault(InvalidDomain);
    fault.attribute = domain;
    fault.lines.push_back({kTrace, Joined({text::kInvalidDomain, _Name.View(), ": ", domain.Value()})});
    goes_On(_Run.faults.Report(fault));
}

// Other packages.

/// \returns the names of a list, each once, without the package itself.
std::vector<ZELString> PackageLoad::read_Names(std::string_view attributeName, bool isPackageNameOnly) {
    std::vector<ZELString> names;
    std::unordered_map<std::string_view, bool> isKnown;
    WordList items(_Node.getAttributeValue(attributeName).value_or(std::string_view()));
    for (std::string_view item = items.Next(); !item.empty(); item = items.Next()) {
        const std::string_view package = BeforeFirstDot(item);
        if (isPackageNameOnly) item = item.substr(0, package.size());
        if (is_Self(package) || std::exchange(isKnown[item], true)) continue;
        names.push_back(ZELString(item));
    }
    return names;
}

bool PackageLoad::is_Self(std::string_view packageName) const {
    return packageName == _AskedName.View() || packageName == _Name.View();
}

/// Whether a needed package may be loaded now: one that is being loaded and not there yet cannot.
bool PackageLoad::check_Need(const ZELString& name) {
    const ZELString package(BeforeFirstDot(name.View()));
    if (!_Run.namesInProgress.contains(std::string(package.View())) || is_Loaded(package)) return true;
    Fault fault = package_Fault(PackageInUseRing);
    fault.attribute = _Needed.attribute;
    fault.otherParty = package.View();
    fault.detail = package.View();
    fault.lines.push_back({kTrace, Joined({text::kUseRing, package.View(), text::kUseRingOf})});
    goes_On(_Run.faults.Report(fault));
    _FAILED.push_back(package);
    return false;
}

PackageLoad::StepResult PackageLoad::need_Package(std::string_view attributeName, const ZELString& name) {
    _Needed = {name, OXMDicCONTENT_metadata, &_Place, _Node, _Node.getAttribute(attributeName)};
    if (!check_Need(name)) return _Run.faults.IsStopped() ? StepResult::Finished : StepResult::Again;
    _IsWaiting = true;
    ZanDicProfiling::StepOut(text::kPhase, _Request.name.View());
    if (auto line = kTrace.Line(TraceLevel::Information)) line << text::kCalling << name << ")";
    return StepResult::NeedsPackage;
}

PackageLoad::StepResult PackageLoad::load_UsedPackages() {
    if (Failed(_Result) && _Run.faults.IsStopped()) return StepResult::Finished;
    if (_NextName == _NAMES.size()) return StepResult::Next;
    return need_Package(word::kUseNames, _NAMES[_NextName++]);
}

PackageLoad::StepResult PackageLoad::create_Package() {
    if (is_Loaded(_Name)) {
        kTrace.Say(TraceLevel::Information, text::kFinallyLoaded);
        _IsPassedOver = true;
        return StepResult::Finished;
    }
    _Reading = std::make_unique<Reading>(_Run.manager, _Run.faults, _Run.leftOut, *_Document);
    const HRESULT rc = _Run.manager.CreatePackage(&_Name, &_Uuid, &_Domain, _Reading->package.Out());
    if (Succeeded(rc) && _Reading->package) return next_After(FillPackage(*_Reading, _Node));

    _Reading->package.Reset();
    ZanDicRef<OXMIDicElementH> registered;
    Fault fault = package_Fault(PackageNotCreated);
    if (Succeeded(_Run.manager.Search(&_Uuid, registered.Out()))) {
        fault.code = DuplicateUuid;
        fault.attribute = _Node.getAttribute(word::kUuid);
        fault.otherParty = QualifiedName(*registered);
    }
    fault.lines.push_back({kTrace, std::string(text::kCreatePackageFailed)});
    goes_On(_Run.faults.Report(fault));
    return StepResult::Finished;
}

/// Notes a loaded package on this one. \returns whether to go on.
bool PackageLoad::add_Package(std::string_view attributeName, const ZELString& name, bool isScope) {
    if (std::find(_FAILED.begin(), _FAILED.end(), name) != _FAILED.end()) return true;
    ZanDicRef<OXMIDicPackage> package;
    if (Succeeded(_Run.manager.GetPackage(&name, package.Out())) && package) {
        if (isScope) {
            _Reading->package->AddScopePackage(package.Get());
        } else {
            _Reading->package->AddUsedPackage(package.Get());
        }
        return true;
    }
    Fault fault = package_Fault(PrerequisiteFailed);
    fault.attribute = _Node.getAttribute(attributeName);
    fault.otherParty = name.View();
    fault.detail = name.View();
    fault.lines.push_back({kTrace, Joined({text::kCouldNotRecover, name.View(), text::kToComplete,
                                           attributeName, text::kAttributeProcess})});
    return goes_On(_Run.faults.Report(fault));
}

PackageLoad::StepResult PackageLoad::add_UsedPackages() {
    // One that is missing does not keep the others from being tried.
    for (const ZELString& name : read_Names(word::kUseNames, true)) {
        add_Package(word::kUseNames, name, false);
    }
    return Failed(_Result) && _Run.faults.IsStopped() ? StepResult::Finished : StepResult::Next;
}

PackageLoad::StepResult PackageLoad::load_ScopePackages() {
    if (Failed(_Result) && _Run.faults.IsStopped()) return StepResult::Finished;
    if (_NextName > 0) {
        const ZELString name(BeforeFirstDot(_NAMES[_NextName - 1].View()));
        if (!add_Package(word::kUseScopes, name, true)) return StepResult::Finished;
    }
    if (_NextName == _NAMES.size()) return StepResult::Next;
    if (auto line = kTrace.Line(TraceLevel::Tag)) line << text::kBetweenPasses << _NAMES[_NextName];
    return need_Package(word::kUseScopes, _NAMES[_NextName++]);
}

PackageLoad::StepResult PackageLoad::add_Commands() { return next_After(CompletePackage(*_Reading, _Node)); }

// The passes.

PackageLoad::StepResult PackageLoad::fill_Elements() {
    for (const ZELVBTXMLNode child : _Node.Children()) {
        TraceTag(0, child);
        if (!goes_On(FillElement(*_Reading, child))) return StepResult::Finished;
    }
    _NAMES = read_Names(word::kUseScopes, false);
    _NextName = 0;
    return StepResult::Next;
}

PackageLoad::StepResult PackageLoad::complete_Elements() {
    for (const ElementNote& note : _Reading->elements) {
        if (!goes_On(complete_Element(note))) return StepResult::Finished;
    }
    return StepResult::Next;
}

HRESULT PackageLoad::complete_Element(const ElementNote& note) {
    const ZELVBTXMLNode node = _Document->ElementAt(note.node);
    TraceTag(1, node);
    if (note.isUnknown) {
        kTrace.Error(UnknownTagMessage(node));
        return S_OK;
    }
    const HRESULT rc = CompleteClass(*_Reading, note);
    if (Failed(rc)) kTrace.Error(text::kCompleteClassFailed);
    return rc;
}

PackageLoad::StepResult PackageLoad::check_Classes() {
    for (const ElementNote& note : _Reading->elements) {
        if (!goes_On(check_Element(note))) return StepResult::Finished;
    }
    return StepResult::Next;
}

HRESULT PackageLoad::check_Element(const ElementNote& note) {
    const ZELVBTXMLNode node = _Document->ElementAt(note.node);
    TraceTag(2, node);
    if (note.isUnknown) {
        kTrace.Error(UnknownTagMessage(node));
        return S_OK;
    }
    if (node.getTag() != tag::kClass) return S_OK;  // instances are not checked
    const HRESULT rc = CheckClass(*_Reading, note);
    if (Failed(rc)) kTrace.Error(text::kCheckClassFailed);
    return rc;
}

// The end.

void PackageLoad::finish() {
    if (_IsWaiting) ZanDicProfiling::StepIn(text::kPhase, _Request.name.View());
    _IsWaiting = false;
    if (Failed(_Result)) {
        remove_Package();
    } else if (!_IsPassedOver) {
        const ZanDicTrace::DocumentScope document;
        read_Tuning();
    }
    _Document.reset();
    if (_Reading != nullptr && _Reading->package) kTrace.Say(TraceLevel::Information, text::kReleasing);
    _Reading.reset();
    leave_Names();
    ZanDicProfiling::StepOut(text::kPhase, _Request.name.View());
    if (auto line = kTrace.Line(TraceLevel::Call)) line << text::kMainExit << ZanDicTraceScope::Word(_Result);
    _IsOver = true;
}

void PackageLoad::remove_Package() {
    if (!_Run.faults.IsStopped()) {
        if (_Node) {
            _Run.leftOut.AddAll(_Node);
        } else {
            _Run.leftOut.AddUnknown();
        }
    }
    if (_Reading == nullptr || !_Reading->package) return;
    _Reading->elements.clear();
    _Reading->members.clear();
    if (auto line = kTrace.Line(TraceLevel::Information)) {
        line << text::kRemoving << _Name << text::kFromDictionary;
    }
    _Run.manager.RemovePackage(&_Name);
}

/// Tuning documents are not read yet: one that is there gives a warning, and the package stays loaded.
void PackageLoad::read_Tuning() {
    if (auto line = kTrace.Line(TraceLevel::Information)) line << text::kCallingTuning << _Name << ")...";
    const CodeWord* const tuning = FindCode(kContentWords, OXMDicCONTENT_tuning);
    std::string file = FindFile(_Run.dirNames, _Name, ZELString(tuning->word));
    const HRESULT rc = file.empty() ? S_FALSE : E_FAIL;
    if (auto line = kTrace.Line(TraceLevel::Information)) {
        line << text::kTuningResult << _Name << ")]=" << ZanDicTraceScope::Word(rc);
    }
    if (Succeeded(rc)) return;
    Fault fault{TuningFailed};
    fault.severity = ZanDicSeverity::Warning;
    fault.element = _Name.View();
    fault.file = std::move(file);
    fault.detail = "tuning documents are not supported yet; the package is loaded without attribute blocks";
    fault.lines.push_back({kTrace, Joined({text::kTuningWarning, _Name.View(), ")", text::kFailed})});
    _Run.faults.Report(fault);
}

bool PackageLoad::is_Loaded(const ZELString& name) {
    ZanDicRef<OXMIDicPackage> package;
    ZELString found;
    // The manager cuts a name at its first "." when it finds no other.
    return Succeeded(_Run.manager.GetPackage(&name, package.Out())) && package &&
           Succeeded(package->GetName(&found)) && found == name;
}

void PackageLoad::enter_Name(const ZELString& name) {
    _ENTERED.emplace_back(name.View());
    ++_Run.namesInProgress[_ENTERED.back()];
}

void PackageLoad::leave_Names() {
    for (const std::string& name : _ENTERED) {
        const auto entry = _Run.namesInProgress.find(name);
        if (entry != _Run.namesInProgress.end() && --entry->second == 0) _Run.namesInProgress.erase(entry);
    }
    _ENTERED.clear();
}
