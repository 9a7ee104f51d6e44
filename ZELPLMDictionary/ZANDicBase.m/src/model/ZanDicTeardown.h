/// How an owner gives back what it owns. None of it needs memory: what cannot be flushed line by line because
/// there is none is dropped without its lines.
#ifndef ZAN_DIC_TEARDOWN_H
#define ZAN_DIC_TEARDOWN_H

#include <cstdint>
#include <string_view>

#include "ZELResult.h"
#include "ZanDicTaken.h"
#include "ZanHashList.h"

class ZanDicElement;
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

/// The FlushAll of kinds that own one list (`ZanDicElement::owned_List`): start lines, the list by
/// DropOwned's rules, what is left (`flush_Rest`), exit line. Goes down into owners of lists by itself: no
/// depth of nesting recurses. \returns S_OK; the failing result of a member.
HRESULT FlushOwner(ZanDicElement& owner);

/// DropOwned for one element that no list holds. Its owner has let go of it. \param memberName of the field
/// that held it, for the trace. \returns S_OK; the failing FlushAll's result: the element goes all the same.
HRESULT DropMember(ZanDicElement& member, std::string_view memberName, const ZanDicTraceScope& trace);

/// Drops one object that its owner's list no longer holds: out of the registry and gone, then the owner's
/// reference. \param[out] refCount what was left of its references.
/// \returns the result of the registry.
HRESULT DropObject(ZanDicObj& object, std::uint32_t* refCount);

/// Drops, without a word, the objects of which their owner has let go by `take_Owned`, from the one on that
/// comes next, and what they own in turn; no depth of nesting recurses.
void DropTaken(ZanDicTaken& owned);

#endif
