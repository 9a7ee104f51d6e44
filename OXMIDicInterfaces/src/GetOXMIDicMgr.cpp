#include "GetOXMIDicMgr.h"

namespace {

/// Constant-initialised, so that a dictionary library may register before this library's initialisers.
constinit OXMIDicMgrProvider registeredProvider = nullptr;

}  // namespace

HRESULT GetOXMIDicMgr(OXMIDicMgr** manager) {
    if (manager == nullptr || registeredProvider == nullptr) return E_FAIL;
    return registeredProvider(manager);
}

OXMIDicMgrProvider OXMIDicSetMgrProvider(OXMIDicMgrProvider provider) {
    const OXMIDicMgrProvider before = registeredProvider;
    registeredProvider = provider;
    return before;
}
