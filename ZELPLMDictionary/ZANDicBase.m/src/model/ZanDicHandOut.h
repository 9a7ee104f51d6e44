/// Interfaces for callers, one reference each. Memory that runs out is std::bad_alloc, never a refusal.
#ifndef ZAN_DIC_HAND_OUT_H
#define ZAN_DIC_HAND_OUT_H

#include "IUnknown.h"
#include "OXMDicTypes.h"
#include "ZELListPtr.h"
#include "ZanDicObj.h"
#include "ZanHashList.h"

/// Hands out the object's own interface, the most specific one; \p Interface is a base of it, or of the
/// interface of any kind of object that may stand here.
/// \returns the query's result; on failure \p out is untouched.
template <class Interface>
HRESULT HandOutOwn(const ZanDicObj& object, Interface** out) {
    return object.bind_Interface(OXMDicTYPE_UNDEFINED, reinterpret_cast<void**>(out));
}

/// Hands out exactly \p Interface, whatever the object's type code.
/// \returns S_OK; E_FAIL when the object's class does not answer it, and \p out is untouched.
template <class Interface>
HRESULT HandOutAs(const ZanDicObj& object, Interface** out) {
    void** const face = reinterpret_cast<void**>(out);
    return Succeeded(const_cast<ZanDicObj&>(object).hand_Out(Interface::ClassId(), face)) ? S_OK : E_FAIL;
}

/// Appends the object's own interface to \p list; without a list, or when the query fails, there is
/// nothing to give back. \returns the query's result.
HRESULT AppendInterface(const ZanDicObj& object, ZELListPtrIUnknown* list);

/// Appends the own interface of each object of \p objects. \returns the last query's result, S_OK for none;
/// E_FAIL without a list.
HRESULT AppendInterfaces(const ZanHashList& objects, ZELListPtrIUnknown* list);

/// Hands out the own interface of the object appended under \p name.
/// \returns the query's result; E_FAIL when there is none, or for null.
template <class Interface>
HRESULT FindInterface(const ZanHashList& objects, const ZELString* name, Interface** out) {
    if (name == nullptr || out == nullptr) return E_FAIL;
    const ZanDicObj* const object = objects.find(*name);
    return object != nullptr ? HandOutOwn(*object, out) : E_FAIL;
}

#endif
