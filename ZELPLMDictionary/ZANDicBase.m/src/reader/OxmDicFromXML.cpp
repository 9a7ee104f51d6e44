#include "OxmDicFromXML.h"

#include <memory>
#include <new>
#include <utility>
#include <vector>

#include "PackageLoad.h"
#include "ReaderTexts.h"

namespace {

constexpr ZanDicTraceScope kTrace(text::kDriver, "RC=");

/// The loads that are open, each waiting for the one above it. A list of their own rather than calls
/// within calls: how many there are is up to the documents.
class LoadStack {
public:
    explicit LoadStack(LoadRun& run) : _Run(run) {}

    HRESULT Load(PackageRequest request) {
        push_Load(std::move(request));
        for (;;) {
            PackageLoad& top = *_LOADS.back();
            if (!top.Advance()) {
                push_Load(top.Request());
                continue;
            }
            const HRESULT rc = top.Result();
            _LOADS.pop_back();
            if (_LOADS.empty()) return rc;
            _LOADS.back()->Deliver(rc);
        }
    }

    /// Ends every open load as failed, the innermost first.
    void Abandon() {
        while (!_LOADS.empty()) {
            _LOADS.back()->Abandon();
            _LOADS.pop_back();
        }
    }

private:
    void push_Load(PackageRequest request) {
        _LOADS.push_back(std::make_unique<PackageLoad>(_Run, std::move(request)));
    }

    LoadRun& _Run;
    std::vector<std::unique_ptr<PackageLoad>> _LOADS;
};

HRESULT LoadOrAbandon(LoadRun& run, PackageRequest request) {
    LoadStack loads(run);
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
        LoadRun run{*manager, dirNames != nullptr ? dirNames : "", {}, {}, {}};
        return LoadOrAbandon(run, {*packFileName, content});
    } catch (const std::exception&) {
        return E_FAIL;
    }
}
