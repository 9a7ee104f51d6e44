/// How a new object becomes a member of its owner.
#ifndef ZAN_DIC_ADOPT_H
#define ZAN_DIC_ADOPT_H

#include "ZanDicHandOut.h"
#include "ZanDicRef.h"
#include "ZanDicRegistry.h"
#include "ZanHashList.h"

/// Makes \p made a member of \p owned, which takes the reference over, registers it and hands its own
/// interface out. What the registry refuses is a member all the same, and handed out; when memory runs out,
/// nothing has changed. \param made an object whose name is known not to be taken. \param out untouched when
/// the object has no interface of its own. \returns the result of the registry.
template <class Member, class Interface>
HRESULT AdoptMember(ZanHashList& owned, ZanDicRef<Member>& made, Interface** out, ZanDicRegistry& registry) {
    owned.append_New(*made);
    try {
        const HRESULT rc = registry.Insert(made.Get());
        HandOutOwn(*made, out);
        made.Detach();
        return rc;
    } catch (...) {
        owned.take_Object(made.Get());  // and its end takes it out of the registry
        throw;
    }
}

#endif
