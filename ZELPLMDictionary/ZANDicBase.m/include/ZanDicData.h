#ifndef ZAN_DIC_DATA_H
#define ZAN_DIC_DATA_H

#include "OXMIDicMgr.h"
#include "ZELResult.h"
#include "ZanDicExport.h"

class ZanDicObj;
class ZanDictionary;

/// The process-wide holder: reads the trace settings when the library is loaded, makes the one manager
/// on the first request and keeps it until the library is unloaded. One thread.
class ZANDICBASE_API ZanDicData {
public:
    ZanDicData();
    ~ZanDicData();
    ZanDicData(const ZanDicData&) = delete;
    ZanDicData& operator=(const ZanDicData&) = delete;

    /// \param[out] manager carries one reference, the caller's. \returns S_OK; E_FAIL.
    HRESULT get_OXMIDicMgr(OXMIDicMgr** manager);

    /// \param[out] manager carries no reference. \returns S_OK; E_FAIL.
    HRESULT get_ZanDictionary(ZanDictionary** manager);

private:
    void InitTraces();
    bool make_Manager();

    OXMIDicMgr* _Mgr = nullptr;            ///< one reference held
    ZanDicObj* _Manager = nullptr;         ///< one reference held
    ZanDictionary* _Dictionary = nullptr;  ///< the same object by its class; no reference of its own
};

extern ZANDICBASE_API ZanDicData _StaticZanDicData;

#endif
