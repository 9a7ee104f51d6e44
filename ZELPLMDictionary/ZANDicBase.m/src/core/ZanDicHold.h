/// An object held without any of its interfaces.
#ifndef ZAN_DIC_HOLD_H
#define ZAN_DIC_HOLD_H

#include <new>

#include "IUnknown.h"
#include "ZanDicImplementation.h"
#include "ZanDicRef.h"

/// Holds one reference on the object behind an interface: whoever keeps many objects for later keeps no
/// adapter for each meanwhile. An object of another library is held by the interface itself.
class ZanDicHold {
public:
    /// \param face the object's own interface, the most specific one.
    explicit ZanDicHold(IUnknown& face)
        : _Object(ZanDicRef<ZanDicObj>::Share(ImplementationOf(&face))),
          _Foreign(_Object ? ZanDicRef<IUnknown>() : ZanDicRef<IUnknown>::Share(&face)) {}

    /// \returns the object's own interface; \p Interface is a base of it. Throws std::bad_alloc when there is
    /// no memory for it.
    template <class Interface>
    ZanDicRef<Interface> Own() const {
        if (_Foreign) return ZanDicRef<Interface>::Share(static_cast<Interface*>(_Foreign.Get()));
        void* face = nullptr;
        if (Failed(_Object->bind_Interface(OXMDicTYPE_UNDEFINED, &face))) throw std::bad_alloc();
        return ZanDicRef<Interface>(static_cast<Interface*>(face));
    }

private:
    ZanDicRef<ZanDicObj> _Object;
    ZanDicRef<IUnknown> _Foreign;  ///< null for an object of this library
};

#endif
