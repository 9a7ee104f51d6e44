#ifndef GET_OXMI_DIC_MGR_H
#define GET_OXMI_DIC_MGR_H

#include "OXMIDicExport.h"
#include "OXMIDicMgr.h"

/// Hands out the one manager of the process, made on the first request. The thread that asks first is the one
/// that the dictionary is for: no other may call it, nor any interface that it hands out. A build for
/// debugging ends the process when one does; a release build does not look.
///
/// When memory runs out, every operation of the interfaces that gives a result answers E_FAIL, and nothing
/// has changed; one without a result ends the process. \param[out] manager carries one reference, the
/// caller's to release. \returns S_OK; E_FAIL when \p manager is null, no dictionary library is loaded or
/// memory is short.
OXMIDIC_API HRESULT GetOXMIDicMgr(OXMIDicMgr** manager);

/// What a dictionary library supplies: as GetOXMIDicMgr.
using OXMIDicMgrProvider = HRESULT (*)(OXMIDicMgr** manager);

/// For dictionary libraries: registers the provider when the library is loaded, null when it goes.
/// \returns the provider registered before.
OXMIDIC_API OXMIDicMgrProvider OXMIDicSetMgrProvider(OXMIDicMgrProvider provider);

#endif
