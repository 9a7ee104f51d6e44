// Methods, of classes and interfaces alike.
#include <string_view>
#include <unordered_set>

#include "OXMIDicMethod.h"
#include "ZELHash.h"
#include "ZanDicClass.h"
#include "ZanDicClassFields.h"
#include "ZanDicHandOut.h"
#include "ZanDicMethod.h"
#include "ZanDicTeardown.h"
#include "ZanDicTrace.h"

HRESULT ZanDicClass::RemoveMethod(const ZELString* name) {
    const ZanDicTraceScope trace("ZanDicClass::RemoveMethod");
    if (name == nullptr) return E_FAIL;
    if (auto line = trace.Line(TraceLevel::Detail)) {
        line << "trying to remove Method named " << *name << " from Class " << Name();
    }
    ZanDicObj* found = nullptr;
    if (Failed(methods().Search(*name, &found))) {
        if (auto line = trace.Error()) {
            line << "*** ERROR *** Could not find Element named " << *name << " for Class " << Name();
        }
        return S_FALSE;
    }
    if (const HRESULT rc = static_cast<ZanDicMethod*>(found)->FlushAll(); Failed(rc)) return rc;
    if (!make_Fields().methods.take_Object(found)) {
        trace.Error("*** ERROR *** ZanHashList::Remove failed");
        return E_FAIL;
    }
    std::uint32_t refCount = 0;
    const HRESULT rc = DropObject(*found, &refCount);
    if (Failed(rc)) trace.Error("*** ERROR *** ZanDictionary::Delete failed");
    if (auto line = trace.Line(TraceLevel::Detail)) line << "RefCount=" << refCount;
    return rc;
}

HRESULT ZanDicClass::GetMethod(const ZELString* name, OXMIDicMethod** method) const {
    HRESULT rc = E_FAIL;
    for (const ZanDicClass* owner = this; owner != nullptr && Failed(rc); owner = owner->_SuperClass.Get()) {
        rc = owner->GetClassMethod(name, method);
    }
    return rc;
}

HRESULT ZanDicClass::GetClassMethod(const ZELString* name, OXMIDicMethod** method) const {
    return FindInterface(methods(), name, method);
}

HRESULT ZanDicClass::GetMethods(ZELListPtrIUnknown* list) const {
    HRESULT rc = S_OK;
    const int size = methods().Size();
    for (int position = 1; position <= size; ++position) rc = AppendInterface(*methods()[position], list);
    return rc;
}

HRESULT ZanDicClass::GetAllMethods(ZELListPtrIUnknown* list) const {
    HRESULT rc = S_OK;
    std::unordered_set<std::string_view, ZELTextHash> listed;
    for (const ZanDicClass* owner = this; owner != nullptr; owner = owner->_SuperClass.Get()) {
        const ZanHashList& own = owner->methods();
        const int size = own.Size();
        for (int position = 1; position <= size; ++position) {
            const ZanDicObj& method = *own[position];
            if (listed.insert(method.Name().View()).second) rc = AppendInterface(method, list);
        }
    }
    return rc;
}
