#include "OxmDicFromXML.h"

#include <new>
#include <utility>

#include "PackageLoadStack.h"
#include "ReaderTexts.h"

namespace {

constexpr ZanDicTraceScope kTrace(text::kDriver, "RC=");

HRESULT LoadOrAbandon(LoadRun& run, PackageRequest request) {
    PackageLoadStack loads(run);
    try {
        return loads.Load(std::move(request));
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
        return LoadOrAbandon(run, {*packFileName, content});
    } catch (const std::exception&) {
        return E_FAIL;
    }
}
