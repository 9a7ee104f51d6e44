#include "PackageLoad.h"

#include <algorithm>
#include <utility>

#include "DocumentFile.h"
#include "HexToBinary.h"
#include "OxmDicFromXMLComplete.h"
#include "OxmDicFromXMLElements.h"
#include "OxmDicFromXMLFill.h"
#include "ReaderTexts.h"
#include "TuningReading.h"
#include "WordList.h"
#include "ZANDicValueWords.h"
#include "ZELCall.h"
#include "ZELHash.h"
#include "ZELUuid.h"
#include "ZanDicLoadRecord.h"
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

}  // namespace

const PackageLoad::StepRow PackageLoad::kSteps[] = {
    {&PackageLoad::open_Document, LoadPhase::Read},
    {&PackageLoad::read_Identity, LoadPhase::Read},
    {&PackageLoad::load_UsedPackages, LoadPhase::Read},
    {&PackageLoad::create_Package, LoadPhase::Read},
    {&PackageLoad::add_UsedPackagesAtOnce, LoadPhase::Read},
    {&PackageLoad::fill_Elements, LoadPhase::Read},
    {&PackageLoad::add_UsedPackages, LoadPhase::Used},
    {&PackageLoad::load_ScopePackages, LoadPhase::Scoped},
    {&PackageLoad::add_Commands, LoadPhase::Scoped},
    {&PackageLoad::complete_Elements, LoadPhase::Completed},
    {&PackageLoad::complete_PutOff, LoadPhase::Extended},
    {&PackageLoad::check_Classes, LoadPhase::Checked},
};

PackageLoad* LoadRun::Find(std::string_view name) const {
    const auto entry = inProgress.find(std::string(name));
    return entry != inProgress.end() ? entry->second : nullptr;
}

PackageLoad::PackageLoad(LoadRun& run, PackageRequest request, std::size_t order)
    : _Run(run), _Request(std::move(request)), _Order(order), _Low(order), _FirstMember(run.created.size()) {
    _Place.file = _Request.name.View();
    _Place.package = BeforeFirstDot(_Request.name.View());
}

PackageLoad::~PackageLoad() { leave_Names(); }

bool PackageLoad::HasReached(LoadPhase phase) const {
    return _IsEnded || _Step == std::size(kSteps) || kSteps[_Step].phase > phase;
}

bool PackageLoad::Advance(LoadPhase phase) {
    _Run.faults.Enter(_Place);
    Resume();
    while (!HasReached(phase)) {
        const ZanDicTrace::DocumentScope document;
        const auto step = kSteps[_Step].step;  // on its own, or the sanitizer takes the pointer for the index
        const StepResult result = (this->*step)();
        if (result == StepResult::NeedsPackage) return false;
        if (result == StepResult::Waits) return true;
        if (result == StepResult::Next) ++_Step;
        if (result == StepResult::Finished) _IsEnded = true;
    }
    return true;
}

void PackageLoad::Deliver(const PackageLoad& inner) {
    _Run.faults.Enter(_Place);
    const HRESULT rc = inner.Result();
    if (auto line = kTrace.Line(TraceLevel::Information)) {
        line << text::kCallResult << _Needed.name << "))=" << ZanDicTraceScope::Word(rc);
    }
    Resume();
    Join(inner);
    SetUnknownCause(inner.UnknownCause());
    if (Failed(rc)) {
        _Result = rc;
        _FAILED.emplace(BeforeFirstDot(_Needed.name.View()));
        // What keeps a document from being found is told where it is asked for.
        if ((inner._IsFound || inner._IsKnownToFail) && inner.FirstFailure() != 0) {
            tell_Failed(_Needed.attribute.Name(), _Needed.name.View(), inner.FirstFailure());
        }
        if (_Place.firstFailure == 0) _Place.firstFailure = inner.FirstFailure();
    }
}

void PackageLoad::SetUnknownCause(int cause) {
    if (_UnknownCause == 0) _UnknownCause = cause;
    if (_Reading) _Reading->unknownCause = _UnknownCause;
}

/// Tells that a package that this one needs failed: a consequence.
void PackageLoad::tell_Failed(std::string_view attributeName, std::string_view name, int cause) {
    Fault fault = package_Fault(PrerequisiteFailed);
    fault.attribute = _Node.getAttribute(attributeName);
    fault.otherParty = name;
    fault.detail = name;
    _Run.faults.ReportConsequence(std::move(fault), cause);
}

/// Tells the observer how the reading of the package's document, or its tuning document, ended.
void PackageLoad::tell_Document(const std::string& file, HRESULT rc,
                                std::unique_ptr<ZELVBTXMLDocument>& tree) const {
    ZanDicDiagnosticObserver* const observer = ZanDicGetDiagnosticObserver();
    if (observer == nullptr || file.empty()) return;
    const ZanDicReading end = Failed(rc)     ? ZanDicReading::Failed
                              : _IsNameTaken ? ZanDicReading::NameTaken
                                             : ZanDicReading::Loaded;
    // At the end of a load it is too late to fail.
    ZELCall([&] {
        observer->OnDocument({file, _Place.package, end, tree});
        return S_OK;
    });
}

void PackageLoad::Pause() {
    if (!std::exchange(_IsRunning, false)) return;
    ZELCall([&] {
        ZanDicProfiling::StepOut(text::kPhase, _Request.name.View());
        return S_OK;
    });
}

void PackageLoad::Resume() {
    if (std::exchange(_IsRunning, true)) return;
    ZELCall([&] {
        ZanDicProfiling::StepIn(text::kPhase, _Request.name.View());
        return S_OK;
    });
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

    if (!split_Name() || is_ThereAlready(_AskedName)) return StepResult::Finished;
    enter_Name(_AskedName);
    if (!find_Document() || find_Failure()) return StepResult::Finished;
    _IsFound = true;
    if (!parse_Document() || !find_PackageNode()) return StepResult::Finished;
    return StepResult::Next;
}

/// Whether the document was read in this run and failed, and somebody asked to go on.
bool PackageLoad::find_Failure() {
    if (_Run.failed.empty()) return false;
    const auto known = _Run.failed.find(_Place.file);
    if (known == _Run.failed.end()) return false;
    _Result = E_FAIL;
    _IsKnownToFail = true;
    _Place.firstFailure = known->second.cause;
    _UnknownCause = known->second.unknownCause;
    return true;
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
    std::string file = FindDocument(_Run.dirNames, _AskedName, _Extension, &rc);
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
    _Node = FindPackageNode(*_Document);
    if (_Node) return true;
    Fault fault{NoPackageTag};
    fault.node = _Document->Root();
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
        if (is_ThereAlready(_Name)) {
            _IsNameTaken = true;
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
    std::unordered_map<std::string_view, bool, ZELTextHash> isKnown;
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

PackageLoad::StepResult PackageLoad::need_Package(std::string_view attributeName, const ZELString& name) {
    _Needed = {name, OXMDicCONTENT_metadata, &_Place, _Node, _Node.getAttribute(attributeName)};
    Pause();
    if (auto line = kTrace.Line(TraceLevel::Information)) line << text::kCalling << name << ")";
    return StepResult::NeedsPackage;
}

PackageLoad::StepResult PackageLoad::load_UsedPackages() {
    if (Failed(_Result) && _Run.faults.IsStopped()) return StepResult::Finished;
    if (_NextName == _NAMES.size()) return StepResult::Next;
    return need_Package(word::kUseNames, _NAMES[_NextName++]);
}

PackageLoad::StepResult PackageLoad::create_Package() {
    _Reading =
        std::make_unique<Reading>(_Run.manager, _Run.faults, _Run.leftOut, _Run.untargeted, *_Document);
    _Reading->unknownCause = _UnknownCause;
    _Reading->isThorough = FaultReport::IsThorough();
    ZanDicExpectObjects(static_cast<int>(_Document->ElementCount()));
    const HRESULT rc = _Run.manager.CreatePackage(&_Name, &_Uuid, &_Domain, _Reading->package.Out());
    if (Succeeded(rc) && _Reading->package) {
        const CodeWord* const content = FindWord(kContentWords, _Extension.View());
        ZanDicNoteLoad(*_Reading->package, _AskedName, static_cast<OXMDicCONTENT>(content->code));
        _Run.created.push_back(this);
        return next_After(FillPackage(*_Reading, _Node));
    }
    _Reading.reset();
    ZanDicRef<OXMIDicElementH> registered;
    Fault fault = package_Fault(PackageNotCreated);
    if (Succeeded(_Run.manager.Search(&_Uuid, registered.Out()))) {
        fault.code = DuplicateUuid;
        fault.attribute = _Node.getAttribute(word::kUuid);
        SetOther(fault, *registered);
    }
    fault.lines.push_back({kTrace, std::string(text::kCreatePackageFailed)});
    goes_On(_Run.faults.Report(fault));
    return StepResult::Finished;
}

/// Notes a loaded package on this one. \returns whether to go on.
bool PackageLoad::add_Package(std::string_view attributeName, const ZELString& name, bool isScope) {
    if (_FAILED.contains(std::string(name.View()))) return true;
    if (const PackageLoad* const open = _Run.Find(name.View()); open != nullptr && !open->IsCreated()) {
        return goes_On(E_FAIL);  // what kept it from being made is told already
    }
    if (const ZanDicRef<OXMIDicPackage> package = loaded_Package(name)) {
        if (package.Get() == _Reading->package.Get()) return true;
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

/// Where no ring is in sight the used packages are all there before the first pass; in a ring they are
/// noted once the first pass of each member is done.
PackageLoad::StepResult PackageLoad::add_UsedPackagesAtOnce() {
    const bool isAlone = _Low == _Order && _Run.created.size() == _FirstMember + 1;
    return isAlone ? add_UsedPackages() : StepResult::Next;
}

PackageLoad::StepResult PackageLoad::add_UsedPackages() {
    if (std::exchange(_HasUsedPackages, true)) return StepResult::Next;
    // One that is missing does not keep the others from being tried.
    for (const ZELString& name : read_Names(word::kUseNames, true)) {
        add_Package(word::kUseNames, name, false);
    }
    return Failed(_Result) && _Run.faults.IsStopped() ? StepResult::Finished : StepResult::Next;
}

PackageLoad::StepResult PackageLoad::load_ScopePackages() {
    if (Failed(_Result) && _Run.faults.IsStopped()) return StepResult::Finished;
    if (_IsScopeOpen) {
        const ZELString name(BeforeFirstDot(_NAMES[_NextName - 1].View()));
        const PackageLoad* const open = _Run.Find(name.View());
        if (open != nullptr && !open->IsCreated() && !open->_IsEnded) return StepResult::Waits;
        _IsScopeOpen = false;
        if (!add_Package(word::kUseScopes, name, true)) return StepResult::Finished;
    }
    if (_NextName == _NAMES.size()) return StepResult::Next;
    if (auto line = kTrace.Line(TraceLevel::Tag)) line << text::kBetweenPasses << _NAMES[_NextName];
    _IsScopeOpen = true;
    return need_Package(word::kUseScopes, _NAMES[_NextName++]);
}

PackageLoad::StepResult PackageLoad::add_Commands() { return next_After(CompletePackage(*_Reading, _Node)); }

// The passes.

PackageLoad::StepResult PackageLoad::fill_Elements() {
    const int count = _Node.Children().Count();
    ZanDicExpectMembers(*_Reading->package, count);
    _Reading->elements.reserve(static_cast<std::size_t>(count));
    // About as many as usual documents need; room that is not used costs nothing.
    _Reading->members.reserve(_Document->ElementCount() / 3);
    for (const ZELVBTXMLNode child : _Node.Children()) {
        if (!goes_On(ReadElement(*_Reading, child))) return StepResult::Finished;
    }
    _NAMES = read_Names(word::kUseScopes, false);
    _NextName = 0;
    return StepResult::Next;
}

PackageLoad::StepResult PackageLoad::complete_Elements() {
    for (const ElementNote& note : _Reading->elements) {
        if (!goes_On(CompleteElement(*_Reading, note))) return StepResult::Finished;
    }
    return StepResult::Next;
}

PackageLoad::StepResult PackageLoad::complete_PutOff() { return next_After(CompletePutOff(*_Reading)); }

PackageLoad::StepResult PackageLoad::check_Classes() {
    for (const ElementNote& note : _Reading->elements) {
        if (!goes_On(CheckElement(*_Reading, note))) return StepResult::Finished;
    }
    return StepResult::Next;
}

// The end.

void PackageLoad::Fail(int cause) {
    _Result = E_FAIL;
    _Run.faults.Enter(_Place);
    Resume();
    if (IsCreated() && FaultReport::IsThorough() && !_Run.faults.IsStopped()) {
        TuningReading tuning(_Run.manager, _Name, _Run.dirNames, *_Reading->package, &_Run);
        tuning.Read();
        tell_Document(tuning.File(), E_FAIL, tuning.Tree());
        _Run.faults.Enter(_Place);
    }
    if (_Place.firstFailure == 0) _Place.firstFailure = cause;
    remove_Package();
    Finish();
}

void PackageLoad::Abandon() {
    _Result = E_FAIL;
    _Run.faults.Enter(_Place);
    _Tuning.reset();
    if (IsCreated() && _Reading->package) drop_Package();
    Finish();
}

void PackageLoad::Finish() {
    Resume();
    if (_IsFound) tell_Document(_Place.file, _Result, _Document);
    _Document.reset();
    if (IsCreated()) kTrace.Say(TraceLevel::Information, text::kReleasing);
    _Reading.reset();
    leave_Names();
    if (!_IsMet) _Low = _Order;
    _IsOver = true;
    Pause();
    if (auto line = kTrace.Line(TraceLevel::Call)) line << text::kMainExit << ZanDicTraceScope::Word(_Result);
}

void PackageLoad::remove_Package() {
    if (!_Run.faults.IsStopped()) {
        if (_Node) {
            _Run.leftOut.AddAll(_Node, FirstFailure());
        } else if (_UnknownCause == 0 && !_IsKnownToFail) {
            _UnknownCause = FirstFailure();
        }
        if (_IsFound) _Run.failed.try_emplace(_Place.file, LoadRun::Failure{FirstFailure(), _UnknownCause});
    }
    if (IsCreated()) drop_Package();
}

void PackageLoad::drop_Package() {
    _Reading->elements.clear();
    _Reading->members.clear();
    _Reading->objects.clear();
    _Reading->putOff.clear();
    if (auto line = kTrace.Line(TraceLevel::Information)) {
        line << text::kRemoving << _Name << text::kFromDictionary;
    }
    _Run.manager.RemovePackage(&_Name);
}

void PackageLoad::ReadTuning() {
    Resume();
    const ZanDicTrace::DocumentScope document;
    if (auto line = kTrace.Line(TraceLevel::Information)) line << text::kCallingTuning << _Name << ")...";
    _Tuning = std::make_unique<TuningReading>(_Run.manager, _Name, _Run.dirNames, *_Reading->package, &_Run);
    _Tuning->Read();
}

/// The package stays loaded, whatever is wrong with its tuning.
void PackageLoad::EndTuning() {
    _Run.faults.Enter(_Place);
    const ZanDicTrace::DocumentScope document;
    const std::unique_ptr<TuningReading> tuning = std::move(_Tuning);
    const HRESULT rc = tuning->Result();
    if (auto line = kTrace.Line(TraceLevel::Information)) {
        line << text::kTuningResult << _Name << ")]=" << ZanDicTraceScope::Word(rc);
    }
    tell_Document(tuning->File(), rc, tuning->Tree());
    if (Succeeded(rc)) return;
    Fault fault{TuningFailed};
    fault.severity = ZanDicSeverity::Warning;
    fault.element = _Name.View();
    fault.file = tuning->File();
    fault.detail = "the tuning document is at fault; the package is loaded without its attribute blocks";
    fault.cause = tuning->FirstFailure();
    fault.lines.push_back({kTrace, Joined({text::kTuningWarning, _Name.View(), ")", text::kFailed})});
    _Run.faults.Report(fault);
}

/// The package that is loaded under a name, its own or the one asked for; null when there is none.
ZanDicRef<OXMIDicPackage> PackageLoad::loaded_Package(const ZELString& name) const {
    ZanDicRef<OXMIDicPackage> package;
    ZELString found;
    // The manager cuts a name at its first "." when it finds no other.
    if (Succeeded(_Run.manager.GetPackage(&name, package.Out())) && package &&
        Succeeded(package->GetName(&found)) && found == name) {
        return package;
    }
    if (Failed(ZanDicFindLoad(name, package.Out()))) package.Reset();
    return package;
}

/// Whether a package of that name is loaded, or in progress: then this load has nothing to do.
bool PackageLoad::is_ThereAlready(const ZELString& name) {
    if (const PackageLoad* const open = _Run.Find(name.View()); open != nullptr) {
        kTrace.Say(TraceLevel::Information, text::kFinallyLoaded);
        _Low = std::min(_Low, open->_Order);
        _IsMet = true;
        return true;
    }
    if (!loaded_Package(name)) return false;
    kTrace.Say(TraceLevel::Information, text::kAlreadyLoaded);
    return true;
}

void PackageLoad::enter_Name(const ZELString& name) {
    _ENTERED.emplace_back(name.View());
    _Run.inProgress[_ENTERED.back()] = this;
}

void PackageLoad::leave_Names() {
    for (const std::string& name : _ENTERED) _Run.inProgress.erase(name);
    _ENTERED.clear();
}
