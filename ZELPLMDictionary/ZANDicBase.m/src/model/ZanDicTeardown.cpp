#include "ZanDicTeardown.h"

#include <vector>

#include "ZELCall.h"
#include "ZanDicElement.h"
#include "ZanDicRegistry.h"
#include "ZanDicTrace.h"
#include "ZanDicTypeNames.h"

namespace {

/// Drops an object of which its owner has let go, and lets go of what it owns.
void DropOne(ZanDicObj& object, ZanDicTaken& owned) {
    ZanDicRegistry* const registry = ZanDicFindRegistry();
    object.take_Owned(owned);
    if (registry != nullptr && object.is_Registered()) registry->forget_Obj(object);
    object.set_Registered(false);
    object.mark_Gone();
    object.Release();
}

void DropUnlisted(ZanDicObj& object) {
    ZanDicTaken owned;
    DropOne(object, owned);
    DropTaken(owned);
}

/// Keeps what a stopped teardown did not reach: what was released must not be read through the list again.
/// One that has been given the name of another since cannot be listed again: it goes as well.
void KeepFrom(ZanHashList& owned, int position) {
    ZanDicTaken all;
    all.Take(owned);
    for (int released = 1; released < position; ++released) all.Next();
    while (ZanDicObj* const object = all.Next()) {
        if (Failed(ZELCall([&] { return owned.Append(object); }))) DropUnlisted(*object);
    }
}

/// One list on its way down: announces each element, and drops it once it is flushed.
class ListDrop {
public:
    ListDrop(ZanHashList& owned, std::string_view listName, const ZanDicTraceScope& trace)
        : _Owned(&owned), _ListName(listName), _Trace(trace) {}

    const ZanDicTraceScope& Trace() const { return _Trace; }

    /// \returns the next element, which is to be flushed now; null after the last, and the list is empty.
    ZanDicElement* Next() {
        while (++_Position <= _Owned->Size()) {
            look_Ahead();
            auto* const element = static_cast<ZanDicElement*>((*_Owned)[_Position]);
            if (element == nullptr) continue;
            if (auto line = _Trace.Line(TraceLevel::Detail)) {
                line << "processing " << _ListName << "[" << _Position << "]: " << element->Name()
                     << ", Type: " << element->Type() << " (" << ZanDicTypeName(element->Type()) << ")";
            }
            return element;
        }
        _Owned->RemoveAll();
        return nullptr;
    }

    /// Takes the result of the element's FlushAll. \returns it; after a failure the walk is over.
    HRESULT Drop(HRESULT flushed) {
        auto& element = static_cast<ZanDicElement&>(*(*_Owned)[_Position]);
        if (auto line = _Trace.Line(TraceLevel::Detail)) {
            line << "rc[" << _ListName << "[" << _Position
                 << "]->FlushAll]=" << ZanDicTraceScope::Word(flushed);
        }
        if (Failed(flushed)) {
            if (auto line = _Trace.Error()) {
                line << "- *** ERROR *** could not process Element: " << element.Name()
                     << ", Type: " << element.Type() << " (" << ZanDicTypeName(element.Type()) << ")";
            }
            KeepFrom(*_Owned, _Position);
            return flushed;
        }
        std::uint32_t refCount = 0;
        const HRESULT deleted = DropObject(element, &refCount);
        if (auto line = _Trace.Line(TraceLevel::Detail)) {
            line << "rc[ZanDictionary->Delete]=" << ZanDicTraceScope::Word(deleted);
        }
        if (auto line = _Trace.Line(TraceLevel::Detail)) {
            line << "after " << _ListName << "[" << _Position << "]->Release, RefCount=" << refCount;
        }
        return flushed;
    }

private:
    /// Fetches what the next elements will need into the cache: the elements, and then their places in the
    /// registry.
    void look_Ahead() {
        constexpr int kStep = 6;
        const ZanDicRegistry* const registry = ZanDicFindRegistry();
        for (; _Fetched < _Position + 2 * kStep; ++_Fetched) {
            if (const ZanDicObj* const object = (*_Owned)[_Fetched]) ZanDicObj::prefetch_Obj(object);
        }
        for (; _Announced < _Position + kStep && registry != nullptr; ++_Announced) {
            const ZanDicObj* const object = (*_Owned)[_Announced];
            if (object != nullptr) registry->prefetch_Uuid(object->Uuid().ComputeHashKey());
        }
    }

    ZanHashList* _Owned;
    std::string_view _ListName;
    ZanDicTraceScope _Trace;
    int _Position = 0;
    int _Fetched = 1;    ///< the first position whose element has not been fetched
    int _Announced = 1;  ///< the first one whose UUID has not been announced to the registry
};

/// An owner of a list whose flush has begun.
struct Level {
    ZanDicElement* owner;
    ListDrop drop;
};

Level BeginFlush(ZanDicElement& owner) {
    const ZanDicOwnedList owned = owner.owned_List();
    const ZanDicTraceScope trace(owned.operation, "RC=");
    trace.Start("=== start === ");
    if (auto line = trace.Line(TraceLevel::Detail)) {
        line << "_Type=" << owner.Type() << " (" << ZanDicTypeName(owner.Type())
             << "), _Name=" << owner.Name();
    }
    if (auto line = trace.Line(TraceLevel::Detail)) line << "processing " << owned.name << "...";
    return {&owner, ListDrop(*owned.list, owned.name, trace)};
}

/// Begins the flush of an owner. \returns false when there is no memory to keep the way back.
bool Enter(std::vector<Level>& way, ZanDicElement& owner) {
    const auto makeRoom = [&] {
        if (way.size() == way.capacity()) way.reserve(2 * way.size() + 1);
        return S_OK;
    };
    if (Failed(ZELCall(makeRoom))) return false;
    way.push_back(BeginFlush(owner));
    return true;
}

HRESULT FlushSilently(ZanDicElement& owner) {
    ZanDicTaken owned;
    owner.take_Owned(owned);
    DropTaken(owned);
    return S_OK;
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
    ListDrop drop(owned, listName, trace);
    while (ZanDicElement* const element = drop.Next()) {
        if (const HRESULT rc = drop.Drop(element->FlushAll()); Failed(rc)) return rc;
    }
    return S_OK;
}

HRESULT FlushOwner(ZanDicElement& owner) {
    std::vector<Level> way;
    HRESULT rc = S_OK;
    if (!Enter(way, owner)) return FlushSilently(owner);
    while (true) {
        Level& level = way.back();
        ZanDicElement* const element = Failed(rc) ? nullptr : level.drop.Next();
        if (element != nullptr && element->owned_List().list != nullptr) {
            if (!Enter(way, *element)) rc = level.drop.Drop(FlushSilently(*element));
        } else if (element != nullptr) {
            rc = level.drop.Drop(element->FlushAll());
        } else {
            if (Succeeded(rc)) rc = level.owner->flush_Rest(level.drop.Trace());
            level.drop.Trace().Exit(rc);
            way.pop_back();
            if (way.empty()) return rc;
            rc = way.back().drop.Drop(rc);
        }
    }
}

HRESULT DropMember(ZanDicElement& member, std::string_view memberName, const ZanDicTraceScope& trace) {
    if (auto line = trace.Line(TraceLevel::Detail)) {
        line << "processing " << memberName << ": " << member.Name() << ", Type: " << member.Type() << " ("
             << ZanDicTypeName(member.Type()) << ")";
    }
    const HRESULT flushed = member.FlushAll();
    if (auto line = trace.Line(TraceLevel::Detail)) {
        line << "rc[" << memberName << "->FlushAll]=" << ZanDicTraceScope::Word(flushed);
    }
    std::uint32_t refCount = 0;
    const HRESULT deleted = DropObject(member, &refCount);
    if (auto line = trace.Line(TraceLevel::Detail)) {
        line << "rc[ZanDictionary->Delete]=" << ZanDicTraceScope::Word(deleted);
    }
    if (auto line = trace.Line(TraceLevel::Detail)) {
        line << "after " << memberName << "->Release, RefCount=" << refCount;
    }
    return flushed;
}

void DropTaken(ZanDicTaken& owned) {
    while (ZanDicObj* const object = owned.Next()) DropOne(*object, owned);
}
