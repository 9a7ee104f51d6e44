#ifndef GET_OXMI_DIC_MGR_H
#define GET_OXMI_DIC_MGR_H

#include "OXMIDicExport.h"
#include "OXMIDicMgr.h"

/// Hands out the one manager of the process, made on the first request.
/// \param[out] manager carries one reference, the caller's to release.
/// \returns S_OK; E_FAIL when \p manager is null or no dictionary library is loaded.
OXMIDIC_API HRESULT GetOXMIDicMgr(OXMIDicMgr** manager);

/// What a dictionary library supplies: as GetOXMIDicMgr.
using OXMIDicMgrProvider = HRESULT (*)(OXMIDicMgr** manager);

/// For dictionary libraries: registers the provider when the library is loaded, null when it goes.
/// \returns the provider registered before.
OXMIDIC_API OXMIDicMgrProvider OXMIDicSetMgrProvider(OXMIDicMgrProvider provider);

#endif
