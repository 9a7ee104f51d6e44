#include "ZanDicHandOut.h"

HRESULT AppendInterface(const ZanDicObj& object, ZELListPtrIUnknown* list) {
    IUnknown* face = nullptr;
    const HRESULT rc = HandOutOwn(object, &face);
    if (face == nullptr) return rc;
    if (list == nullptr) {
        face->Release();
        return rc;
    }
    try {
        list->Append(face);
    } catch (...) {
        face->Release();
        throw;
    }
    return rc;
}

HRESULT AppendInterfaces(const ZanHashList& objects, ZELListPtrIUnknown* list) {
    if (list == nullptr) return E_FAIL;
    HRESULT rc = S_OK;
    const int size = objects.Size();
    for (int position = 1; position <= size; ++position) {
        if (const ZanDicObj* object = objects[position]; object != nullptr)
            rc = AppendInterface(*object, list);
    }
    return rc;
}
