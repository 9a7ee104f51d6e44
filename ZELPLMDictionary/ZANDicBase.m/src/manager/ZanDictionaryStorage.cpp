#include <optional>
#include <string>
#include <string_view>

#include "GetOXMIDicMgr.h"
#include "OXMIDicMgr.h"
#include "OXMIDicPackage.h"
#include "OxmDicFromXML.h"
#include "OxmDicToEXPRESS.h"
#include "OxmDicToXML.h"
#include "ZELEnvironment.h"
#include "ZanDicProfiling.h"
#include "ZanDicRef.h"
#include "ZanDicSavePlace.h"
#include "ZanDicTrace.h"
#include "ZanDictionary.h"

namespace {

constexpr std::string_view kExitWord = "RC=";
constexpr std::string_view kLoadXml = "ZanDictionary::LoadXml";

/// Writes what a call was given, one line for each.
void SayNames(const ZanDicTraceScope& trace, const ZELString* packageName, const char* directory) {
    if (auto line = trace.Line(TraceLevel::Information)) line << "iPackName=" << packageName;
    if (directory == nullptr) return;
    if (auto line = trace.Line(TraceLevel::Information)) line << "iDirName=" << directory;
}

/// The directory that the caller gave, or the search path.
std::optional<std::string> PathOf(const char* directory) {
    if (directory != nullptr) return directory;
    return ZELGetEnv(kSearchPathVariable);
}

/// What loading and saving need: the path and the manager. Says which of them is missing.
struct Storage {
    std::optional<std::string> path;
    ZanDicRef<OXMIDicMgr> manager;

    Storage(const ZanDicTraceScope& trace, const char* directory) : path(PathOf(directory)) {
        if (!path) {
            trace.Error("*** ERROR *** Could not get file path");
        } else if (Failed(GetOXMIDicMgr(manager.Out()))) {
            trace.Error("*** ERROR *** Could not get pointer to OXMIDicMgr");
        }
    }
    explicit operator bool() const { return static_cast<bool>(manager); }
};

}  // namespace

HRESULT ZanDictionary::LoadPackage(const ZELString* packageName, OXMDicPERSISTENT mode) {
    return LoadPackage(packageName, mode, OXMDicCONTENT_metadata);
}

HRESULT ZanDictionary::LoadPackage(const ZELString* packageName, OXMDicPERSISTENT mode,
                                   OXMDicCONTENT content) {
    static constexpr ZanDicTraceScope trace("ZanDictionary::LoadPackage", kExitWord);
    trace.Start();
    if (auto line = trace.Line(TraceLevel::Information)) {
        line << "iPackName=" << packageName << ", iMode=" << mode;
    }
    if (mode < OXMDicPERSISTENT_None) {
        if (auto line = trace.Error()) {
            line << "*** ERROR *** Should not be called with iMode=" << mode << " to load package "
                 << packageName;
        }
        trace.CallStack();
        if (auto line = trace.Error()) {
            line << "*** ERROR *** Trying to load package " << packageName << " anyway...";
        }
    }
    if (auto line = trace.Line(TraceLevel::Information)) {
        line << 707 << "- _PriorMode=" << _LoadingMode << ", iMode=" << mode;
    }

    const auto tryMode = [&](OXMDicPERSISTENT tried, int number) {
        const HRESULT rc = LoadPackageFromDir(nullptr, packageName, tried, content);
        if (auto line = trace.Line(TraceLevel::Information)) {
            line << number << "- rc[LoadPackageFromDir]=" << ZanDicTraceScope::Word(rc);
        }
        return rc;
    };
    // The manager's own mode comes first; when it is none, nothing is loaded whatever the caller asks for.
    const OXMDicPERSISTENT priorMode = _LoadingMode;
    if (priorMode <= OXMDicPERSISTENT_None) return trace.Exit(E_FAIL);
    HRESULT rc = tryMode(priorMode, 711);
    if (Failed(rc) && priorMode != mode) rc = tryMode(mode, 724);
    return trace.Exit(rc);
}

HRESULT ZanDictionary::LoadPackageFromDir(const char* directory, const ZELString* packageName,
                                          OXMDicPERSISTENT mode) {
    return LoadPackageFromDir(directory, packageName, mode, OXMDicCONTENT_metadata);
}

HRESULT ZanDictionary::LoadPackageFromDir(const char* directory, const ZELString* packageName,
                                          OXMDicPERSISTENT mode, OXMDicCONTENT content) {
    static constexpr ZanDicTraceScope trace("ZanDictionary::LoadPackageFromDir", kExitWord);
    trace.Start();
    SayNames(trace, packageName, directory);
    if (mode < OXMDicPERSISTENT_None || packageName == nullptr) return trace.Exit(E_FAIL);
    if (find_Package(*packageName) != nullptr) return trace.Exit(S_OK);
    if (mode != OXMDicPERSISTENT_Xml) return trace.Exit(E_FAIL);

    const HRESULT rc = LoadXml(directory, packageName, content);
    if (auto line = trace.Line(TraceLevel::Information)) line << "rc[LoadXml]=" << ZanDicTraceScope::Word(rc);
    return trace.Exit(rc);
}

HRESULT ZanDictionary::LoadXml(const char* directory, const ZELString* packageName, OXMDicCONTENT content) {
    static constexpr ZanDicTraceScope trace(kLoadXml, kExitWord);
    trace.Start();
    SayNames(trace, packageName, directory);
    Create();  // a caller who forgot Init gets typed attributes all the same
    Storage storage(trace, directory);
    if (!storage) return trace.Exit(E_FAIL);

    const ZELString phase = packageName != nullptr ? *packageName : ZELString();
    ZanDicProfiling::StepIn(kLoadXml, phase.View());
    const HRESULT rc = OxmDicFromXML(storage.manager.Get(), packageName, storage.path->c_str(), content);
    if (auto line = trace.Line(TraceLevel::Information)) {
        line << "rc[OxmDicFromXML]=" << ZanDicTraceScope::Word(rc);
    }
    ZanDicProfiling::StepOut(kLoadXml, phase.View());
    ZanDicProfiling::ResetAll();
    return trace.Exit(rc);
}

HRESULT ZanDictionary::SavePackage(const ZELString* packageName, OXMDicPERSISTENT mode) {
    return SavePackageToDir(nullptr, packageName, mode);
}

HRESULT ZanDictionary::SavePackageToDir(const char* directory, const ZELString* packageName,
                                        OXMDicPERSISTENT mode) {
    static constexpr ZanDicTraceScope trace("ZanDictionary::SavePackageToDir", kExitWord);
    trace.Start();
    if (auto line = trace.Line(TraceLevel::Information)) line << "iDirName=" << directory;
    if (auto line = trace.Line(TraceLevel::Information)) line << "iPackName=" << packageName;
    if (auto line = trace.Line(TraceLevel::Information)) line << "iMode=" << mode;

    ZanDicRef<OXMIDicPackage> package;
    HRESULT rc = GetPackage(packageName, package.Out());
    if (Failed(rc)) {
        if (auto line = trace.Error()) {
            line << "*** ERROR *** Could not get pointer to OXMIDicPackage named " << packageName;
        }
        return trace.Exit(rc);
    }
    package.Reset();  // it was only asked whether there is one

    if (mode == OXMDicPERSISTENT_Xml) {
        trace.Say(TraceLevel::Detail, "calling this->SaveXml()...");
        rc = SaveXml(directory, packageName);
        if (auto line = trace.Line(TraceLevel::Detail)) {
            line << "rc[this->SaveXml()]=" << ZanDicTraceScope::Word(rc);
        }
    } else if (mode == OXMDicPERSISTENT_Express) {
        rc = SaveExpress(directory, packageName);
    }
    return trace.Exit(rc);
}

HRESULT ZanDictionary::SaveXml(const char* directory, const ZELString* packageName) {
    static constexpr ZanDicTraceScope trace("ZanDictionary::SaveXml", kExitWord);
    trace.Start();
    if (auto line = trace.Line(TraceLevel::Information)) {
        line << "iPackName=" << packageName << ", iDirName=" << directory;
    }
    const Storage storage(trace, directory);
    if (!storage) return trace.Exit(E_FAIL);
    // Of a search path the writer takes one directory: the path as a whole is no place for a file.
    return trace.Exit(OxmDicToXML(storage.manager.Get(), packageName, directory));
}

HRESULT ZanDictionary::SaveExpress(const char* directory, const ZELString* packageName) {
    ZanDicRef<OXMIDicMgr> manager;
    if (!PathOf(directory) || Failed(GetOXMIDicMgr(manager.Out()))) return E_FAIL;
    return OxmDicToEXPRESS(manager.Get(), packageName, directory);
}
