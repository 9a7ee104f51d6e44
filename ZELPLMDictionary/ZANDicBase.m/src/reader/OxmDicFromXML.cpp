#include "OxmDicFromXML.h"

#include <new>

#include "PackageLoadStack.h"
#include "ReaderTexts.h"

namespace {

constexpr ZanDicTraceScope kTrace(text::kDriver, "RC=");

HRESULT LoadOrAbandon(LoadRun& run, const ZELString& name, OXMDicCONTENT content) {
    PackageLoadStack loads(run);
    try {
        return loads.Load({name, content});
    } catch (const std::bad_alloc&) {
        kTrace.Error(text::kOutOfMemory);
    }
    loads.Abandon();
    return E_FAIL;
}

}  // namespace

HRESULT OxmDicFromXML(OXMIDicMgr* manager, const ZELString* packFileName, const char* dirNames,
                      OXMDicCONTENT content) {
    try {
        if (manager == nullptr || packFileName == nullptr) {
            kTrace.Start();
            kTrace.Error(text::kInvalidParameters);
            kTrace.CallStack();
            return E_FAIL;
        }
        LoadRun run{*manager, dirNames != nullptr ? dirNames : ""};
        return LoadOrAbandon(run, *packFileName, content);
    } catch (const std::exception&) {
        return E_FAIL;
    }
}

HRESULT OxmDicFromXMLAll(OXMIDicMgr* manager, std::span<const ZELString> packFileNames,
                         const char* dirNames) {
    try {
        if (manager == nullptr) return E_FAIL;
        LoadRun run{*manager, dirNames != nullptr ? dirNames : ""};
        HRESULT result = S_OK;
        for (const ZELString& name : packFileNames) {
            if (!run.faults.GoesOn(LoadOrAbandon(run, name, OXMDicCONTENT_metadata), result)) break;
        }
        return result;
    } catch (const std::exception&) {
        return E_FAIL;
    }
}
