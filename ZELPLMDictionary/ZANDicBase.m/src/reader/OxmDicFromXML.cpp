#include "OxmDicFromXML.h"

#include <exception>

#include "PackageLoadStack.h"
#include "ReaderTexts.h"
#include "ZELCall.h"

namespace {

constexpr ZanDicTraceScope kTrace(text::kDriver, "RC=");

HRESULT LoadOrAbandon(LoadRun& run, const ZELString& name, OXMDicCONTENT content) {
    PackageLoadStack loads(run);
    try {
        return loads.Load({name, content});
    } catch (const std::exception&) {
        kTrace.Error(text::kOutOfMemory);
    }
    loads.Abandon();
    return ZELNoteShortage();
}

}  // namespace

HRESULT OxmDicFromXML(OXMIDicMgr* manager, const ZELString* packFileName, const char* dirNames,
                      OXMDicCONTENT content) {
    return ZELCall([&] {
        if (manager == nullptr || packFileName == nullptr) {
            kTrace.Start();
            kTrace.Error(text::kInvalidParameters);
            kTrace.CallStack();
            return E_FAIL;
        }
        LoadRun run{*manager, dirNames != nullptr ? dirNames : ""};
        return LoadOrAbandon(run, *packFileName, content);
    });
}

HRESULT OxmDicFromXMLAll(OXMIDicMgr* manager, std::span<const ZELString> packFileNames,
                         const char* dirNames) {
    return ZELCall([&] {
        if (manager == nullptr) return E_FAIL;
        LoadRun run{*manager, dirNames != nullptr ? dirNames : ""};
        HRESULT result = S_OK;
        for (const ZELString& name : packFileNames) {
            if (!run.faults.GoesOn(LoadOrAbandon(run, name, OXMDicCONTENT_metadata), result)) break;
        }
        return result;
    });
}
