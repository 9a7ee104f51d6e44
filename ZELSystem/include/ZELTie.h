#ifndef ZELTIE_H
#define ZELTIE_H

#include <cstdint>
#include <type_traits>

#include "IUnknown.h"
#include "ZELBaseUnknown.h"
#include "ZELCall.h"
#include "ZELExport.h"
#include "ZELListPtr.h"
#include "ZELMetaClass.h"
#include "ZELPool.h"

/// Gives back what was appended to \p list, which may be null, since it had \p size entries.
ZELSYSTEM_API void ZELGiveBackFrom(ZELListPtrIUnknown* list, int size) noexcept;

/// What every adapter has beside its interface: the object, the count of callers, the chain.
///
/// A bound adapter is in its object's chain, alone for its interface, and holds one reference on the object.
/// One thread.
class ZELSYSTEM_API ZELTieLink {
public:
    ZELTieLink(const ZELTieLink&) = delete;
    ZELTieLink& operator=(const ZELTieLink&) = delete;

    /// \returns the object that the adapter stands for.
    ZELBaseUnknown& Object() const noexcept { return *_Object; }

    /// \returns the interface that the adapter serves: it stands right before what this class holds.
    void* Face() noexcept { return reinterpret_cast<unsigned char*>(this) - sizeof(void*); }

    /// Ties the new adapter to \p object and takes its reference. Called once, by the row that makes it.
    void bind_Object(ZELBaseUnknown& object) noexcept {
        _Object = &object;
        object.AddRef();
    }

protected:
    ZELTieLink() noexcept = default;
    ~ZELTieLink() = default;

    std::uint32_t add_Caller() noexcept { return ++_Count; }
    std::uint32_t drop_Caller() noexcept { return --_Count; }

    /// Takes the adapter out of its object's chain. \returns the object, whose reference is now the caller's.
    ZELBaseUnknown* unlink_Object() noexcept {
        ZELTieLink** link = &_Object->_Ties;
        while (*link != this) link = &(*link)->_Next;
        *link = _Next;
        return _Object;
    }

private:
    friend class ZELBaseUnknown;

    ZELBaseUnknown* _Object = nullptr;  ///< one reference held
    ZELTieLink* _Next = nullptr;        ///< the object's next adapter
    std::uint32_t _Count = 1;
    std::uint32_t _Tag = 0;  ///< of the row that made it
};

/// Adapter of \p Interface for objects of class \p Impl: counts, queries and chain.
///
/// Layers on top, one per interface of the chain, forward the interface's own operations to impl():
/// `template <class Impl, class Base> class XLayer : public Base { HRESULT Op() override { return
/// this->forward([&](Impl& impl) { return impl.Op(); }); } };` They hold nothing, so that all adapters have
/// one size. The last Release unlinks the adapter, frees it and then gives back its reference on the object.
/// No exception leaves an operation (ZELCall.h).
template <class Interface, class Impl>
class ZELSYSTEM_API ZELTie : public Interface, public ZELTieLink {
public:
    using InterfaceType = Interface;
    using ImplType = Impl;

    ZELTie() noexcept {
        static_assert(sizeof(Interface) == sizeof(void*), "an interface has operations only");
    }

    HRESULT QueryInterface(const ZELInterfaceId& id, void** out) override {
        ZELCheckThread("QueryInterface");
        return Object().QueryInterface(id, out);
    }

    std::uint32_t AddRef() override {
        ZELCheckThread("AddRef");
        return add_Caller();
    }

    std::uint32_t Release() override {
        ZELCheckThread("Release");
        const std::uint32_t count = drop_Caller();
        if (count == 0) {
            ZELBaseUnknown* const object = unlink_Object();
            // No destructor: there is nothing in it to end, nor in the layers above.
            ZELPoolFree(static_cast<void*>(this), sizeof(*this));
            object->Release();
        }
        return count;
    }

    /// \returns the implementing object.
    Impl& impl() const noexcept { return static_cast<Impl&>(Object()); }

protected:
    ~ZELTie() = default;

    /// Runs one operation of the object. \param body takes the object. \param name the operation's.
    template <class Body>
    auto forward(const Body& body, const char* name = __builtin_FUNCTION()) const noexcept {
        return ZELCall([&] { return body(impl()); }, name);
    }

    /// The same for one that takes no memory and so throws nothing: in a release build no more than a jump.
    template <class Body>
    auto forward_Plain(const Body& body, const char* name = __builtin_FUNCTION()) const {
        ZELCheckThread(name);
        return body(impl());
    }

    /// The same for one that appends to \p list, which may be null: it has nothing new when memory runs out.
    template <class Body>
    auto forward_List(ZELListPtrIUnknown* list, const Body& body,
                      const char* name = __builtin_FUNCTION()) const noexcept {
        const int size = list != nullptr ? list->Size() : 0;
        return ZELCall([&] { return body(impl()); }, [&] { ZELGiveBackFrom(list, size); }, name);
    }
};

/// \returns the row by which a class answers the interface of \p T, a ZELTie with all its layers.
template <class T>
constexpr ZELTieRow ZELMakeTieRow() {
    using Interface = typename T::InterfaceType;
    static_assert(sizeof(T) == sizeof(ZELTie<Interface, typename T::ImplType>), "a layer holds nothing");
    return {Interface::ClassId(), [](ZELBaseUnknown& object) -> ZELTieLink* {
                T* const tie = ::new (ZELPoolAllocate(sizeof(T))) T;
                tie->bind_Object(object);
                return tie;
            }};
}

#endif
