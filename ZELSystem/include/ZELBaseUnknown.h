#ifndef ZELBASEUNKNOWN_H
#define ZELBASEUNKNOWN_H

#include <cstdint>

#include "ZELExport.h"
#include "ZELInterfaceId.h"
#include "ZELResult.h"

class ZELMetaClass;
class ZELTieLink;

/// Counted object that answers interface queries: the base of every component class.
///
/// An object is born with one reference, its creator's, and destroys itself when the last is given back.
/// Callers outside hold interfaces, that is adapters (ZELTie.h); each adapter holds exactly one reference
/// on the object, so an object with an adapter lives. Objects on the stack are allowed as long as
/// nobody holds an interface of them at their end: that, and deleting such an object, is fatal.
/// 20 bytes: the four after the count serve the derived class's first fields.
/// One thread.
class ZELSYSTEM_API ZELBaseUnknown {
public:
    /// Born with a count of 1 and no adapter.
    ZELBaseUnknown() noexcept = default;

    /// A copy is an object of its own: neither count nor adapters come along.
    ZELBaseUnknown(const ZELBaseUnknown&) noexcept {}
    ZELBaseUnknown& operator=(const ZELBaseUnknown&) noexcept { return *this; }

    virtual ~ZELBaseUnknown();

    /// Takes one more reference. \returns the new count.
    std::uint32_t AddRef() noexcept { return ++_Count; }

    /// Gives one reference back and destroys the object with the last.
    /// \returns the new count.
    std::uint32_t Release() noexcept {
        if (_Count != 1) return --_Count;
        destroy_Itself();
        return 0;
    }

    /// Finds the object's adapter for the interface \p id, or makes it.
    /// \param[out] out written on success only: the interface, with one reference that the caller owns.
    /// \returns S_OK; E_NOINTERFACE when neither the class nor a base has a row for \p id; E_INVALIDARG
    ///          when \p out is null; E_FAIL when memory is short.
    virtual HRESULT QueryInterface(const ZELInterfaceId& id, void** out) noexcept;

    /// The same within an operation: throws std::bad_alloc when memory is short.
    HRESULT hand_Out(const ZELInterfaceId& id, void** out);

    /// \returns the metadata of the object's class. Each component class overrides it.
    virtual ZELMetaClass& MetaObject() const;

    /// \returns the name of the object's class.
    const char* IsA() const;

    /// \returns 1 when the object's class is \p className or derives from it, else 0 (null included).
    ///          Every object is a kind of "ZELBaseUnknown".
    int IsAKindOf(const char* className) const;

    /// \returns the count of references, adapters' included. For tests and diagnostics.
    std::uint32_t RefCount() const noexcept { return _Count; }

protected:
    /// Fetches the newest adapter into the cache, for a query some 100 ns later.
    void prefetch_Ties() const noexcept { __builtin_prefetch(_Ties); }

private:
    friend class ZELTieLink;

    void destroy_Itself() noexcept;

    ZELTieLink* _Ties = nullptr;  ///< the adapters in use, newest first; each unlinks itself at its end
    std::uint32_t _Count = 1;
};

#endif
