#include "ZanDicTeardown.h"

#include "ZanDicElement.h"
#include "ZanDicRegistry.h"
#include "ZanDicTrace.h"
#include "ZanDicTypeNames.h"

namespace {

/// Keeps what a stopped teardown did not reach: what was released must not be read through the list again.
/// One that has been given the name of another since cannot be listed again: it goes as well.
void KeepFrom(ZanHashList& owned, int position) {
    std::vector<ZanDicObj*> kept;
    for (; position <= owned.Size(); ++position) kept.push_back(owned[position]);
    owned.clear();
    for (ZanDicObj* object : kept) {
        if (object != nullptr && Failed(owned.Append(object))) DropTaken({object});
    }
}

}  // namespace

HRESULT DropObject(ZanDicObj& object, std::uint32_t* refCount) {
    ZanDicRegistry* const registry = ZanDicGetRegistry();
    const HRESULT rc = registry != nullptr ? registry->Delete(&object) : E_FAIL;
    object.mark_Gone();
    *refCount = object.Release();
    return rc;
}

HRESULT DropOwned(ZanHashList& owned, std::string_view listName, const ZanDicTraceScope& trace) {
    for (int position = 1; position <= owned.Size(); ++position) {
        auto* const element = static_cast<ZanDicElement*>(owned[position]);
        if (element == nullptr) continue;
        if (auto line = trace.Line(TraceLevel::Detail)) {
            line << "processing " << listName << "[" << position << "]: " << element->Name()
                 << ", Type: " << element->Type() << " (" << ZanDicTypeName(element->Type()) << ")";
        }
        const HRESULT flushed = element->FlushAll();
        if (auto line = trace.Line(TraceLevel::Detail)) {
            line << "rc[" << listName << "[" << position
                 << "]->FlushAll]=" << ZanDicTraceScope::Word(flushed);
        }
        if (Failed(flushed)) {
            if (auto line = trace.Error()) {
                line << "- *** ERROR *** could not process Element: " << element->Name()
                     << ", Type: " << element->Type() << " (" << ZanDicTypeName(element->Type()) << ")";
            }
            KeepFrom(owned, position);
            return flushed;
        }
        std::uint32_t refCount = 0;
        const HRESULT deleted = DropObject(*element, &refCount);
        if (auto line = trace.Line(TraceLevel::Detail)) {
            line << "rc[ZanDictionary->Delete]=" << ZanDicTraceScope::Word(deleted);
        }
        if (auto line = trace.Line(TraceLevel::Detail)) {
            line << "after " << listName << "[" << position << "]->Release, RefCount=" << refCount;
        }
    }
    owned.RemoveAll();
    return S_OK;
}

void DropTaken(const std::vector<ZanDicObj*>& owned) {
    ZanDicRegistry* const registry = ZanDicFindRegistry();
    for (ZanDicObj* object : owned) {
        if (registry != nullptr && object->is_Registered()) registry->forget_Obj(*object);
        object->set_Registered(false);
        object->mark_Gone();
        object->Release();
    }
}
