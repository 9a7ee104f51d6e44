#include "ZanDicData.h"

#include <utility>

#include "ZELTraceChannel.h"
#include "ZanDicManagerFactory.h"
#include "ZanDicObj.h"
#include "ZanDicTrace.h"

namespace {

// Ready before the first initialiser: the manager's room may stand anywhere in their order.
constinit ZanDicManagerFactory managerFactory = nullptr;
constinit ZanDicRegistry* managerRegistry = nullptr;
constinit bool isUnloading = false;

const ZELTraceChannel kDictionaryChannel("ZELPLMDictionary", "ZANDicBase", "STDERR", 1024);
const ZELTraceChannel kLoadChannel("OXMDicLoad", "Traces : OXMIDicMgr Load XML", "STDERR", 1024);

}  // namespace

ZanDicData _StaticZanDicData;

ZanDicData::ZanDicData() { InitTraces(); }

ZanDicData::~ZanDicData() {
    // Nothing makes a new manager. The registry is found for as long as somebody else holds this one.
    isUnloading = true;
    _Dictionary = nullptr;
    if (_Mgr != nullptr) std::exchange(_Mgr, nullptr)->Release();
    if (_Manager != nullptr) std::exchange(_Manager, nullptr)->Release();
}

void ZanDicData::InitTraces() { ZanDicTrace::InitFromEnvironment(); }

bool ZanDicData::make_Manager() {
    if (_Manager != nullptr) return true;
    if (isUnloading || managerFactory == nullptr) return false;
    const ZanDicManagerParts parts = managerFactory();
    _Manager = parts.object;
    _Dictionary = parts.dictionary;
    managerRegistry = parts.registry;
    return _Manager != nullptr;
}

HRESULT ZanDicData::get_OXMIDicMgr(OXMIDicMgr** manager) {
    if (manager == nullptr || !make_Manager()) return E_FAIL;
    if (_Mgr == nullptr) {
        void* face = nullptr;
        if (Failed(_Manager->QueryInterface(IID_OXMIDicMgr, &face))) return E_FAIL;
        _Mgr = static_cast<OXMIDicMgr*>(face);
    }
    _Mgr->AddRef();
    *manager = _Mgr;
    return S_OK;
}

HRESULT ZanDicData::get_ZanDictionary(ZanDictionary** manager) {
    if (manager == nullptr || !make_Manager()) return E_FAIL;
    *manager = _Dictionary;
    return S_OK;
}

void ZanDicSetManagerFactory(ZanDicManagerFactory factory) { managerFactory = factory; }

void ZanDicForgetRegistry(const ZanDicRegistry& registry) noexcept {
    if (managerRegistry == &registry) managerRegistry = nullptr;
}

ZanDicRegistry* ZanDicGetRegistry() {
    ZanDictionary* manager = nullptr;
    if (managerRegistry == nullptr) _StaticZanDicData.get_ZanDictionary(&manager);
    return managerRegistry;
}

ZanDicRegistry* ZanDicFindRegistry() noexcept { return managerRegistry; }
