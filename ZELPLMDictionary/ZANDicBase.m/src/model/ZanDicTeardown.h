/// How an owner gives back what it owns.
#ifndef ZAN_DIC_TEARDOWN_H
#define ZAN_DIC_TEARDOWN_H

#include <cstdint>
#include <string_view>
#include <vector>

#include "ZELResult.h"
#include "ZanHashList.h"

class ZanDicObj;
class ZanDicTraceScope;

/// Drops what \p owned keeps alive, in the one order used everywhere: the object's own FlushAll, then out of
/// the registry and gone, then the owner's reference. Empties the list at the end.
///
/// Goes on past an object that was not registered; stops only where an object's own FlushAll fails: that
/// object and those behind it stay in the list then, after an error line.
/// \param owned elements only.
/// \param listName of the field that holds the list, for the trace.
/// \returns S_OK; the failing FlushAll's result.
HRESULT DropOwned(ZanHashList& owned, std::string_view listName, const ZanDicTraceScope& trace);

/// Drops one object that its owner's list no longer holds: out of the registry and gone, then the owner's
/// reference. \param[out] refCount what was left of its references.
/// \returns the result of the registry.
HRESULT DropObject(ZanDicObj& object, std::uint32_t* refCount);

/// Drops, without a word, objects whose owner has let go of them by `take_Owned`.
void DropTaken(const std::vector<ZanDicObj*>& owned);

#endif
