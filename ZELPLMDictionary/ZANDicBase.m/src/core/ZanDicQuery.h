/// Interfaces by query, and lists of interfaces that give their references back.
#ifndef ZAN_DIC_QUERY_H
#define ZAN_DIC_QUERY_H

#include <utility>

#include "IUnknown.h"
#include "OXMIDicElementH.h"
#include "ZELListPtr.h"
#include "ZanDicRef.h"

/// \returns the interface \p T of the object behind \p face; null when it has none.
template <class T>
ZanDicRef<T> As(IUnknown& face) {
    void* found = nullptr;
    if (Failed(face.QueryInterface(T::ClassId(), &found))) return {};
    return ZanDicRef<T>(static_cast<T*>(found));
}

/// What an operation appended to a list: one reference an entry, given back with the list. Move-only.
class ZanDicRefList {
public:
    ZanDicRefList() noexcept = default;
    ZanDicRefList(ZanDicRefList&& other) noexcept : _LIST(std::exchange(other._LIST, {})) {}
    ZanDicRefList& operator=(ZanDicRefList&& other) noexcept {
        std::swap(_LIST, other._LIST);
        return *this;
    }
    ZanDicRefList(const ZanDicRefList&) = delete;
    ZanDicRefList& operator=(const ZanDicRefList&) = delete;
    ~ZanDicRefList() {
        for (IUnknown* const entry : _LIST) {
            if (entry != nullptr) entry->Release();
        }
    }

    /// For the operation that appends.
    ZELListPtrIUnknown* Out() noexcept { return &_LIST; }

    int Size() const noexcept { return _LIST.Size(); }

    /// \param position 1 to Size(). \returns the entry; may be null.
    IUnknown* operator[](int position) const { return _LIST[position]; }

    /// Gives the reference at \p position back before the others; the entry is null then.
    void Drop(int position) {
        if (IUnknown* const entry = std::exchange(_LIST[position], nullptr); entry != nullptr) {
            entry->Release();
        }
    }

private:
    ZELListPtrIUnknown _LIST;
};

#endif
