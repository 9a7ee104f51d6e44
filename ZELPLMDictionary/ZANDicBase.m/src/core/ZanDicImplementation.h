/// The way from an interface back to the object behind it.
#ifndef ZAN_DIC_IMPLEMENTATION_H
#define ZAN_DIC_IMPLEMENTATION_H

#include "IUnknown.h"
#include "ZanDicObj.h"

/// Answered by objects of this library only: hands out the `ZanDicObj`, without a reference.
inline constexpr ZELInterfaceId IID_ZanDicImplementation{0x8f0d1b0f6a5c4e21, 0x9b77d3c2f1a04e66};

/// The object behind an interface, without a reference.
/// \returns null for a null interface or one that no object of this library stands behind.
inline ZanDicObj* ImplementationOf(const IUnknown* face) {
    if (face == nullptr) return nullptr;
    void* object = nullptr;
    const HRESULT rc = const_cast<IUnknown*>(face)->QueryInterface(IID_ZanDicImplementation, &object);
    return Failed(rc) ? nullptr : static_cast<ZanDicObj*>(object);
}

/// The object behind an interface when it is a \p T that is still in the dictionary.
template <class T>
T* LiveImplementationOf(const IUnknown* face) {
    ZanDicObj* object = ImplementationOf(face);
    if (object == nullptr || object->is_Gone()) return nullptr;
    if constexpr (std::is_same_v<T, ZanDicObj>)
        return object;
    else
        return object->MetaObject().IsAKindOf(T::ClassMeta()) ? static_cast<T*>(object) : nullptr;
}

#endif
